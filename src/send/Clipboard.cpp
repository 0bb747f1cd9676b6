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

// Each makes something of the bytes that the owner gave in a format; none when they hold nothing of
// the kind.

QFuture<std::optional<Paths>> decodeFiles(QByteArray list, std::string /*format*/) {
    const std::string machine = QSysInfo::machineHostName().toStdString();
    Paths paths = ClipboardFormats::decodedPaths(list, machine);
    return QtFuture::makeReadyFuture(paths.empty() ? std::nullopt
                                                   : std::optional{std::move(paths)});
}

QFuture<std::optional<std::string>> decodeText(QByteArray text, std::string format) {
    const auto decode = [](const QByteArray& bytes, const std::string& name) {
        return std::optional{ClipboardFormats::decodedText(bytes, name)};
    };
    if (text.size() < longText) return QtFuture::makeReadyFuture(decode(text, format));
    return QtConcurrent::run(decode, std::move(text), std::move(format));
}

/// As PNG.
QFuture<std::optional<QByteArray>> decodeImage(QByteArray bitmap, std::string format) {
    if (!ClipboardFormats::isPng(format)) return convertToPng(std::move(bitmap));
    return QtFuture::makeReadyFuture(
        bitmap.isEmpty() || isCutPng(bitmap) ? std::nullopt : std::optional{std::move(bitmap)});
}

/// Asks for the content in one format of the kind after another until one can be used: an owner may
/// refuse what it offers, or give what cannot be read.
template <typename T>
QCoro::Task<std::optional<T>> readFirst(Pasteboard& pasteboard, Names formats,
                                        QFuture<std::optional<T>> (*decode)(QByteArray,
                                                                            std::string)) {
    for (const std::string& format : formats) {
        const QFuture<std::optional<QByteArray>> answer = pasteboard.data(format);
        const std::optional<QByteArray> bytes = co_await answer;
        if (!bytes) continue;
        const QFuture<std::optional<T>> decoding = decode(*bytes, format);
        std::optional<T> content = co_await decoding;
        if (content) co_return content;
    }
    co_return std::nullopt;
}

QCoro::Task<ClipContent> look(Pasteboard& pasteboard) {
    using ClipboardFormats::formatsOf;
    using ClipboardFormats::Kind;
    const QFuture<Names> answer = pasteboard.formats();
    const Names offered = co_await answer;
    auto paths = co_await readFirst(pasteboard, formatsOf(Kind::files, offered), decodeFiles);
    if (paths) co_return ClipFiles{*std::move(paths)};
    auto text = co_await readFirst(pasteboard, formatsOf(Kind::text, offered), decodeText);
    auto png = co_await readFirst(pasteboard, formatsOf(Kind::image, offered), decodeImage);
    if (png) co_return ClipImage{*std::move(png), std::move(text)};
    if (text && !trimmed(*text).empty()) co_return ClipText{*std::move(text)};
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
