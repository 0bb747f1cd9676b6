#include "ui/GivenItems.h"

#include "base/Text.h"
#include "send/ClipboardFormats.h"

#include <QSysInfo>

namespace quillon {

namespace {

std::vector<std::filesystem::path> pathsOf(const QString& file) {
    if (file.startsWith(QLatin1Char{'/'})) return {file.toStdString()};
    return ClipboardFormats::decodedPaths(file.toUtf8(), QSysInfo::machineHostName().toStdString());
}

} // namespace

std::optional<std::vector<SendItem>> givenItems(const QStringList& files, const QString& text) {
    std::vector<SendItem> items;
    for (const QString& file : files) {
        std::vector<std::filesystem::path> paths = pathsOf(file);
        if (paths.size() != 1) return std::nullopt;
        items.emplace_back(std::move(paths.front()));
    }
    std::string words = text.toStdString();
    if (!trimmed(words).empty()) items.emplace_back(ClipText{std::move(words)});
    return items.empty() ? std::nullopt : std::optional{std::move(items)};
}

} // namespace quillon
