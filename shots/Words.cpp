#include "shots/Words.h"

#include "base/Translate.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace quillon::test {

namespace {

QHash<QString, QString>& words() {
    static QHash<QString, QString> all;
    return all;
}

/// Reads the catalogue's source, since a compiled one gives no text without its context.
void learn(QFile& file) {
    QXmlStreamReader reader{&file};
    QString source;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) continue;
        if (reader.name() == QLatin1String{"source"}) {
            source = reader.readElementText();
        } else if (reader.name() == QLatin1String{"translation"} &&
                   !reader.attributes().hasAttribute(QLatin1String{"type"})) {
            const QString text =
                withoutKey(reader.readElementText(QXmlStreamReader::IncludeChildElements));
            words().insert(source, text);
            // Where a text with a key is the same as one without, that one counts.
            if (!words().contains(withoutKey(source))) words().insert(withoutKey(source), text);
        }
    }
}

} // namespace

QString withoutKey(QString text) {
    static const QRegularExpression mark{QStringLiteral("&(?=\\S)")};
    return text.remove(mark);
}

void speak(const QString& language) {
    if (language.isEmpty()) return;
    QFile file{QStringLiteral(QUILLON_TRANSLATIONS "/quillon_%1.ts").arg(language)};
    if (!file.open(QFile::ReadOnly) || !loadCatalogue(QStringLiteral(QUILLON_CATALOGUES), language))
        qFatal("there is no catalogue %s", qUtf8Printable(language));
    words().clear();
    learn(file);
}

QString spoken(const QString& text) {
    return words().value(text, withoutKey(text));
}

} // namespace quillon::test
