#include "ui/panel/PanelView.h"

#include "base/ShownText.h"
#include "base/Translate.h"
#include "desktop/ShortcutSentence.h"
#include "maintenance/Updater.h"
#include "platform/Pasteboard.h"
#include "platform/Platform.h"
#include "send/Dropped.h"
#include "send/UndoOutcome.h"
#include "state/ShownKeys.h"
#include "state/Store.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Card.h"
#include "ui/panel/PanelHeader.h"
#include "ui/panel/RecentSends.h"
#include "ui/panel/SendButton.h"
#include "ui/panel/SetupCard.h"
#include "ui/text/IconLabel.h"

#include <QCoroFuture>
#include <QDropEvent>
#include <QPointer>
#include <QVBoxLayout>
#include <QtConcurrentRun>

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
/// The room above and below the texts of the footer's buttons.
constexpr int footerRoom = 3;
constexpr std::chrono::seconds tickInterval{1};

/// A text of more bytes than this is summed up on another thread.
constexpr std::size_t largeText = 100'000;

/// Whether summing the content up and freeing its memory takes milliseconds.
bool isLarge(const ClipContent& content) {
    const auto* const text = std::get_if<ClipText>(&content);
    return std::holds_alternative<ClipImage>(content) || (text && text->text.size() > largeText);
}

/// The line of a summary may be as long as the clipboard; no more of it is kept than shows.
Clipboard::Summary shownSummary(const ClipContent& content) {
    Clipboard::Summary summary = Clipboard::summary(content);
    summary.line = shortened(QString::fromStdString(summary.line)).toStdString();
    return summary;
}

TextButton* footerButton(const QString& text, const char* symbol) {
    return new TextButton{text, symbol, {.kind = ButtonKind::borderless, .style = Text::callout}};
}

IconLabel* makeHint() {
    return new IconLabel{{}, "info.circle", {.style = Text::caption, .ink = Ink::secondary}};
}

IconLabel* makeWarning() {
    auto* const warning = new IconLabel{
        {}, "exclamationmark.triangle.fill", {.style = Text::caption, .ink = Ink::warning}};
    warning->setAccessibleRole(QAccessible::AlertMessage);
    return warning;
}

} // namespace

PanelView::PanelView(Platform& platform, Store& store, const Updater& updater, PanelActions actions)
    : platform_{platform},
      store_{store},
      updater_{updater},
      actions_{std::move(actions)},
      clip_{Clipboard::summary(ClipEmpty{})},
      header_{new PanelHeader},
      setup_{new SetupCard},
      send_{new SendButton},
      warning_{makeWarning()},
      shortcut_{makeHint()},
      keyring_{makeWarning()},
      recent_{new RecentSends},
      refresher_{this, [this] { refresh(); }} {
    setAcceptDrops(true);
    build();
    refresher_.watch(store_, &Store::objectWillChange)
        .watch(updater_, &Updater::objectWillChange)
        .refreshNow();
}

void PanelView::build() {
    auto* const parts = new QVBoxLayout;
    parts->setSpacing(spacing);
    for (QWidget* part : std::initializer_list<QWidget*>{header_, setup_, send_, keyring_, warning_,
                                                         shortcut_, recent_, new Divider})
        parts->addWidget(part);

    // The texts of the footer's buttons line up with everything else, not the buttons' edges.
    auto* const settings = footerButton(tr("Settings…"), "gearshape.fill");
    const int inset = settings->inset();
    parts->setContentsMargins(inset, 0, inset, 0);
    auto* const column = new QVBoxLayout{this};
    column->setContentsMargins(padding - inset, padding, padding - inset, padding - footerRoom);
    column->setSpacing(spacing - footerRoom);
    column->addLayout(parts);
    column->addLayout(buildFooter(settings));
    connect(send_, &SendButton::clicked, this,
            [this] { std::ignore = store_.sendClipboard(Trigger::button); });
    connect(recent_, &RecentSends::undo, this, [this] { std::ignore = store_.undo(); });
    connect(setup_, &SetupCard::startSetup, this, [this] { actions_.showSettings(); });
}

QHBoxLayout* PanelView::buildFooter(TextButton* settings) {
    updates_ = footerButton(tr("Check for Updates…"), "arrow.down.circle");
    auto* const quit = footerButton(tr("Quit"), "power");
    connect(settings, &TextButton::clicked, this, [this] { actions_.showSettings(); });
    connect(updates_, &TextButton::clicked, this, [this] { updater_.checkForUpdates(); });
    connect(quit, &TextButton::clicked, this, [this] { actions_.quit(); });
    auto* const row = new QHBoxLayout;
    row->setSpacing(0);
    row->addWidget(settings);
    row->addStretch();
    row->addWidget(updates_);
    row->addStretch();
    row->addWidget(quit);
    return row;
}

void PanelView::refresh() {
    const bool ready = store_.mayBeReady();
    const Config& config = store_.config();
    const QString keys = QString::fromStdString(shownKeysText(config.shortcut));

    header_->setStatus(ready, config.chatTitle);
    setup_->setShortcut(keys);
    setup_->setVisible(!ready);
    send_->setClip(clip_, store_.busy());
    send_->setDrop(dragging_);
    send_->setVisible(ready);
    const auto problem = ready ? store_.keyringProblem() : std::nullopt;
    keyring_->setText(QString::fromStdString(problem.value_or("")));
    keyring_->setVisible(problem.has_value());
    refreshShortcut();
    recent_->setHistory(store_.history(), platform_.clock.now(), textLanguage());
    refreshUndo();
    updates_->setVisible(updater_.available());
    updates_->setEnabled(updater_.canCheck());
    updateGeometry();
}

void PanelView::refreshUndo() {
    const bool offered = store_.canUndo();
    const bool hadFocus = recent_->isAncestorOf(focusWidget());
    recent_->offerUndo(offered, store_.lastSend().count());
    if (hadFocus && !offered) send_->setFocus(Qt::OtherFocusReason);
}

void PanelView::refreshShortcut() {
    const ShortcutChoice choice = store_.config().shortcut;
    const HotKeyState& state = store_.shortcut();
    const QString sentence =
        store_.shortcutTaken()
            ? takenText(choice)
            : QString::fromStdString(shortcutSentence(state, choice, ShortcutPlace::panel));
    const bool warns = store_.shortcutTaken() || wantsAttention(state);
    warning_->setText(sentence);
    warning_->setVisible(warns && !store_.shortcutCommandCopied());
    shortcut_->setText(sentence);
    shortcut_->setVisible(!warns && !sentence.isEmpty());
    // The desktop may have bound other keys than were asked for, and names them in its own words.
    send_->setShortcut(choice, state.trigger.empty());
}

QString PanelView::takenText(ShortcutChoice shortcut) {
    return tr("%1 is already used by another app. Pick another shortcut in Settings.")
        .arg(QString::fromStdString(shownKeysText(shortcut)));
}

void PanelView::focusMainAction() {
    // This reason does not show the focus. Users of the keyboard see it from their next key on.
    if (send_->isVisible() && send_->isEnabled()) return send_->setFocus(Qt::PopupFocusReason);
    if (!store_.mayBeReady()) setup_->findChild<TextButton*>()->setFocus(Qt::PopupFocusReason);
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

void PanelView::dragEnterEvent(QDragEnterEvent* event) {
    const bool sends = store_.mayBeReady() && !store_.busy() && canBeDropped(*event->mimeData()) &&
                       (event->possibleActions() & Qt::CopyAction);
    if (!sends) return event->ignore();
    // Whoever moves a file removes it from where it was.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setDragging(true);
}

void PanelView::dragLeaveEvent(QDragLeaveEvent* /*event*/) {
    setDragging(false);
}

void PanelView::dropEvent(QDropEvent* event) {
    setDragging(false);
    event->setDropAction(Qt::CopyAction);
    event->accept();
    SendWishes wishes{.via = Trigger::button};
    std::ignore = store_.send(droppedItems(*event->mimeData()), std::move(wishes));
}

void PanelView::setDragging(bool dragging) {
    dragging_ = dragging;
    refresher_.refreshNow();
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
    const bool empty = std::holds_alternative<ClipEmpty>(content);
    if (isLarge(content)) {
        const QFuture<Clipboard::Summary> work =
            QtConcurrent::run(shownSummary, std::move(content));
        Clipboard::Summary summary = co_await work;
        if (!self) co_return;
        clip_ = std::move(summary);
    } else {
        clip_ = shownSummary(content);
    }
    reading_ = false;
    readAt_ = empty ? std::nullopt : std::optional{count};
    refresher_.schedule();
}

} // namespace quillon
