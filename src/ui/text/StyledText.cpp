#include "ui/text/StyledText.h"

#include "base/ShownText.h"

#include <QStringList>

namespace quillon {

StyledText::StyledText(const QString& plain) {
    if (!plain.isEmpty()) runs_.push_back({.text = shortened(plain)});
}

QString StyledText::plain() const {
    QString text;
    for (const Run& run : runs_)
        text += run.text;
    return text;
}

StyledText markedUp(const QString& text) {
    const QString stars = QStringLiteral("**");
    QStringList pieces = text.split(stars);
    // Stars without a second pair after them are part of the text.
    if (pieces.size() % 2 == 0) {
        const QString rest = stars + pieces.takeLast();
        pieces.last() += rest;
    }
    std::vector<StyledText::Run> runs;
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        if (!pieces[i].isEmpty()) runs.push_back({.text = pieces[i], .bold = i % 2 == 1});
    }
    return StyledText{std::move(runs)};
}

} // namespace quillon
