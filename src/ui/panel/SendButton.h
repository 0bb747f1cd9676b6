#pragma once

#include "send/Clipboard.h"
#include "state/ShortcutChoice.h"
#include "ui/controls/Buttons.h"

namespace quillon {

class IconLabel;
class KeyRow;
class SymbolView;

/// The panel's main button, which sends the clipboard and tells what is on it.
class SendButton : public ContentButton {
    Q_OBJECT

public:
    SendButton();

    void setClip(const Clipboard::Summary& clip, bool busy);
    /// Says that what is dragged over the panel is sent when it is dropped; to be called after
    /// setClip().
    void setDrop(bool offered);
    /// Shows the keys of the shortcut, or none.
    void setShortcut(ShortcutChoice shortcut, bool shown);

protected:
    void paintGround(QPainter& painter, const Theme& theme) override;
    [[nodiscard]] Tint focusTint() const override;

private:
    SymbolView* symbol_;
    IconLabel* title_;
    IconLabel* line_;
    KeyRow* keys_;
    bool drop_ = false;
};

} // namespace quillon
