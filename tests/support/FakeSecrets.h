#pragma once

#include "platform/SecretStore.h"

#include <map>
#include <utility>

namespace quillon::test {

/// A keyring in memory that can be away.
class FakeSecrets : public SecretStore {
public:
    bool available = true;
    std::map<std::pair<std::string, std::string>, std::string> values;

    [[nodiscard]] QFuture<bool> save(KeychainItem item, std::string value) override {
        if (available) values[{item.service, item.account}] = std::move(value);
        return QtFuture::makeReadyFuture(available);
    }
    [[nodiscard]] QFuture<std::optional<std::string>> read(KeychainItem item) override {
        const auto found = values.find({item.service, item.account});
        const bool readable = available && found != values.end();
        return QtFuture::makeReadyFuture(readable ? std::optional{found->second} : std::nullopt);
    }
    [[nodiscard]] bool exists(const KeychainItem& item) override {
        return available && values.contains({item.service, item.account});
    }
    [[nodiscard]] QFuture<bool> remove(KeychainItem item) override {
        if (available) values.erase({item.service, item.account});
        return QtFuture::makeReadyFuture(!values.contains({item.service, item.account}));
    }
};

} // namespace quillon::test
