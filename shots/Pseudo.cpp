#include "shots/Pseudo.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <string_view>

namespace quillon::test {

namespace {

constexpr double longer = 0.4;

constexpr std::u16string_view plain = u"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::u16string_view accented = u"áƀçðéƒĝĥíĵķļɱñóþɋŕšţúṽŵẋýžÁƁÇÐÉƑĜĤÍĴĶĻⱮÑÓÞɊŔŠŢÚṼŴẊÝŽ";
constexpr std::u16string_view vowels = u"áéíóúýÁÉÍÓÚÝ";

/// Matches what stays: tags and places.
const QRegularExpression& kept() {
    static const QRegularExpression expression{QStringLiteral("</?[a-zA-Z][^<>]*>|%L?[1-9n]")};
    return expression;
}

QChar withAccent(QChar letter) {
    const std::size_t at = plain.find(letter.unicode());
    return at == plain.npos ? letter : QChar{accented[at]};
}

bool isLetter(QChar character) {
    return plain.find(character.unicode()) != plain.npos;
}

/// Accents the letters. Repeats vowels, and counts them off `missing`, while that is positive.
QString accent(const QString& words, int& missing) {
    QString result;
    for (const QChar each : words) {
        const QChar letter = withAccent(each);
        result += letter;
        if (missing <= 0 || vowels.find(letter.unicode()) == vowels.npos) continue;
        result += letter.toLower();
        --missing;
    }
    return result;
}

} // namespace

QString pseudo(const QString& text) {
    const QString words = QString{text}.remove(kept());
    int missing = static_cast<int>(
        std::ceil(longer * static_cast<double>(std::ranges::count_if(words, isLetter))));
    QString result;
    qsizetype from = 0;
    for (auto match = kept().globalMatch(text); match.hasNext();) {
        const auto found = match.next();
        result += accent(text.mid(from, found.capturedStart() - from), missing);
        result += found.captured();
        from = found.capturedEnd();
    }
    result += accent(text.mid(from), missing);
    // If there were too few vowels, the last word grows.
    qsizetype end = result.size();
    while (end > 0 && accented.find(result[end - 1].unicode()) == accented.npos)
        --end;
    return result.insert(end, QString{std::max(0, end > 0 ? missing : 0), QChar{u'é'}});
}

bool isUntranslated(const QString& text) {
    return std::ranges::any_of(QString{text}.remove(kept()), isLetter);
}

QString PseudoTranslator::translate(const char* context, const char* text, const char* /*note*/,
                                    int /*count*/) const {
    // Qt interprets the texts of these contexts: the direction of writing and the names of keys.
    static const QList<QLatin1String> forQt{QLatin1String{"QGuiApplication"},
                                            QLatin1String{"QShortcut"}};
    return forQt.contains(QLatin1String{context}) ? QString{} : pseudo(QString::fromUtf8(text));
}

} // namespace quillon::test
