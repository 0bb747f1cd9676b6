#include "ui/controls/TextViews.h"

#include "base/ShownText.h"
#include "ui/controls/ScrollBar.h"

#include <QDesktopServices>
#include <QImage>
#include <QTextDocument>
#include <QUrl>

#include <algorithm>
#include <cmath>
#include <memory>

namespace quillon {
namespace {

/// The greatest height of a message, in points of the design.
constexpr double highestMessage = 260;
/// The longest message, in UTF-16 units: some pages, laid out in 10 ms.
constexpr qsizetype longestMessage = 10'000;

} // namespace

ReadOnlyText::ReadOnlyText() {
    setFrameShape(QFrame::NoFrame);
    useOwnScrollBars(*this);
    viewport()->setAutoFillBackground(false);
    setOpenLinks(false);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    connect(this, &QTextBrowser::anchorClicked, this, [](const QUrl& url) {
        if (url.scheme() == u"https") QDesktopServices::openUrl(url);
    });
}

void ReadOnlyText::setStructuredText(const QString& html) {
    html_ = html;
    // A document takes the colour of its links when it is read. Not every dark theme has a colour
    // for links, and the usual blue is illegible on it.
    const QColor link = theme().readable(palette().color(QPalette::Link));
    document()->setDefaultStyleSheet(
        QStringLiteral("a { color: %1 } h1, h2, h3 { font-size: medium; margin: 0 } "
                       "ul, ol { -qt-list-indent: 0; margin-left: 14px }")
            .arg(link.name()));
    setHtml(html);
}

int ReadOnlyText::heightFor(double width) const {
    // The view's own document has the width and the font of the screen only once the view shows.
    const std::unique_ptr<QTextDocument> copy{document()->clone()};
    copy->setDefaultFont(font());
    copy->setTextWidth(width);
    return static_cast<int>(std::ceil(copy->size().height()));
}

void ReadOnlyText::themeChanged() {
    Themed::themeChanged();
    if (!html_.isEmpty()) setStructuredText(html_);
}

QVariant ReadOnlyText::loadResource(int /*type*/, const QUrl& /*name*/) {
    return QImage{};
}

MessageText::MessageText(const QString& text, double width) : width_{width} {
    document()->setDocumentMargin(0);
    const QString message = shortened(text, longestMessage);
    setPlainText(message);
    setAccessibleName(message);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    fit();
}

void MessageText::themeChanged() {
    ReadOnlyText::themeChanged();
    fit();
}

void MessageText::fit() {
    QPalette colors = palette();
    colors.setColor(QPalette::Text, theme().color(Ink::secondary));
    if (colors != palette()) setPalette(colors);
    const int width = Theme::wholeLength(width_);
    const double height = heightFor(width);
    const double highest = Theme::length(highestMessage);
    // Keeps the text off the scroll bar.
    setViewportMargins(0, 0, height > highest ? Space::small : 0, 0);
    setVerticalScrollBarPolicy(height > highest ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setFocusPolicy(height > highest ? Qt::StrongFocus : Qt::ClickFocus);
    setFixedSize(width, static_cast<int>(std::min(height, highest)));
}

} // namespace quillon
