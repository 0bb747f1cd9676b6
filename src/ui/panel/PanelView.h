#pragma once

#include "platform/Clock.h"
#include "send/Clipboard.h"
#include "state/ShortcutChoice.h"
#include "ui/controls/Refresher.h"
#include "ui/panel/PanelActions.h"

#include <QCoroTask>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <optional>

namespace quillon {

class IconLabel;
class PanelFooter;
class PanelHeader;
class RecentSends;
class SendButton;
class SetupCard;
class Store;
class Updater;
struct Platform;

/// What the icon in the desktop's panel opens: the state of things, the one big action, the last
/// sends and the way to everything else. Looks at the clipboard once a second while it is shown.
class PanelView : public QWidget {
    Q_OBJECT

public:
    PanelView(Platform& platform, Store& store, const Updater& updater, PanelActions actions,
              QWidget* parent = nullptr);

    /// Gives the keyboard to the one thing to do here.
    void focusMainAction();

    /// What it says of a shortcut that another program has.
    [[nodiscard]] static QString takenText(ShortcutChoice shortcut);

    /// The panel has one width, however long its texts are; the height follows from it.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void build();
    void connectActions();
    /// Shows the state of the store, the updater and the clipboard.
    void refresh();
    /// Looks at everything that changes without telling, now and in a second again.
    void tick();
    QCoro::Task<> readClipboard();

    Platform& platform_;
    Store& store_;
    const Updater& updater_;
    PanelActions actions_;

    Clipboard::Summary clip_;
    std::unique_ptr<Clock::Timer> tick_;
    bool reading_ = false;
    /// The pasteboard's change count when what is in clip_ was read; none while that was nothing,
    /// which may be because the clipboard's owner did not answer.
    std::optional<std::uint64_t> readAt_;

    PanelHeader* header_;
    SetupCard* setup_;
    SendButton* send_;
    IconLabel* warning_;
    RecentSends* recent_;
    PanelFooter* footer_;
    Refresher refresher_;
};

} // namespace quillon
