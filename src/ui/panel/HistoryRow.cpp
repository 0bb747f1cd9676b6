#include "ui/panel/HistoryRow.h"

#include "artwork/Brand.h"
#include "ui/accessibility/Accessibility.h"
#include "ui/controls/Buttons.h"
#include "ui/panel/Age.h"
#include "ui/text/IconLabel.h"
#include "ui/text/SymbolView.h"

#include <QEvent>
#include <QHBoxLayout>

#include <array>

namespace quillon {

namespace {

constexpr double symbolSize = 13;
constexpr double symbolFrame = 18;
constexpr double markSize = 11;
constexpr int lineSpacing = 1;

LabelLook detailLook(bool failed) {
    return {.style = Text::caption, .ink = failed ? Ink::warning : Ink::secondary};
}

LabelLook titleLook(bool takenBack) {
    return {.style = Text::callout,
            .ink = takenBack ? Ink::secondary : Ink::primary,
            .overflow = Overflow::elideMiddle};
}

/// How the mark at the end of the row shows what became of the item.
struct MarkLook {
    const char* symbol;
    Tint ink;
    const char* name;
};

/// In the order of the states.
const std::array markLooks{
    MarkLook{"checkmark", Brand::coralDeep, QT_TRANSLATE_NOOP("quillon::HistoryRow", "Sent")},
    MarkLook{"exclamationmark.triangle.fill", Ink::warning,
             QT_TRANSLATE_NOOP("quillon::HistoryRow", "Not sent")},
    MarkLook{"arrow.counterclockwise", Ink::secondary,
             QT_TRANSLATE_NOOP("quillon::HistoryRow", "Taken back")},
};

} // namespace

HistoryRow::HistoryRow()
    : symbol_{new SymbolView{
          {}, {.size = symbolSize, .ink = Ink::secondary, .frameWidth = symbolFrame}}},
      title_{new IconLabel{{}, {}, titleLook(false)}},
      detail_{new IconLabel{{}, {}, detailLook(false)}},
      undo_{
          new TextButton{tr("Undo"), {}, {.kind = ButtonKind::borderless, .style = Text::caption}}},
      mark_{new SymbolView{{}}} {
    setAccessibleRole(QAccessible::ListItem);

    auto* const column = new QVBoxLayout;
    column->setSpacing(lineSpacing);
    column->addWidget(title_);
    column->addWidget(detail_);

    auto* const row = rowIn(this, 0);
    row->addWidget(symbol_, 0, Qt::AlignVCenter);
    row->addSpacing(Space::small);
    row->addLayout(column, 1);
    row->addSpacing(Space::tight);
    row->addWidget(undo_, 0, Qt::AlignVCenter);
    row->addSpacing(Space::hair);
    row->addWidget(mark_, 0, Qt::AlignVCenter);

    undo_->hide();
    undo_->installEventFilter(this);
    connect(undo_, &TextButton::clicked, this, &HistoryRow::undo);
}

void HistoryRow::setEntry(const Sent& entry, Date now, const std::string& locale) {
    const QString before = accessibleText();
    symbol_->setSymbol(entry.symbol);
    title_->setText(QString::fromStdString(entry.title));
    const State state = entry.takenBack ? State::takenBack
                        : entry.error   ? State::failed
                                        : State::sent;
    if (state == State::failed) {
        detail_->setText(QString::fromStdString(*entry.error));
    } else {
        const QString topic = QString::fromStdString(entry.topic);
        const QString when = state == State::sent ? age(entry.date, now, locale) : tr("taken back");
        detail_->setText(tr("%1 · %2", "topic and age").arg(topic, when));
    }
    setState(state);
    if (accessibleText() != before) announceText();
}

void HistoryRow::setState(State state) {
    if (state == state_) return;
    state_ = state;
    const MarkLook& look = markLooks.at(static_cast<std::size_t>(state));
    title_->setLook(titleLook(state == State::takenBack));
    detail_->setLook(detailLook(state == State::failed));
    mark_->setSymbol(look.symbol);
    mark_->setLook({.size = markSize, .weight = SymbolWeight::bold, .ink = look.ink});
    mark_->setAccessibleName(tr(look.name));
}

void HistoryRow::offerUndo(bool offered, std::size_t messages) {
    undo_->setVisible(offered);
    const int count = static_cast<int>(messages);
    setDescription(*undo_, count == 1
                               ? tr("Deletes the message of the last send")
                               : tr("Deletes all %n messages of the last send", nullptr, count));
    undo_->setToolTip(undo_->accessibleDescription());
    revealUndo();
}

void HistoryRow::revealUndo() {
    setOpacity(*undo_, underMouse() || undo_->hasFocus() ? 1 : 0);
}

bool HistoryRow::event(QEvent* event) {
    const bool handled = View::event(event);
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave) revealUndo();
    return handled;
}

bool HistoryRow::eventFilter(QObject* watched, QEvent* event) {
    // The focus has changed only once the button has handled this.
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        QMetaObject::invokeMethod(this, &HistoryRow::revealUndo, Qt::QueuedConnection);
    return View::eventFilter(watched, event);
}

QString HistoryRow::accessibleText() const {
    return QStringList{title_->accessibleText(), detail_->accessibleText(), mark_->accessibleName()}
        .join(QStringLiteral(", "));
}

} // namespace quillon
