#include "ui/views/TextViews.h"

#include "ui/views/Colors.h"

#include <QDesktopServices>
#include <QImage>
#include <QTextDocument>
#include <QUrl>

#include <algorithm>
#include <cmath>

namespace quillon {
namespace {

/// In points of the design.
constexpr double highestMessage = 260;

} // namespace

ReadOnlyText::ReadOnlyText(QWidget* parent) : Themed{parent} {
    setOpenLinks(false);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    connect(this, &QTextBrowser::anchorClicked, this, [](const QUrl& url) {
        if (url.scheme() == u"https") QDesktopServices::openUrl(url);
    });
}

void ReadOnlyText::setStructuredText(const QString& html) {
    html_ = html;
    // The colours of links are part of a document from when it is read. Not every dark theme has
    // one for them, and the usual blue is lost on it.
    const QColor link =
        legible(palette().color(QPalette::Link), palette().color(QPalette::Base), textContrast);
    document()->setDefaultStyleSheet(QStringLiteral("a { color: %1 }").arg(link.name()));
    setHtml(html);
}

void ReadOnlyText::themeChanged() {
    Themed::themeChanged();
    if (!html_.isEmpty()) setStructuredText(html_);
}

QVariant ReadOnlyText::loadResource(int /*type*/, const QUrl& /*name*/) {
    return QImage{};
}

MessageText::MessageText(const QString& text, double width, QWidget* parent)
    : ReadOnlyText{parent},
      width_{width} {
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(0);
    setPlainText(text);
    setAccessibleName(text);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    fit();
}

void MessageText::themeChanged() {
    ReadOnlyText::themeChanged();
    fit();
}

/// A document of its own tells the height: the view's takes the width and the font of what is on
/// screen, which the view may not be yet.
void MessageText::fit() {
    QPalette colors = palette();
    colors.setColor(QPalette::Text, theme().color(Ink::secondary));
    if (colors != palette()) setPalette(colors);
    const double width = std::ceil(Theme::length(width_));
    QTextDocument document{toPlainText()};
    document.setDocumentMargin(0);
    document.setDefaultFont(font());
    QTextOption option;
    option.setWrapMode(wordWrapMode());
    document.setDefaultTextOption(option);
    document.setTextWidth(width);
    const double height = std::ceil(document.size().height());
    const double highest = Theme::length(highestMessage);
    setVerticalScrollBarPolicy(height > highest ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setFocusPolicy(height > highest ? Qt::StrongFocus : Qt::ClickFocus);
    setFixedSize(static_cast<int>(width), static_cast<int>(std::min(height, highest)));
}

} // namespace quillon
