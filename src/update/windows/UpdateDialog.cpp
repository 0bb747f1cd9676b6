#include "update/windows/UpdateDialog.h"

#include "artwork/Palette.h"
#include "ui/views/BrandViews.h"
#include "ui/views/Buttons.h"
#include "ui/views/View.h"

#include <QDesktopServices>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTextOption>
#include <QUrl>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillon {

namespace {

constexpr double iconSize = 56;
constexpr int gap = Space::small;
constexpr int columnGap = Space::medium;
constexpr TextStyle titleStyle{15, QFont::Bold};
constexpr int highestMessage = 220;
constexpr int lowestNotes = 160;

/// The ground that a text of several paragraphs stands on.
class TextGround : public View {
public:
    explicit TextGround(QWidget* text) {
        auto* column = new QVBoxLayout{this};
        column->setContentsMargins(Space::small, Space::small, Space::small, Space::small);
        column->addWidget(text);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter{this};
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(theme().separator());
        painter.setBrush(theme().cardFill());
        painter.drawRoundedRect(QRectF{rect()}.adjusted(0.5, 0.5, -0.5, -0.5), Space::cardRadius,
                                Space::cardRadius);
    }
};

class TextView : public QTextBrowser {
public:
    TextView() {
        setFrameShape(QFrame::NoFrame);
        viewport()->setAutoFillBackground(false);
        setOpenLinks(false);
        setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        connect(this, &QTextBrowser::anchorClicked, this, [](const QUrl& url) {
            if (url.scheme() == u"https") QDesktopServices::openUrl(url);
        });
    }

protected:
    /// Whatever a document names stays where it is.
    QVariant loadResource(int /*type*/, const QUrl& /*name*/) override { return QImage{}; }
};

/// How high the view must be to show all of the text. A document of its own tells: the view's takes
/// the width and the font of what is on screen, which the view is not yet.
int heightOf(const QString& text, const TextView& view) {
    view.ensurePolished();
    QTextDocument document{text};
    document.setDocumentMargin(0);
    document.setDefaultFont(view.font());
    QTextOption option;
    option.setWrapMode(view.wordWrapMode());
    document.setDefaultTextOption(option);
    document.setTextWidth(UpdateDialog::textWidth);
    return static_cast<int>(std::ceil(document.size().height()));
}

QLabel* makeLabel() {
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

UpdateDialog::UpdateDialog(const QString& title, const QString& text)
    : title_{makeLabel()},
      text_{makeLabel()},
      column_{new QVBoxLayout},
      buttons_{new QHBoxLayout} {
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowTitle(tr("Software Update"));
    title_->setFont(Theme::font(titleStyle));
    title_->setFixedWidth(textWidth);
    text_->setMinimumWidth(textWidth);
    setTexts(title, text);

    column_->setSpacing(gap);
    column_->addWidget(title_);
    column_->addWidget(text_);
    column_->addStretch(0); // keeps the texts together where there is room to spare
    auto* body = new QHBoxLayout;
    body->setSpacing(columnGap);
    body->addWidget(new AppIconView{iconSize}, 0, Qt::AlignTop);
    body->addLayout(column_, 1);
    buttons_->setSpacing(Space::small);
    buttons_->addStretch(1);
    auto* whole = new QVBoxLayout{this};
    whole->setContentsMargins(Space::large, Space::large, Space::large, Space::large);
    whole->setSpacing(columnGap);
    whole->addLayout(body, 1);
    whole->addLayout(buttons_);
}

void UpdateDialog::setTexts(const QString& title, const QString& text) {
    if (title_->text() != title) title_->setText(title);
    text_->setText(text);
    text_->setVisible(!text.isEmpty());
    setAccessibleName(title);
    setAccessibleDescription(text);
}

void UpdateDialog::addContent(QWidget* content, int stretch) {
    column_->insertWidget(column_->count() - 1, content, stretch);
}

QPushButton* UpdateDialog::addButton(const QString& text, Place place,
                                     std::function<void()> pressed) {
    const ButtonKind kind = place == Place::primary ? ButtonKind::prominent : ButtonKind::bordered;
    auto* button = new TextButton{text, {}, {.kind = kind}};
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, pressed = std::move(pressed)] {
        leave();
        if (pressed) pressed();
    });
    switch (place) {
    case Place::primary:
        buttons_->addWidget(button);
        button->setDefault(true);
        button->setFocus();
        break;
    case Place::secondary:
        buttons_->insertWidget(apart_ + 1, button);
        break;
    case Place::apart:
        buttons_->insertWidget(apart_++, button);
        break;
    }
    return button;
}

void UpdateDialog::leave() {
    hide();
    // The buttons hold the answers that are being waited for: those must not wait for the deletion.
    for (QPushButton* button : findChildren<QPushButton*>())
        disconnect(button, nullptr, this, nullptr);
    deleteLater();
}

void UpdateDialog::reject() {
    if (escape_) escape_->click();
}

QWidget* makeTextView(const QString& html, const QString& accessibleName) {
    auto* view = new TextView;
    // Not every theme has a colour for links that can be read.
    const QColor link = Theme{*view}.readable(Palette::blue);
    view->document()->setDefaultStyleSheet(
        QStringLiteral("a { color: %1 } h1, h2, h3 { font-size: "
                       "medium; margin: 0 } ul, ol { -qt-list-indent: 0; margin-left: 14px }")
            .arg(link.name()));
    view->document()->setDocumentMargin(Space::tight);
    view->setHtml(html);
    view->setMinimumHeight(lowestNotes);
    view->setAccessibleName(accessibleName);
    return new TextGround{view};
}

QWidget* makeMessageView(const QString& text) {
    auto* view = new TextView;
    view->document()->setDocumentMargin(0);
    view->setPlainText(text);
    view->setAccessibleName(text);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int height = heightOf(text, *view);
    if (height <= highestMessage) view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setFixedSize(UpdateDialog::textWidth, std::min(height, highestMessage));
    return view;
}

} // namespace quillon
