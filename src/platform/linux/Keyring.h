#pragma once

#include "platform/SecretStore.h"
#include "platform/linux/GlibSteps.h"

#include <libsecret/secret.h>

namespace quillon {

/// One visit to the Secret Service. Each step waits 5 seconds at most for the service's answer;
/// only the steps that ask the user to unlock or create a keyring wait for as long as it takes.
class Keyring {
public:
    explicit Keyring(GlibSteps& steps) : steps_{steps} {}

    bool save(const KeychainItem& item, const std::string& value);
    std::optional<std::string> read(const KeychainItem& item);
    bool exists(const KeychainItem& item);
    void remove(const KeychainItem& item);

private:
    struct FreeObjects {
        void operator()(GList* list) const { g_list_free_full(list, g_object_unref); }
    };
    enum class DefaultCollection { unlocked, missing, unusable };
    using Items = std::unique_ptr<GList, FreeObjects>;

    /// False when there is no session bus or nothing there that keeps secrets.
    bool open();
    Items search(const KeychainItem& item, SecretSearchFlags flags);
    bool unlock(gpointer object);
    bool load(SecretItem* item);
    bool removeAll(const KeychainItem& item);
    DefaultCollection prepareDefaultCollection();

    GlibSteps& steps_;
    GlibPointer<SecretService> service_;
};

} // namespace quillon
