#pragma once

#include "platform/linux/shortcut/LibGio.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// One group of GNOME's settings (GSettings). Reading and writing may take milliseconds, and one
/// object is used by one thread.
class DesktopSettings {
public:
    /// `path` is that of a group of which there are several. None where the desktop has no such
    /// settings, for which GIO would end the process, or the path is malformed.
    [[nodiscard]] static std::optional<DesktopSettings> open(const char* schema,
                                                             const char* path = nullptr);

    [[nodiscard]] bool has(const char* key) const;
    /// Empty where there is no such key or it holds no text.
    [[nodiscard]] std::string text(const char* key) const;
    /// Empty where there is no such key or it holds no list of texts.
    [[nodiscard]] std::vector<std::string> texts(const char* key) const;
    /// All lists of texts, each under its key; for a schema of key bindings, those of the desktop.
    [[nodiscard]] std::vector<std::vector<std::string>> allTexts() const;

    // The key is one that it has.
    void setText(const char* key, const std::string& text) const;
    void setTexts(const char* key, const std::vector<std::string>& texts) const;
    void reset(const char* key) const;

    /// Waits until everything that was set has been written.
    static void sync();

private:
    struct FreeSchema {
        void operator()(GSettingsSchema* schema) const { gio::g_settings_schema_unref(schema); }
    };
    struct FreeSettings {
        void operator()(GSettings* settings) const { gio::g_object_unref(settings); }
    };

    DesktopSettings(GSettingsSchema* schema, const char* path);
    [[nodiscard]] bool holds(const char* key, const GVariantType* type) const;

    std::unique_ptr<GSettingsSchema, FreeSchema> schema_;
    std::unique_ptr<GSettings, FreeSettings> settings_;
};

} // namespace quillon
