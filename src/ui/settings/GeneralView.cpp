#include "ui/settings/GeneralView.h"

#include "artwork/Palette.h"
#include "maintenance/Updater.h"
#include "state/ShownKeys.h"
#include "state/Store.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Card.h"
#include "ui/controls/SegmentedPicker.h"
#include "ui/controls/Switch.h"
#include "ui/settings/PositionCard.h"
#include "ui/settings/SettingRow.h"
#include "ui/settings/ShortcutNote.h"
#include "ui/settings/UninstallSheet.h"
#include "ui/settings/UpdatesCard.h"
#include "ui/text/IconLabel.h"
#include "ui/text/Keycap.h"

#include <QVBoxLayout>

#include <tuple>
#include <utility>

namespace quillon {

namespace {

constexpr double pickerWidth = 200;

/// The value at the end of a row.
IconLabel* makeValue() {
    return new IconLabel{{}, {}, {.ink = Ink::secondary, .overflow = Overflow::elideMiddle}};
}

} // namespace

GeneralView::GeneralView(Store& store, Updater& updater, SettingsActions actions)
    : store_{store},
      actions_{std::move(actions)},
      refresher_{this, [this] { refresh(); }} {
    auto* column = columnIn(this, Space::medium, Space::large);
    column->addWidget(buildShortcut());
    column->addWidget(buildSending());
    column->addWidget(buildStartup());
    column->addWidget(new UpdatesCard{updater});
    column->addWidget(buildTelegram());
    column->addWidget(buildUninstall(), 0, Qt::AlignLeading);
    column->addStretch(1);
    refresher_.watch(store, &Store::objectWillChange);
    refresh();
}

Card* GeneralView::buildShortcut() {
    auto* card = new Card{tr("Shortcut"), "command"};
    QStringList items;
    for (const ShortcutChoice choice : allShortcutChoices)
        items << QString::fromStdString(shownKeysText(choice));
    shortcut_ = new SegmentedPicker{items};
    shortcut_->setAccessibleName(tr("Shortcut"));
    for (std::size_t i = 0; i < allShortcutChoices.size(); ++i) {
        shortcut_->setItemAccessibleName(static_cast<int>(i),
                                         spokenKeys(keyLabels(allShortcutChoices.at(i))));
    }
    connect(shortcut_, &SegmentedPicker::picked, this, &GeneralView::pickShortcut);
    auto* label = new TileLabel{tr("Send clipboard"), "keyboard.fill", Palette::blue};
    shortcut_->setAccessibleLabel(label);
    card->body()->addLayout(settingRow(label, shortcut_));
    taken_ = new IconLabel{
        {}, "exclamationmark.triangle.fill", {.style = Text::callout, .ink = Ink::warning}};
    taken_->setAccessibleRole(QAccessible::AlertMessage);
    card->body()->addWidget(taken_);
    note_ = new ShortcutNote{store_};
    card->body()->addWidget(note_);
    return card;
}

Card* GeneralView::buildSending() {
    auto* card = new Card{tr("After sending"), "paperplane.fill"};
    sound_ = new Switch{tr("&Play a sound"), "speaker.wave.2.fill", Palette::pink};
    banner_ = new Switch{tr("Show a &banner"), "bell.badge.fill", Palette::orange};
    card->body()->addWidget(sound_);
    card->body()->addWidget(banner_);
    card->body()->addWidget(buildPositions());
    connect(sound_, &Switch::switched, this, [this](bool on) {
        store_.changeConfig([on](Config& config) { config.playSound = on; });
    });
    connect(banner_, &Switch::switched, this, [this](bool on) {
        store_.changeConfig([on](Config& config) { config.showBanner = on; });
    });
    return card;
}

QWidget* GeneralView::buildPositions() {
    positions_ = new View;
    positions_->setAccessibleName(tr("Banner position"));
    auto* row = rowIn(positions_, Space::small);
    for (const BannerPosition position : allBannerPositions) {
        auto* card = new PositionCard{position};
        positionCards_[position] = card;
        row->addWidget(card, 1);
        connect(card, &PositionCard::clicked, this, [this, position] { pickPosition(position); });
    }
    return positions_;
}

Card* GeneralView::buildStartup() {
    auto* card = new Card{tr("Startup"), "macwindow"};
    login_ = new Switch{tr("&Open Quillon when I log in"), "power", Palette::green};
    card->body()->addWidget(login_);
    connect(login_, &Switch::switched, this, [this](bool on) { store_.setLaunchAtLogin(on); });
    return card;
}

Card* GeneralView::buildTelegram() {
    auto* card = new Card{tr("Telegram"), "paperplane.circle.fill"};
    bot_ = makeValue();
    group_ = makeValue();
    disconnect_ = new TextButton{
        tr("&Disconnect this Mac"), "xmark.circle.fill", {.kind = ButtonKind::destructive}};
    auto* bot = new TileLabel{tr("Bot"), "cpu.fill", Palette::teal};
    auto* group = new TileLabel{tr("Group"), "person.3.fill", Palette::blue};
    bot_->setAccessibleLabel(bot);
    group_->setAccessibleLabel(group);
    card->body()->addLayout(settingRow(bot, bot_));
    card->body()->addLayout(settingRow(group, group_));
    card->body()->addWidget(disconnect_, 0, Qt::AlignLeading);
    connect(disconnect_, &TextButton::clicked, this, [this] { store_.forgetBot(); });
    return card;
}

QWidget* GeneralView::buildUninstall() {
    auto* uninstall = new TextButton{tr("&Uninstall Quillon…"),
                                     "trash",
                                     {.kind = ButtonKind::borderless, .style = Text::caption}};
    connect(uninstall, &TextButton::clicked, this, &GeneralView::confirmUninstall);
    return uninstall;
}

void GeneralView::refresh() {
    const Config& config = store_.config();
    refreshShortcut();
    sound_->showOn(config.playSound);
    banner_->showOn(config.showBanner);
    // Disabled views are painted dimmed.
    positions_->setEnabled(config.showBanner);
    for (const auto& [position, card] : positionCards_)
        card->showSelected(config.bannerPosition == position);
    login_->showOn(store_.launchAtLogin());
    refreshTelegram();
}

void GeneralView::refreshShortcut() {
    const ShortcutChoice choice = store_.config().shortcut;
    // The names of keys are longer than their symbols.
    shortcut_->setFixedWidth(
        std::max(Theme::wholeLength(pickerWidth), shortcut_->minimumSizeHint().width()));
    shortcut_->setCurrentIndex(static_cast<int>(choice));
    taken_->setText(tr("Another app already uses %1. Pick another one.")
                        .arg(QString::fromStdString(shownKeysText(choice))));
    taken_->setVisible(store_.shortcutTaken());
    note_->refresh();
}

void GeneralView::refreshTelegram() {
    const Config& config = store_.config();
    const QString bot = config.botName ? QString::fromStdString(*config.botName) : tr("connected");
    bot_->setText(store_.tokenSaved() ? tr("@%1").arg(bot) : tr("Not connected"));
    group_->setText(config.chatTitle ? QString::fromStdString(*config.chatTitle)
                                     : tr("Not found yet"));
    disconnect_->setVisible(store_.tokenSaved());
}

void GeneralView::pickShortcut(int index) {
    const ShortcutChoice choice = allShortcutChoices.at(static_cast<std::size_t>(index));
    store_.changeConfig([choice](Config& config) { config.shortcut = choice; });
    store_.registerShortcut();
}

void GeneralView::pickPosition(BannerPosition position) {
    store_.changeConfig([position](Config& config) { config.bannerPosition = position; });
    actions_.showBanner({.text = tr("Sent to 📝 Notes & text").toStdString(),
                         .symbol = "checkmark.circle.fill",
                         .position = position});
}

void GeneralView::confirmUninstall() {
    if (sheet_) return sheet_->raise();
    sheet_ = new UninstallSheet{actions_.uninstall, window()};
    sheet_->open();
}

/// Refreshes, because the desktop may have changed what opens at login.
void GeneralView::showEvent(QShowEvent* event) {
    View::showEvent(event);
    refresher_.refreshNow();
}

void GeneralView::themeChanged() {
    View::themeChanged();
    refresher_.schedule();
}

} // namespace quillon
