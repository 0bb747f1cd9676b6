#include "ui/controls/SegmentedPicker.h"

#include "artwork/Colors.h"

#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QRadioButton>

#include <algorithm>

namespace quillon {
namespace {

constexpr int troughMargin = 2;
constexpr double segmentRadius = Space::controlRadius - troughMargin;
constexpr double besideText = 10;
constexpr double aboveText = 3;
constexpr double leastHeight = 24;

} // namespace

/// One of the choices.
class Segment : public Themed<QRadioButton> {
public:
    using Themed::Themed;

    [[nodiscard]] QSize sizeHint() const override {
        const QFontMetricsF metrics{Theme::font(Text::body.semibold())};
        const double width = metrics.size(Qt::TextShowMnemonic, text()).width() + 2 * besideText;
        const double height =
            std::max(Theme::length(leastHeight), metrics.height() + 2 * aboveText);
        return wholeSize(width, height);
    }

    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    [[nodiscard]] bool hitButton(const QPoint& position) const override {
        return rect().contains(position);
    }

    void keyPressEvent(QKeyEvent* event) override {
        const int step = stepOf(event->key());
        if (step == 0) return Themed::keyPressEvent(event);
        const auto all = parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly);
        const qsizetype next = all.indexOf(this) + step;
        if (next < 0 || next >= all.size()) return;
        all[next]->setFocus(Qt::TabFocusReason);
        all[next]->setChecked(true);
    }

    void paintEvent(QPaintEvent* /*event*/) override {
        const Theme theme = this->theme();
        QPainter painter{this};
        painter.setRenderHint(QPainter::Antialiasing); // smooths the line below the mnemonic
        if (isChecked()) {
            paintPlate(painter, theme);
        } else if (underMouse() && isEnabled()) {
            paintBox(painter, rect(), segmentRadius, theme.quaternaryFill());
        }
        painter.setFont(Theme::font(isChecked() ? Text::body.semibold() : Text::body));
        painter.setPen(theme.color(isChecked() ? Ink::primary : Ink::secondary));
        painter.setLayoutDirection(text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
        if (showsFocus()) theme.paintFocusRing(painter, rect(), segmentRadius);
    }

private:
    /// How many choices further a key goes.
    [[nodiscard]] int stepOf(int key) const {
        const int right = layoutDirection() == Qt::RightToLeft ? -1 : 1;
        switch (key) {
        case Qt::Key_Right:
            return right;
        case Qt::Key_Left:
            return -right;
        case Qt::Key_Down:
            return 1;
        case Qt::Key_Up:
            return -1;
        default:
            return 0;
        }
    }

    void paintPlate(QPainter& painter, const Theme& theme) const {
        const QRectF shadow = QRectF{rect()}.adjusted(0.5, 0.5, -0.5, -0.5).translated(0, 0.75);
        paintBox(painter, shadow, segmentRadius, theme.fill(faded(Qt::black, 0.12)));
        const QColor plate =
            theme.dark() ? laidOver(faded(Qt::white, 0.25), theme.cardFill()) : QColor{Qt::white};
        paintBox(painter, rect(), segmentRadius, theme.fill(plate), theme.separator());
    }
};

SegmentedPicker::SegmentedPicker(const QStringList& items) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAccessibleRole(QAccessible::Grouping);
    auto* row = rowIn(this, troughMargin, troughMargin);
    for (const QString& item : items) {
        auto* segment = new Segment{item};
        const int index = static_cast<int>(segments_.size());
        segments_.push_back(segment);
        row->addWidget(segment, 1);
        connect(segment, &QRadioButton::toggled, this, [this, index](bool on) {
            if (!on || index == current_) return;
            current_ = index;
            keepOneTabStop();
            Q_EMIT picked(index);
        });
    }
    keepOneTabStop();
}

void SegmentedPicker::keepOneTabStop() {
    const auto stop = static_cast<std::size_t>(std::max(0, current_));
    for (std::size_t i = 0; i < segments_.size(); ++i)
        segments_[i]->setFocusPolicy(i == stop ? Qt::StrongFocus : Qt::ClickFocus);
}

int SegmentedPicker::currentIndex() const {
    return current_;
}

void SegmentedPicker::setCurrentIndex(int index) {
    if (index == current_) return;
    const int before = current_;
    current_ = index;
    keepOneTabStop();
    if (index >= 0) return segments_.at(static_cast<std::size_t>(index))->setChecked(true);
    Segment* const last = segments_.at(static_cast<std::size_t>(before));
    last->setAutoExclusive(false); // otherwise Qt keeps it checked
    last->setChecked(false);
    last->setAutoExclusive(true);
}

void SegmentedPicker::setItemAccessibleName(int index, const QString& name) {
    segments_.at(static_cast<std::size_t>(index))->setAccessibleName(name);
}

void SegmentedPicker::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    paintBox(painter, rect(), Space::controlRadius, theme().hoverFill());
}

} // namespace quillon
