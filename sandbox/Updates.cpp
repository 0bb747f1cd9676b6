#include "sandbox/Updates.h"

#include <algorithm>

namespace quillon::sandbox {

void UpdateQueue::push(const std::string& kind, Json content) {
    if (!allowed_.empty() && !allowed_.contains(kind)) return;
    Json update{{"update_id", ++lastId_}};
    update[kind] = std::move(content);
    updates_.emplace_back(lastId_, std::move(update));
}

void UpdateQueue::allow(const std::string& allowedUpdates) {
    const Json list = Json::parse(allowedUpdates, nullptr, false);
    if (!list.is_array()) return;
    std::set<std::string> kinds;
    for (const Json& kind : list) {
        if (!kind.is_string()) return;
        kinds.insert(kind.get<std::string>());
    }
    allowed_ = std::move(kinds);
}

Json UpdateQueue::take(std::int64_t offset, std::size_t limit) {
    const auto size = static_cast<std::int64_t>(updates_.size());
    if (offset < 0) {
        const auto forgotten = std::max<std::int64_t>(0, size + offset);
        updates_.erase(updates_.begin(), updates_.begin() + forgotten);
    }
    while (!updates_.empty() && updates_.front().first < offset)
        updates_.pop_front();
    Json result = Json::array();
    for (std::size_t i = 0; i < std::min(limit, updates_.size()); ++i)
        result.push_back(updates_[i].second);
    return result;
}

bool UpdateQueue::has(std::int64_t offset) const {
    return !updates_.empty() && updates_.back().first >= offset;
}

} // namespace quillon::sandbox
