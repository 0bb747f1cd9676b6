#include "update/windows/UpdateDialog.h"

#include "artwork/Brand.h"
#include "artwork/Mark.h"

#include <QDesktopServices>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillon {

namespace {

constexpr int markSize = 56;
constexpr int margin = 20;
constexpr int gap = 10;
constexpr int columnGap = 16;
constexpr double titleScale = 1.15;
constexpr int highestMessage = 220;
constexpr int lowestNotes = 160;

class MarkView : public QWidget {
public:
    MarkView() { setFixedSize(markSize, markSize); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter{this};
        painter.setRenderHint(QPainter::Antialiasing);
        paintMark(painter, rect(), palette().color(QPalette::WindowText), Brand::coral);
    }
};

class TextView : public QTextBrowser {
public:
    TextView() {
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
    QFont bold = title_->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * titleScale);
    title_->setFont(bold);
    title_->setFixedWidth(textWidth);
    text_->setMinimumWidth(textWidth);
    setTexts(title, text);

    column_->setSpacing(gap);
    column_->addWidget(title_);
    column_->addWidget(text_);
    auto* body = new QHBoxLayout;
    body->setSpacing(columnGap);
    body->addWidget(new MarkView, 0, Qt::AlignTop);
    body->addLayout(column_, 1);
    buttons_->addStretch(1);
    auto* whole = new QVBoxLayout{this};
    whole->setContentsMargins(margin, margin, margin, margin);
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
    column_->addWidget(content, stretch);
}

QPushButton* UpdateDialog::addButton(const QString& text, Place place,
                                     std::function<void()> pressed) {
    auto* button = new QPushButton{text};
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
    deleteLater();
}

void UpdateDialog::reject() {
    if (escape_) escape_->click();
}

QWidget* makeTextView(const QString& html, const QString& accessibleName) {
    auto* view = new TextView;
    view->setHtml(html);
    view->setMinimumHeight(lowestNotes);
    view->setAccessibleName(accessibleName);
    return view;
}

QWidget* makeMessageView(const QString& text) {
    auto* view = new TextView;
    view->setPlainText(text);
    view->setFrameShape(QFrame::NoFrame);
    view->viewport()->setAutoFillBackground(false);
    view->document()->setDocumentMargin(0);
    view->document()->setTextWidth(UpdateDialog::textWidth);
    view->setFixedWidth(UpdateDialog::textWidth);
    const int height = static_cast<int>(std::ceil(view->document()->size().height()));
    view->setFixedHeight(std::min(height, highestMessage));
    if (height <= highestMessage) view->setFocusPolicy(Qt::ClickFocus);
    view->setAccessibleName(text);
    return view;
}

} // namespace quillon
