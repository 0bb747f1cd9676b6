#pragma once

#include "platform/Clock.h"
#include "send/Clipboard.h"
#include "state/ShortcutChoice.h"
#include "ui/controls/Refresher.h"

#include <QCoroTask>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

class QHBoxLayout;

namespace quillon {

class IconLabel;
class PanelHeader;
class RecentSends;
class SendButton;
class SetupCard;
class Store;
class TextButton;
class Updater;
struct Platform;

/// The actions of the panel's buttons that lie outside the panel.
struct PanelActions {
    std::function<void()> showSettings;
    std::function<void()> quit;
};

/// The panel that the icon opens: the state of the program, the button that sends the clipboard,
/// the last sends, and the way to everything else. It looks at the clipboard every second while it
/// shows.
class PanelView : public QWidget {
    Q_OBJECT

public:
    PanelView(Platform& platform, Store& store, const Updater& updater, PanelActions actions);

    /// Gives the keyboard focus to the main button.
    void focusMainAction();

    /// The warning that another program has the shortcut.
    [[nodiscard]] static QString takenText(ShortcutChoice shortcut);

    /// The width is the same however long the texts are, and the height follows from it.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    /// What is dropped on the panel is sent.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void build();
    /// The row of small buttons at the bottom, of which this is the first.
    [[nodiscard]] QHBoxLayout* buildFooter(TextButton* settings);
    /// Shows the state of the store, the updater and the clipboard.
    void refresh();
    void refreshShortcut();
    /// Looks at everything that changes without a signal, and schedules the next look.
    void tick();
    QCoro::Task<> readClipboard();
    void setDragging(bool dragging);

    Platform& platform_;
    Store& store_;
    const Updater& updater_;
    PanelActions actions_;

    Clipboard::Summary clip_;
    std::unique_ptr<Clock::Timer> tick_;
    bool reading_ = false;
    /// Something that can be sent is dragged over the panel.
    bool dragging_ = false;
    /// The pasteboard's change count when clip_ was read. No value if nothing was read, which may
    /// mean that the clipboard's owner did not answer.
    std::optional<std::uint64_t> readAt_;

    PanelHeader* header_;
    SetupCard* setup_;
    SendButton* send_;
    IconLabel* warning_;
    /// Tells what has become of the shortcut where nobody need do anything about it.
    IconLabel* shortcut_;
    /// Tells why the token cannot be had.
    IconLabel* keyring_;
    RecentSends* recent_;
    TextButton* updates_ = nullptr;
    Refresher refresher_;
};

} // namespace quillon
