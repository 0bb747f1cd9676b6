#include "ui/updates/ReleaseNotes.h"

#include <QRegularExpression>
#include <QSet>
#include <QTextDocument>

namespace quillon {

namespace {

/// The longest notes, in UTF-16 units: more than any version needs, and laid out in 10 ms.
constexpr qsizetype maximumNotes = 10'000;
/// The deepest nesting of tags: deeper ones make the layout slow, and no text needs them.
constexpr int maximumDepth = 12;

bool isStructure(const QString& name) {
    static const QSet<QString> names{
        QStringLiteral("p"),  QStringLiteral("h1"),     QStringLiteral("h2"),
        QStringLiteral("h3"), QStringLiteral("h4"),     QStringLiteral("ul"),
        QStringLiteral("ol"), QStringLiteral("li"),     QStringLiteral("b"),
        QStringLiteral("i"),  QStringLiteral("strong"), QStringLiteral("em"),
        QStringLiteral("br"), QStringLiteral("code"),   QStringLiteral("pre")};
    return names.contains(name);
}

/// Removes comments, and elements that are not text together with their contents.
QString withoutHidden(QString html) {
    static const QRegularExpression hidden{
        QStringLiteral(R"(<!--.*?(-->|$)|<(script|style|head|title)\b.*?(</\2\s*>|$))"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption};
    return html.remove(hidden);
}

/// Reduces tags, one after the other, to what a structured text needs.
class Tags {
public:
    /// The tag without its attributes, or nothing.
    QString keep(const QString& name, bool closes, const QString& attributes) {
        if (name == QLatin1String{"a"}) return link(closes, attributes);
        if (!isStructure(name)) return {};
        if (name == QLatin1String{"br"}) return QStringLiteral("<br>");
        if (!closes && depth_ >= maximumDepth) return {};
        depth_ += closes ? (depth_ > 0 ? -1 : 0) : 1;
        return (closes ? QStringLiteral("</") : QStringLiteral("<")) + name + QLatin1Char{'>'};
    }

private:
    static QString link(bool closes, const QString& attributes) {
        static const QRegularExpression address{
            QStringLiteral(R"(\bhref\s*=\s*["']?(https://[^\s"'<>]+))"),
            QRegularExpression::CaseInsensitiveOption};
        if (closes) return QStringLiteral("</a>");
        const auto found = address.match(attributes);
        return found.hasMatch() ? QStringLiteral("<a href=\"%1\">").arg(found.captured(1))
                                : QStringLiteral("<a>");
    }

    int depth_ = 0;
};

/// Escapes the text between two tags, where "<" does not begin a tag.
QString between(QString text) {
    return text.replace(QLatin1Char{'<'}, QLatin1String{"&lt;"});
}

} // namespace

QString releaseNotesHtml(const std::string& notes) {
    const QString text = QString::fromStdString(notes).left(maximumNotes).trimmed();
    if (!Qt::mightBeRichText(text)) return Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
    static const QRegularExpression tag{
        QStringLiteral(R"(<(/?)([A-Za-z][A-Za-z0-9]*)((?:[^<>"']|"[^"]*"|'[^']*')*)>)")};
    const QString html = withoutHidden(text);
    QString structured;
    Tags tags;
    qsizetype end = 0;
    for (auto match = tag.globalMatch(html); match.hasNext();) {
        const auto found = match.next();
        structured += between(html.mid(end, found.capturedStart() - end));
        structured +=
            tags.keep(found.captured(2).toLower(), !found.captured(1).isEmpty(), found.captured(3));
        end = found.capturedEnd();
    }
    // The rest may end with a tag that was cut off.
    const QString rest = html.mid(end);
    return structured + rest.left(rest.indexOf(QLatin1Char{'<'}));
}

} // namespace quillon
