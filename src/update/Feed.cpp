#include "update/Feed.h"

#include "base/ThisMachine.h"
#include "update/Version.h"

#include <QUrl>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <charconv>

namespace quillon {

namespace {

constexpr QStringView ourNamespace = u"urn:dev.vostrel.quillon:update";

/// The deepest allowed element. An item's elements are on the fourth level; notes that were not
/// escaped may add some more.
constexpr int maximumDepth = 64;

struct TextField {
    QStringView nameSpace;
    QStringView name;
    std::string FeedItem::*field;
};

const std::array textFields{
    TextField{ourNamespace, u"version", &FeedItem::version},
    TextField{ourNamespace, u"shortVersion", &FeedItem::shortVersion},
    TextField{ourNamespace, u"minimumSystemVersion", &FeedItem::minimumSystemVersion},
    TextField{{}, u"description", &FeedItem::notes},
};

qint64 parseLength(const QString& text) {
    const std::string digits = text.trimmed().toStdString();
    qint64 length = 0;
    const char* end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, length);
    return result.ec == std::errc{} && result.ptr == end ? length : 0;
}

/// Whether the item has everything it needs.
bool isUsable(const FeedItem& item) {
    return !item.version.empty() && item.length > 0 && item.length <= maximumArchiveSize &&
           item.signature != Signature{} && isAllowedUrl(item.url);
}

/// Reads one feed from its first element to its end.
class FeedReader {
public:
    explicit FeedReader(const QByteArray& xml) : xml_{xml} { items_.emplace(); }

    std::optional<std::vector<FeedItem>> read() {
        // A document type is good for nothing here but to declare entities.
        while (!xml_.atEnd() && xml_.readNext() != QXmlStreamReader::StartElement) {
            if (xml_.isDTD()) return std::nullopt;
        }
        if (xml_.name() != u"rss" || xml_.hasError()) return std::nullopt;
        eachChild([this] {
            if (!is({}, u"channel")) return skip();
            eachChild([this] { is({}, u"item") ? readItem() : skip(); });
        });
        while (!xml_.atEnd())
            xml_.readNext();
        return xml_.hasError() ? std::nullopt : std::move(items_);
    }

private:
    [[nodiscard]] bool is(QStringView nameSpace, QStringView name) const {
        return xml_.namespaceUri() == nameSpace && xml_.name() == name;
    }

    /// Calls `action`, which consumes the element, for each child of the current element.
    template <typename Action>
    void eachChild(Action action) {
        while (xml_.readNextStartElement())
            action();
    }

    void readItem() {
        if (items_->size() >= maximumFeedItems) return xml_.raiseError();
        FeedItem item;
        eachChild([&] { readField(item); });
        if (item.shortVersion.empty()) item.shortVersion = item.version;
        if (!xml_.hasError() && isUsable(item)) items_->push_back(std::move(item));
    }

    void readField(FeedItem& item) {
        if (is({}, u"enclosure")) {
            readEnclosure(item);
            return skip();
        }
        for (const TextField& field : textFields) {
            if (!is(field.nameSpace, field.name)) continue;
            item.*field.field = text().trimmed().toStdString();
            return;
        }
        skip();
    }

    void readEnclosure(FeedItem& item) {
        const QXmlStreamAttributes attributes = xml_.attributes();
        item.url = attributes.value(QStringLiteral("url")).trimmed().toString().toStdString();
        item.length = parseLength(attributes.value(QStringLiteral("length")).toString());
        const auto signature =
            attributes.value(ourNamespace.toString(), QStringLiteral("edSignature"));
        item.signature = parseSignature(signature.toString().toStdString()).value_or(Signature{});
    }

    /// The text of the current element and its children.
    QString text() {
        QString text;
        walk([&] {
            if (xml_.isCharacters()) text += xml_.text();
        });
        return text;
    }

    void skip() {
        walk([] {});
    }

    /// Reads to the end of the current element, calling `action` for everything before it.
    template <typename Action>
    void walk(Action action) {
        for (int depth = 1; depth > 0 && !xml_.atEnd();) {
            xml_.readNext();
            if (xml_.isStartElement() && ++depth > maximumDepth) return xml_.raiseError();
            if (xml_.isEndElement()) --depth;
            if (depth > 0) action();
        }
    }

    QXmlStreamReader xml_;
    std::optional<std::vector<FeedItem>> items_;
};

/// False for bytes that must be encoded in an address, and that parsers disagree about.
bool isOrdinary(char byte) {
    return byte > ' ' && byte < 0x7f && byte != '\\';
}

} // namespace

std::optional<std::vector<FeedItem>> parseFeed(const QByteArray& xml) {
    return FeedReader{xml}.read();
}

const FeedItem* newestUpdate(const std::vector<FeedItem>& items, std::string_view currentVersion,
                             std::string_view systemVersion, std::string_view skippedVersion) {
    const FeedItem* newest = nullptr;
    for (const FeedItem& item : items) {
        const std::string_view least = newest ? std::string_view{newest->version} : currentVersion;
        if (std::is_lteq(compareVersions(item.version, least))) continue;
        if (!skippedVersion.empty() && std::is_lteq(compareVersions(item.version, skippedVersion)))
            continue;
        if (!item.minimumSystemVersion.empty() &&
            std::is_lt(compareVersions(systemVersion, item.minimumSystemVersion)))
            continue;
        newest = &item;
    }
    return newest;
}

bool isAllowedUrl(std::string_view text) {
    if (!std::all_of(text.begin(), text.end(), isOrdinary)) return false;
    const QUrl url{QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())),
                   QUrl::StrictMode};
    if (!url.isValid() || url.host().isEmpty()) return false;
    // QUrl does not report an empty user name ("https://@host"), so the text itself is searched.
    const std::string_view afterScheme = text.substr(text.find("//") + 2);
    const std::string_view authority = afterScheme.substr(0, afterScheme.find_first_of("/?#"));
    if (authority.find('@') != std::string_view::npos) return false;
    if (url.scheme() == u"https") return true;
    return url.scheme() == u"http" && isThisMachine(url.host().toStdString());
}

} // namespace quillon
