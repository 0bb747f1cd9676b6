#include "send/Dropped.h"

#include "base/Text.h"
#include "send/ClipContent.h"
#include "send/Clipboard.h"
#include "send/ClipboardFormats.h"
#include "send/PngStructure.h"

#include <QMimeData>
#include <QSysInfo>

namespace quillon {

namespace {

constexpr QLatin1String uriList{"text/uri-list"};
constexpr QLatin1String png{"image/png"};

std::vector<std::filesystem::path> filesOf(const QMimeData& data) {
    return ClipboardFormats::decodedPaths(data.data(uriList),
                                          QSysInfo::machineHostName().toStdString());
}

ClipContent contentOf(const QMimeData& data) {
    if (auto files = filesOf(data); !files.empty()) return ClipFiles{std::move(files)};
    QByteArray image = data.data(png);
    if (!pngSize(image).isEmpty() && !isCutPng(image))
        return ClipImage{std::move(image), std::nullopt};
    std::string text = data.text().toStdString();
    if (trimmed(text).empty()) return ClipEmpty{};
    return ClipText{std::move(text)};
}

} // namespace

std::vector<SendItem> droppedItems(const QMimeData& data) {
    return Clipboard::items(contentOf(data));
}

bool canBeDropped(const QMimeData& data) {
    return data.hasText() || data.hasFormat(png) || !filesOf(data).empty();
}

} // namespace quillon
