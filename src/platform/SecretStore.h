#pragma once

#include <QFuture>

#include <optional>
#include <string>

namespace quillon {

/// Names one secret text in the user's keyring. Service and account find it; the label is written
/// on saving, for the user to read, and plays no part in finding.
struct KeychainItem {
    std::string service;
    std::string account;
    std::string label;

    bool operator==(const KeychainItem&) const = default;
};

/// The user's keyring. No operation reports why it failed: it gives none or false, or does nothing.
/// Each gives up 5 seconds after its turn has come. If the user is asked to unlock or create a
/// keyring, the user may take any time, and the 5 seconds begin anew with the answer.
class SecretStore {
public:
    virtual ~SecretStore() = default;

    /// Replaces whatever was stored under the item. Tells whether the secret is stored now.
    [[nodiscard]] virtual QFuture<bool> save(KeychainItem item, std::string value) = 0;

    /// The secret; none when there is no such item, it cannot be read, or it is not UTF-8.
    [[nodiscard]] virtual QFuture<std::optional<std::string>> read(KeychainItem item) = 0;

    /// Whether the item is there, without reading its secret or unlocking anything. Waits for the
    /// keyring's answer: for start-up, before any window exists.
    [[nodiscard]] virtual bool exists(const KeychainItem& item) = 0;

    /// Removes the item; a missing one is not an error. Tells whether the keyring holds none now.
    [[nodiscard]] virtual QFuture<bool> remove(KeychainItem item) = 0;
};

} // namespace quillon
