#pragma once

#include "platform/SecretStore.h"

#include <memory>

namespace quillon {

/// The user's keyring over the Secret Service, through libsecret. All operations run one after
/// another on one worker thread. If there is no session bus, none is started.
class LibsecretStore final : public SecretStore {
public:
    LibsecretStore();

    /// Closes the keyring's question to the user, if one is open; unfinished operations fail.
    ~LibsecretStore() override;

    [[nodiscard]] QFuture<bool> save(KeychainItem item, std::string value) override;
    [[nodiscard]] QFuture<std::optional<std::string>> read(KeychainItem item) override;
    [[nodiscard]] bool exists(const KeychainItem& item) override;
    [[nodiscard]] QFuture<bool> remove(KeychainItem item) override;

private:
    class Worker;
    std::unique_ptr<Worker> worker_;
};

} // namespace quillon
