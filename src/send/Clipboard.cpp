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

#include <functional>
#include <iterator>
#include <utility>

namespace quillon::Clipboard {

namespace {

using Names = std::vector<std::string>;
using Paths = std::vector<std::filesystem::path>;

/// A content of this size in bytes takes about a millisecond to look through; a longer one goes to
/// the thread pool.
constexpr qsizetype longContent = 100'000;

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

/// The decoding's result, from another thread if the bytes are many.
template <typename T>
QFuture<std::optional<T>> decoded(QByteArray bytes,
                                  std::function<std::optional<T>(const QByteArray&)> decode) {
    if (bytes.size() < longContent) return QtFuture::makeReadyFuture(decode(bytes));
    return QtConcurrent::run(std::move(decode), std::move(bytes));
}

QFuture<std::optional<std::string>> decodeText(QByteArray text, std::string format) {
    return decoded<std::string>(std::move(text), [format](const QByteArray& bytes) {
        return std::optional{ClipboardFormats::decodedText(bytes, format)};
    });
}

QFuture<bool> isBlank(const std::string& text) {
    const auto nothingIn = [](std::string_view part) { return trimmed(part).empty(); };
    const auto start = std::string_view{text}.substr(0, longContent);
    if (start.size() == text.size() || !nothingIn(start))
        return QtFuture::makeReadyFuture(nothingIn(start));
    return QtConcurrent::run(nothingIn, text);
}

/// As PNG.
QFuture<std::optional<QByteArray>> decodeImage(QByteArray bitmap, std::string format) {
    if (!ClipboardFormats::isPng(format)) return convertToPng(std::move(bitmap));
    return decoded<QByteArray>(std::move(bitmap), [](const QByteArray& png) {
        return png.isEmpty() || isCutPng(png) ? std::nullopt : std::optional{png};
    });
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

ClipEmpty nothingFrom(const Pasteboard& pasteboard) {
    return {.outOfReach = pasteboard.way() == ClipboardWay::none};
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
    if (!text) co_return nothingFrom(pasteboard);
    const QFuture<bool> looking = isBlank(*text);
    const bool blank = co_await looking;
    if (blank) co_return ClipEmpty{};
    co_return ClipText{*std::move(text)};
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

Summary summaryOf(const ClipEmpty& empty) {
    if (!empty.outOfReach) return {"clipboard", translate("Clipboard", "The clipboard is empty")};
    return {"exclamationmark.circle",
            translate("Clipboard", "The clipboard is out of reach. This desktop offers neither "
                                   "data-control nor Xwayland.")};
}

std::vector<SendItem> itemsOf(ClipFiles files) {
    return {std::make_move_iterator(files.paths.begin()),
            std::make_move_iterator(files.paths.end())};
}

std::vector<SendItem> itemsOf(ClipEmpty /*empty*/) {
    return {};
}

template <typename T>
std::vector<SendItem> itemsOf(T single) {
    return {SendItem{std::move(single)}};
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

std::vector<SendItem> items(ClipContent content) {
    return std::visit([](auto& kind) { return itemsOf(std::move(kind)); }, content);
}

Summary summary(const ClipContent& content) {
    return std::visit([](const auto& kind) { return summaryOf(kind); }, content);
}

} // namespace quillon::Clipboard
