#pragma once

#include <QFuture>

#include <functional>
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

/// What the keyring says about an item.
enum class SecretAnswer {
    found,
    locked, ///< it is there, in a keyring that was not unlocked
    absent,
    none, ///< nobody answered, so that it may be there or not
};

/// The answer with the secret, which is empty unless found.
struct SecretReading {
    SecretAnswer answer = SecretAnswer::none;
    std::string secret;
};

/// The user's keyring. Each operation gives up 5 seconds after its turn has come. If the user is
/// asked to unlock or create a keyring, the user may take any time, and the 5 seconds begin anew
/// with the answer.
class SecretStore {
public:
    virtual ~SecretStore() = default;

    /// Replaces whatever was stored under the item. Tells whether the secret is stored now.
    [[nodiscard]] virtual QFuture<bool> save(KeychainItem item, std::string value) = 0;

    /// Reads the secret, for which the user may be asked. A secret that is not UTF-8 counts as
    /// absent.
    [[nodiscard]] virtual QFuture<SecretReading> read(KeychainItem item) = 0;

    /// Whether the item is there, without reading its secret or unlocking anything. A keyring that
    /// hangs holds this answer open for as long as it likes.
    [[nodiscard]] virtual QFuture<SecretAnswer> find(KeychainItem item) = 0;

    /// Removes the item; a missing one is not an error. Tells what has become of it: "absent" if
    /// it is gone, "found" if the keyring kept it.
    [[nodiscard]] virtual QFuture<SecretAnswer> remove(KeychainItem item) = 0;

    /// Calls `changed` whenever the keyring may answer differently: when it comes up, and when the
    /// user unlocks or locks it. Replaces the one before.
    virtual void watch(std::function<void()> changed) = 0;
};

} // namespace quillon
