#include "platform/linux/shortcut/DesktopSettings.h"

#include "base/Environment.h"

#include <glib.h>

#include <string_view>

namespace quillon {

namespace {

struct FreeVariant {
    void operator()(GVariant* variant) const { g_variant_unref(variant); }
};
using Variant = std::unique_ptr<GVariant, FreeVariant>;

struct FreeStrings {
    void operator()(gchar** strings) const { g_strfreev(strings); }
};

/// Whether GIO takes it as the path of a group.
bool isPath(std::string_view path) {
    return path.starts_with('/') && path.ends_with('/') && path.find("//") == path.npos;
}

/// By default, GLib ends the program when the session bus ends, over which the settings come.
void outliveBus() {
    GDBusConnection* const bus =
        hasSessionBus() ? gio::g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr) : nullptr;
    if (!bus) return;
    gio::g_dbus_connection_set_exit_on_close(bus, FALSE);
    gio::g_object_unref(bus);
}

} // namespace

std::optional<DesktopSettings> DesktopSettings::open(const char* schema, const char* path) {
    if (path && !isPath(path)) return std::nullopt;
    if (!gio::library.load()) return std::nullopt;
    GSettingsSchemaSource* const source = gio::g_settings_schema_source_get_default();
    GSettingsSchema* const found =
        source ? gio::g_settings_schema_source_lookup(source, schema, TRUE) : nullptr;
    if (!found) return std::nullopt;
    outliveBus();
    return DesktopSettings{found, path};
}

DesktopSettings::DesktopSettings(GSettingsSchema* schema, const char* path)
    : schema_{schema},
      settings_{gio::g_settings_new_full(schema, nullptr, path)} {}

bool DesktopSettings::has(const char* key) const {
    return gio::g_settings_schema_has_key(schema_.get(), key);
}

bool DesktopSettings::holds(const char* key, const GVariantType* type) const {
    if (!has(key)) return false;
    GSettingsSchemaKey* const found = gio::g_settings_schema_get_key(schema_.get(), key);
    const bool same = g_variant_type_equal(gio::g_settings_schema_key_get_value_type(found), type);
    gio::g_settings_schema_key_unref(found);
    return same;
}

std::string DesktopSettings::text(const char* key) const {
    if (!holds(key, G_VARIANT_TYPE_STRING)) return {};
    const Variant value{gio::g_settings_get_value(settings_.get(), key)};
    return g_variant_get_string(value.get(), nullptr);
}

std::vector<std::string> DesktopSettings::texts(const char* key) const {
    if (!holds(key, G_VARIANT_TYPE_STRING_ARRAY)) return {};
    const Variant value{gio::g_settings_get_value(settings_.get(), key)};
    std::vector<std::string> texts;
    for (gsize i = 0; i < g_variant_n_children(value.get()); ++i) {
        const Variant child{g_variant_get_child_value(value.get(), i)};
        texts.emplace_back(g_variant_get_string(child.get(), nullptr));
    }
    return texts;
}

std::vector<std::vector<std::string>> DesktopSettings::allTexts() const {
    const std::unique_ptr<gchar*, FreeStrings> keys{
        gio::g_settings_schema_list_keys(schema_.get())};
    std::vector<std::vector<std::string>> all;
    for (gchar** key = keys.get(); *key; ++key)
        all.push_back(texts(*key));
    return all;
}

void DesktopSettings::setText(const char* key, const std::string& text) const {
    gio::g_settings_set_value(settings_.get(), key, g_variant_new_string(text.c_str()));
}

void DesktopSettings::setTexts(const char* key, const std::vector<std::string>& texts) const {
    std::vector<const char*> strings;
    strings.reserve(texts.size());
    for (const std::string& each : texts)
        strings.push_back(each.c_str());
    gio::g_settings_set_value(
        settings_.get(), key,
        g_variant_new_strv(strings.data(), static_cast<gssize>(strings.size())));
}

void DesktopSettings::reset(const char* key) const {
    gio::g_settings_reset(settings_.get(), key);
}

void DesktopSettings::sync() {
    if (gio::library.load()) gio::g_settings_sync();
}

} // namespace quillon
