#pragma once

#include "ui/theme/Theme.h"

#include <QEvent>
#include <QFocusEvent>
#include <QStyle>

#include <utility>

namespace quillon {

/// Whether the user last moved the focus with the keyboard rather than with the pointer.
inline bool keyboardInUse = false;

/// Adds to a widget class what all views have in common: they measure and paint themselves again
/// when colours, font, style or writing direction change, and they show the focus only to users who
/// move it with the keyboard.
template <typename Base>
class Themed : public Base {
public:
    using Base::Base;

protected:
    [[nodiscard]] Theme theme() const { return Theme{*this}; }
    [[nodiscard]] bool showsFocus() const { return this->hasFocus() && byKeyboard_; }

    /// Whether the style shows the mnemonic of a title by a line below it.
    [[nodiscard]] bool underlinesMnemonic() const {
        return this->style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0;
    }

    /// Called when something has changed that the view's size or look derives from. Overriders drop
    /// what they have kept of it.
    virtual void themeChanged() {
        this->updateGeometry();
        this->update();
    }

    void changeEvent(QEvent* event) override {
        Base::changeEvent(event);
        switch (event->type()) {
        case QEvent::PaletteChange:
        case QEvent::FontChange:
        case QEvent::ApplicationFontChange:
        case QEvent::StyleChange:
        case QEvent::EnabledChange:
        case QEvent::LayoutDirectionChange:
            themeChanged();
            break;
        default:
            break;
        }
    }

    void focusInEvent(QFocusEvent* event) override {
        switch (event->reason()) {
        case Qt::MouseFocusReason:
            byKeyboard_ = keyboardInUse = false;
            break;
        case Qt::TabFocusReason:
        case Qt::BacktabFocusReason:
        case Qt::ShortcutFocusReason:
            byKeyboard_ = keyboardInUse = true;
            break;
        case Qt::OtherFocusReason: // the program moved it
            byKeyboard_ = keyboardInUse;
            break;
        default: // it comes back, with another window or a menu
            break;
        }
        Base::focusInEvent(event);
        this->update();
    }

    void focusOutEvent(QFocusEvent* event) override {
        Base::focusOutEvent(event);
        this->update();
    }

private:
    bool byKeyboard_ = false;
};

} // namespace quillon
