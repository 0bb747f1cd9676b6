#pragma once

#include "platform/SecretStore.h"
#include "platform/linux/keyring/GlibSteps.h"

namespace quillon {

/// One visit to the Secret Service, which gives up after a limit. Only the steps that ask the user
/// to unlock or create a keyring wait for as long as it takes, and the limit begins anew after
/// them.
class Keyring {
public:
    /// Begins the visit.
    Keyring(GlibSteps& steps, std::chrono::milliseconds limit);

    bool save(const KeychainItem& item, const std::string& value);
    SecretReading read(const KeychainItem& item);
    SecretAnswer remove(const KeychainItem& item);

private:
    struct FreeObjects {
        void operator()(GList* list) const { g_list_free_full(list, g_object_unref); }
    };
    enum class DefaultCollection { unlocked, missing, unusable };
    using Items = std::unique_ptr<GList, FreeObjects>;

    GlibPointer<GAsyncResult> ask(const GlibSteps::Start& start);
    GlibPointer<GAsyncResult> askUser(const GlibSteps::Start& start);

    /// False if there is no session bus or no Secret Service on it.
    bool open();
    /// Null if there are no items, none if the search failed.
    std::optional<Items> search(const KeychainItem& item, SecretSearchFlags flags);
    bool unlock(gpointer object);
    bool load(SecretItem* item);
    SecretAnswer removeOne(SecretItem* item);
    SecretAnswer removeAll(const KeychainItem& item);
    DefaultCollection prepareDefaultCollection();

    GlibSteps& steps_;
    std::chrono::milliseconds limit_;
    GlibSteps::Time deadline_;
    GlibPointer<SecretService> service_;
};

} // namespace quillon
