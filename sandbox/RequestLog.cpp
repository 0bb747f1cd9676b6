#include "sandbox/RequestLog.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>

namespace quillon::sandbox {

namespace {

std::string typeName(const Parameter& parameter) {
    if (parameter.source == ParameterSource::query) return "query text";
    if (parameter.source == ParameterSource::form) return "form text";
    if (parameter.source == ParameterSource::multipart) return "multipart text";
    return parameter.value.is_number_integer() ? "integer" : parameter.value.type_name();
}

std::string clockText(std::chrono::system_clock::time_point time) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    std::tm parts{};
    localtime_r(&seconds, &parts);
    std::array<char, 16> text{};
    std::strftime(text.data(), text.size(), "%H:%M:%S", &parts);
    return text.data();
}

std::string line(const RequestRecord& record) {
    std::string text = clockText(record.time) + " #" + std::to_string(record.connection) + ' ' +
                       record.verb + ' ' + record.method + ' ' + std::to_string(record.bodySize) +
                       " bytes";
    if (!record.fault.empty()) text += " [" + record.fault + ']';
    if (record.status != 0) text += " → " + std::to_string(record.status);
    if (!record.error.empty()) text += ' ' + record.error;
    return text;
}

} // namespace

Json RequestRecord::parameter(std::string_view name) const {
    const auto found = std::ranges::find(parameters.values, name, &Parameter::name);
    return found == parameters.values.end() ? Json{} : found->value;
}

Json toJson(const RequestRecord& record) {
    Json parameters = Json::array();
    for (const Parameter& parameter : record.parameters.values) {
        parameters.push_back(
            {{"name", parameter.name}, {"type", typeName(parameter)}, {"value", parameter.value}});
    }
    Json files = Json::array();
    for (const UploadedFile& file : record.parameters.files) {
        files.push_back({{"field", file.field},
                         {"filename", file.filename},
                         {"mime", file.mime},
                         {"size", file.size},
                         {"sha256", file.sha256.get()}});
    }
    const auto time = record.time.time_since_epoch();
    return {{"connection", record.connection},
            {"time_ms", std::chrono::duration<double, std::milli>{time}.count()},
            {"verb", record.verb},
            {"method", record.method},
            {"bot", record.bot},
            {"content_type", record.contentType},
            {"body_size", record.bodySize},
            {"parameters", std::move(parameters)},
            {"files", std::move(files)},
            {"fault", record.fault},
            {"status", record.status},
            {"error", record.error}};
}

void RequestLog::add(RequestRecord record) {
    if (verbose_) note(line(record));
    for (UploadedFile& file : record.parameters.files)
        file.bytes = {};
    const std::lock_guard lock{mutex_};
    records_.push_back(std::move(record));
}

void RequestLog::clear() {
    const std::lock_guard lock{mutex_};
    records_.clear();
}

std::vector<RequestRecord> RequestLog::records() const {
    const std::lock_guard lock{mutex_};
    return records_;
}

void RequestLog::note(const std::string& line) const {
    if (!verbose_) return;
    std::fputs((line + '\n').c_str(), stderr);
}

} // namespace quillon::sandbox
