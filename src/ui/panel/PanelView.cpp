#include "ui/panel/PanelView.h"

#include "maintenance/Updater.h"
#include "platform/Pasteboard.h"
#include "platform/Platform.h"
#include "state/Store.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Card.h"
#include "ui/panel/PanelFooter.h"
#include "ui/panel/PanelHeader.h"
#include "ui/panel/RecentSends.h"
#include "ui/panel/SendButton.h"
#include "ui/panel/SetupCard.h"
#include "ui/text/IconLabel.h"

#include <QPointer>
#include <QThreadPool>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <initializer_list>
#include <tuple>
#include <utility>

namespace quillon {

namespace {

constexpr double panelWidth = 320;
constexpr int padding = 14;
constexpr int spacing = 14;
/// What the footer's buttons have above and below their texts.
constexpr int footerRoom = 3;
constexpr std::chrono::seconds tickInterval{1};

} // namespace

PanelView::PanelView(Platform& platform, Store& store, const Updater& updater, PanelActions actions,
                     QWidget* parent)
    : QWidget{parent},
      platform_{platform},
      store_{store},
      updater_{updater},
      actions_{std::move(actions)},
      clip_{Clipboard::summary(ClipEmpty{})},
      header_{new PanelHeader},
      setup_{new SetupCard},
      send_{new SendButton},
      warning_{new IconLabel{
          {}, "exclamationmark.triangle.fill", {.style = Text::caption, .ink = Ink::warning}}},
      recent_{new RecentSends},
      footer_{new PanelFooter},
      refresher_{this, [this] { refresh(); }} {
    build();
    connectActions();
    warning_->setAccessibleRole(QAccessible::AlertMessage);
    refresher_.watch(store_, &Store::objectWillChange)
        .watch(updater_, &Updater::objectWillChange)
        .refreshNow();
}

void PanelView::build() {
    auto* const parts = new QVBoxLayout;
    parts->setSpacing(spacing);
    for (QWidget* part :
         std::initializer_list<QWidget*>{header_, setup_, send_, warning_, recent_, new Divider})
        parts->addWidget(part);

    // The texts of the footer's buttons stand in line with everything else, their edges outside.
    const int inset = footer_->inset();
    parts->setContentsMargins(inset, 0, inset, 0);
    auto* const column = new QVBoxLayout{this};
    column->setContentsMargins(padding - inset, padding, padding - inset, padding - footerRoom);
    column->setSpacing(spacing - footerRoom);
    column->addLayout(parts);
    column->addWidget(footer_);
}

void PanelView::connectActions() {
    connect(send_, &SendButton::clicked, this,
            [this] { std::ignore = store_.sendClipboard(Trigger::button); });
    connect(setup_, &SetupCard::startSetup, this, [this] { actions_.showSettings(); });
    connect(footer_, &PanelFooter::settings, this, [this] { actions_.showSettings(); });
    connect(footer_, &PanelFooter::checkForUpdates, this, [this] { updater_.checkForUpdates(); });
    connect(footer_, &PanelFooter::quit, this, [this] { actions_.quit(); });
}

void PanelView::refresh() {
    const bool ready = store_.isReady();
    const Config& config = store_.config();
    const QString keys = QString::fromStdString(keysText(config.shortcut));

    header_->setStatus(ready, config.chatTitle);
    setup_->setShortcut(keys);
    setup_->setVisible(!ready);
    send_->setClip(clip_, store_.busy());
    send_->setShortcut(config.shortcut);
    send_->setVisible(ready);
    warning_->setText(takenText(config.shortcut));
    warning_->setVisible(store_.shortcutTaken());
    recent_->setHistory(store_.history(), platform_.clock.now(), platform_.system.locale);
    footer_->setUpdates(updater_.available(), updater_.canCheck());
    updateGeometry();
}

QString PanelView::takenText(ShortcutChoice shortcut) {
    return tr("%1 is already used by another app. Pick another shortcut in Settings.")
        .arg(QString::fromStdString(keysText(shortcut)));
}

void PanelView::focusMainAction() {
    // Not a reason that shows the focus: only those who go on with the keyboard need to see it.
    if (send_->isVisible() && send_->isEnabled()) return send_->setFocus(Qt::PopupFocusReason);
    if (!store_.isReady()) setup_->findChild<TextButton*>()->setFocus(Qt::PopupFocusReason);
}

QSize PanelView::sizeHint() const {
    const int wide = std::max(int(Theme::length(panelWidth)), layout()->totalMinimumSize().width());
    return {wide, layout()->totalHeightForWidth(wide)};
}

void PanelView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    tick();
}

void PanelView::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    tick_.reset();
}

void PanelView::tick() {
    refresher_.refreshNow();
    readClipboard();
    tick_ = platform_.clock.after(tickInterval, [this] { tick(); });
}

QCoro::Task<> PanelView::readClipboard() {
    const auto count = platform_.pasteboard.changeCount();
    if (reading_ || readAt_ == count) co_return;
    reading_ = true;
    const QPointer<PanelView> self{this};
    ClipContent content = co_await Clipboard::read(platform_.pasteboard);
    if (!self) co_return;
    reading_ = false;
    readAt_ = count;
    if (std::holds_alternative<ClipEmpty>(content)) readAt_.reset();
    clip_ = Clipboard::summary(content);
    refresher_.schedule();
    // It takes the system milliseconds to get back the memory of a large picture.
    if (std::holds_alternative<ClipImage>(content))
        QThreadPool::globalInstance()->start([gone = std::move(content)] {});
}

} // namespace quillon
