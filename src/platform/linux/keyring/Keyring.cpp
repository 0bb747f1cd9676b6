#include "platform/linux/keyring/Keyring.h"

#include "base/Environment.h"

namespace quillon {

namespace {

/// Describes the attributes of items. Searches ignore the schema's name, so an item that another
/// program made with the same attributes is the same item.
const SecretSchema& schema() {
    static const SecretSchema schema = [] {
        SecretSchema made{};
        made.name = "quillon.Secret";
        made.flags = SECRET_SCHEMA_DONT_MATCH_NAME;
        made.attributes[0] = {"service", SECRET_SCHEMA_ATTRIBUTE_STRING};
        made.attributes[1] = {"account", SECRET_SCHEMA_ATTRIBUTE_STRING};
        return made;
    }();
    return schema;
}

using Attributes = std::unique_ptr<GHashTable, decltype(&g_hash_table_unref)>;

Attributes attributesOf(const KeychainItem& item) {
    return {secret_attributes_build(&schema(), "service", item.service.c_str(), "account",
                                    item.account.c_str(), nullptr),
            &g_hash_table_unref};
}

using Value = std::unique_ptr<SecretValue, decltype(&::secret_value_unref)>;

} // namespace

Keyring::Keyring(GlibSteps& steps, std::chrono::milliseconds limit)
    : steps_{steps},
      limit_{limit},
      deadline_{std::chrono::steady_clock::now() + limit} {}

GlibPointer<GAsyncResult> Keyring::ask(const GlibSteps::Start& start) {
    return steps_.await(deadline_, start);
}

GlibPointer<GAsyncResult> Keyring::askUser(const GlibSteps::Start& start) {
    if (std::chrono::steady_clock::now() >= deadline_) return {};
    auto answer = steps_.await(std::nullopt, start);
    deadline_ = std::chrono::steady_clock::now() + limit_;
    return answer;
}

bool Keyring::open() {
    if (!hasSessionBus() || !libsecret.load()) return false;
    auto answer = ask([](auto... end) { g_bus_get(G_BUS_TYPE_SESSION, end...); });
    if (!answer) return false;
    const GlibPointer<GDBusConnection> bus{g_bus_get_finish(answer.get(), nullptr)};
    if (!bus) return false;
    // By default, GLib ends the program when the session bus ends.
    g_dbus_connection_set_exit_on_close(bus.get(), FALSE);

    answer = ask([](auto... end) {
        secret_service_open(SECRET_TYPE_SERVICE, nullptr, SECRET_SERVICE_NONE, end...);
    });
    if (answer) service_.reset(secret_service_open_finish(answer.get(), nullptr));
    return service_ != nullptr;
}

std::optional<Keyring::Items> Keyring::search(const KeychainItem& item, SecretSearchFlags flags) {
    const Attributes attributes = attributesOf(item);
    const auto answer = ask([&](auto... end) {
        secret_service_search(service_.get(), &schema(), attributes.get(), flags, end...);
    });
    if (!answer) return std::nullopt;
    GError* error = nullptr;
    Items found{secret_service_search_finish(service_.get(), answer.get(), &error)};
    if (!error) return found;
    g_error_free(error);
    return std::nullopt;
}

bool Keyring::unlock(gpointer object) {
    GList objects{object, nullptr, nullptr};
    const auto answer =
        askUser([&](auto... end) { secret_service_unlock(service_.get(), &objects, end...); });
    if (!answer) return false;
    return secret_service_unlock_finish(service_.get(), answer.get(), nullptr, nullptr) > 0;
}

bool Keyring::load(SecretItem* item) {
    const auto answer = ask([&](auto... end) { secret_item_load_secret(item, end...); });
    return answer && secret_item_load_secret_finish(item, answer.get(), nullptr);
}

SecretReading Keyring::read(const KeychainItem& item) {
    if (!open()) return {};
    const auto found = search(item, SECRET_SEARCH_NONE);
    if (!found) return {};
    if (!*found) return {.answer = SecretAnswer::absent, .secret = {}};
    auto* first = SECRET_ITEM((*found)->data);
    if (secret_item_get_locked(first) && !unlock(first))
        return {.answer = SecretAnswer::locked, .secret = {}};
    if (!load(first)) return {};
    const Value value{secret_item_get_secret(first), secret_value_unref};
    if (!value) return {};
    gsize length = 0;
    const char* bytes = secret_value_get(value.get(), &length);
    if (!g_utf8_validate_len(bytes, length, nullptr))
        return {.answer = SecretAnswer::absent, .secret = {}};
    return {.answer = SecretAnswer::found, .secret = {bytes, length}};
}

SecretAnswer Keyring::removeOne(SecretItem* item) {
    if (secret_item_get_locked(item) && !unlock(item)) return SecretAnswer::locked;
    const auto answer = ask([&](auto... end) { secret_item_delete(item, end...); });
    if (!answer) return SecretAnswer::none;
    return secret_item_delete_finish(item, answer.get(), nullptr) ? SecretAnswer::absent
                                                                  : SecretAnswer::found;
}

SecretAnswer Keyring::removeAll(const KeychainItem& item) {
    const auto found = search(item, SECRET_SEARCH_ALL);
    if (!found) return SecretAnswer::none;
    for (const GList* link = found->get(); link; link = link->next) {
        const SecretAnswer removed = removeOne(SECRET_ITEM(link->data));
        if (removed != SecretAnswer::absent) return removed;
    }
    return SecretAnswer::absent;
}

SecretAnswer Keyring::remove(const KeychainItem& item) {
    return open() ? removeAll(item) : SecretAnswer::none;
}

Keyring::DefaultCollection Keyring::prepareDefaultCollection() {
    using enum DefaultCollection;
    const auto answer = ask([&](auto... end) {
        secret_collection_for_alias(service_.get(), SECRET_COLLECTION_DEFAULT,
                                    SECRET_COLLECTION_NONE, end...);
    });
    if (!answer) return unusable;
    GError* error = nullptr;
    const GlibPointer<SecretCollection> collection{
        secret_collection_for_alias_finish(answer.get(), &error)};
    if (error) {
        g_error_free(error);
        return unusable;
    }
    if (!collection) return missing;
    if (!secret_collection_get_locked(collection.get())) return unlocked;
    return unlock(collection.get()) ? unlocked : unusable;
}

bool Keyring::save(const KeychainItem& item, const std::string& value) {
    if (!open()) return false;
    const DefaultCollection collection = prepareDefaultCollection();
    if (collection == DefaultCollection::unusable) return false;
    if (removeAll(item) != SecretAnswer::absent) return false;

    const Attributes attributes = attributesOf(item);
    const Value secret{
        secret_value_new(value.data(), static_cast<gssize>(value.size()), "text/plain"),
        secret_value_unref};
    const auto store = [&](auto... end) {
        secret_service_store(service_.get(), &schema(), attributes.get(), SECRET_COLLECTION_DEFAULT,
                             item.label.c_str(), secret.get(), end...);
    };
    // Storing creates a missing collection, for which the user is asked for a password.
    const bool missing = collection == DefaultCollection::missing;
    const auto answer = missing ? askUser(store) : ask(store);
    return answer && secret_service_store_finish(service_.get(), answer.get(), nullptr);
}

} // namespace quillon
