#pragma once

#include "platform/SecretStore.h"
#include "platform/linux/keyring/SecretServiceWatch.h"

#include <chrono>
#include <memory>

namespace quillon {

/// The user's keyring over the Secret Service, through libsecret. All operations save find() run
/// one after another on one worker thread, which the first of them starts. If there is no session
/// bus, none is started.
class LibsecretStore final : public SecretStore {
public:
    /// `bus` is the session bus; `limit` is how long an operation waits for the keyring's answers.
    explicit LibsecretStore(QDBusConnection bus,
                            std::chrono::milliseconds limit = std::chrono::seconds{5});

    /// Closes the keyring's question to the user, if one is open; unfinished operations fail.
    ~LibsecretStore() override;

    [[nodiscard]] QFuture<bool> save(KeychainItem item, std::string value) override;
    [[nodiscard]] QFuture<SecretReading> read(KeychainItem item) override;
    [[nodiscard]] QFuture<SecretAnswer> find(KeychainItem item) override;
    [[nodiscard]] QFuture<SecretAnswer> remove(KeychainItem item) override;
    void watch(std::function<void()> changed) override;

private:
    class Worker;
    [[nodiscard]] Worker& worker();

    SecretServiceWatch service_;
    std::chrono::milliseconds limit_;
    std::unique_ptr<Worker> worker_;
};

} // namespace quillon
