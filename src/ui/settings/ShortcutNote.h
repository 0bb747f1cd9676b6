#pragma once

#include "ui/accessibility/View.h"

namespace quillon {

class IconLabel;
class Store;
class TextButton;
class TextField;

/// Tells what has become of the shortcut where the desktop binds it, with the button for what the
/// user can do about it, and the command to copy where there is one. Hides where there is nothing
/// to tell.
class ShortcutNote : public View {
    Q_OBJECT

public:
    explicit ShortcutNote(Store& store);

    /// Shows the state of the store.
    void refresh();

private:
    void refreshButton();
    void takeOffer();

    Store& store_;
    IconLabel* sentence_;
    TextField* command_;
    TextButton* button_;
};

} // namespace quillon
