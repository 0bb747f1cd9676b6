#pragma once

#include "platform/UserDefaults.h"

#include <QSettings>

#include <filesystem>

namespace quillon {

/// Preferences in one INI file, shared with other processes of the program and readable by this
/// user alone.
class QtUserDefaults final : public UserDefaults {
public:
    explicit QtUserDefaults(const std::filesystem::path& file);

    [[nodiscard]] std::optional<std::string> text(std::string_view key) const override;
    void setText(std::string_view key, std::string_view value) override;
    [[nodiscard]] std::optional<bool> flag(std::string_view key) const override;
    void setFlag(std::string_view key, bool value) override;
    void remove(std::string_view key) override;
    void removeAll() override;

private:
    void set(std::string_view key, const QVariant& value);

    std::filesystem::path file_;
    QSettings settings_;
};

} // namespace quillon
