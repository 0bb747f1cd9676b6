#include "send/Clipboard.h"

#include "base/Text.h"
#include "base/Translate.h"
#include "platform/Pasteboard.h"
#include "send/ClipboardFormats.h"
#include "send/FileKind.h"
#include "send/PngConversion.h"
#include "send/PngStructure.h"

#include <QCoroFuture>
#include <QSysInfo>
#include <QtConcurrentRun>

#include <utility>

namespace quillon::Clipboard {

namespace {

using Names = std::vector<std::string>;
using Paths = std::vector<std::filesystem::path>;

/// A text of this size in bytes takes about a millisecond to decode; a longer one is decoded on the
/// thread pool.
constexpr qsizetype longText = 100'000;

/// How often a clipboard is read that changes each time while it is being read.
constexpr int maximumLooks = 3;

QCoro::Task<std::optional<QByteArray>> bytesOf(Pasteboard& pasteboard, std::string format) {
    const QFuture<std::optional<QByteArray>> answer = pasteboard.data(std::move(format));
    co_return co_await answer;
}

QCoro::Task<Paths> readFiles(Pasteboard& pasteboard, Names offered) {
    const std::string machine = QSysInfo::machineHostName().toStdString();
    for (const std::string& format : ClipboardFormats::fileLists(offered)) {
        const auto list = co_await bytesOf(pasteboard, format);
        if (!list) continue;
        Paths paths = ClipboardFormats::decodedPaths(*list, machine);
        if (!paths.empty()) co_return paths;
    }
    co_return Paths{};
}

QCoro::Task<std::optional<std::string>> readText(Pasteboard& pasteboard, Names offered) {
    const auto format = ClipboardFormats::text(offered);
    if (!format) co_return std::nullopt;
    const auto text = co_await bytesOf(pasteboard, format->name);
    if (!text) co_return std::nullopt;
    if (text->size() < longText) co_return ClipboardFormats::decodedText(*text, format->coding);
    const QFuture<std::string> decoded =
        QtConcurrent::run(&ClipboardFormats::decodedText, *text, format->coding);
    co_return co_await decoded;
}

/// As PNG.
QCoro::Task<std::optional<QByteArray>> readImage(Pasteboard& pasteboard, Names offered) {
    if (const auto format = ClipboardFormats::png(offered)) {
        const auto png = co_await bytesOf(pasteboard, *format);
        if (png && !png->isEmpty() && !isCutPng(*png)) co_return png;
    }
    for (const std::string& format : ClipboardFormats::otherBitmaps(offered)) {
        const auto bitmap = co_await bytesOf(pasteboard, format);
        if (!bitmap) continue;
        const QFuture<std::optional<QByteArray>> conversion = convertToPng(*bitmap);
        auto png = co_await conversion;
        if (png) co_return png;
    }
    co_return std::nullopt;
}

QCoro::Task<ClipContent> look(Pasteboard& pasteboard) {
    const QFuture<Names> answer = pasteboard.formats();
    const Names offered = co_await answer;
    Paths paths = co_await readFiles(pasteboard, offered);
    if (!paths.empty()) co_return ClipFiles{std::move(paths)};
    std::optional<std::string> text = co_await readText(pasteboard, offered);
    std::optional<QByteArray> png = co_await readImage(pasteboard, offered);
    if (png) co_return ClipImage{std::move(*png), std::move(text)};
    if (text && !trimmed(*text).empty()) co_return ClipText{std::move(*text)};
    co_return ClipEmpty{};
}

Summary summaryOf(const ClipFiles& files) {
    if (files.paths.size() != 1) {
        const int count = static_cast<int>(files.paths.size());
        return {"doc.on.doc", translate("Clipboard", "%n files", nullptr, count)};
    }
    return {"doc", validUtf8(lastComponent(files.paths.front()).native())};
}

Summary summaryOf(const ClipImage& image) {
    const QSize size = pngSize(image.png);
    if (size.isEmpty()) return {"photo", translate("Clipboard", "Image")};
    return {"photo", filled(translate("Clipboard", "Image · %1×%2", "width and height in pixels"),
                            {std::to_string(size.width()), std::to_string(size.height())})};
}

Summary summaryOf(const ClipText& text) {
    std::string line{trimmedSpaces(firstLine(text.text))};
    return {"text.alignleft", filled(translate("Clipboard", "“%1”", "a copied text"), {line})};
}

Summary summaryOf(const ClipEmpty& /*empty*/) {
    return {"clipboard", translate("Clipboard", "The clipboard is empty")};
}

} // namespace

QCoro::Task<ClipContent> read(Pasteboard& pasteboard) {
    for (int looks = 1;; ++looks) {
        const auto before = pasteboard.changeCount();
        ClipContent content = co_await look(pasteboard);
        // When the owner has changed meanwhile, formats and data may not belong together.
        const bool changed = pasteboard.changeCount() != before;
        if (!changed || looks == maximumLooks) co_return content;
    }
}

Summary summary(const ClipContent& content) {
    return std::visit([](const auto& kind) { return summaryOf(kind); }, content);
}

} // namespace quillon::Clipboard
