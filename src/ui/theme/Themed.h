#pragma once

#include "ui/theme/Theme.h"

#include <QEvent>
#include <QFocusEvent>

#include <utility>

namespace quillon {

/// Whether the user last moved the focus with the keyboard, and not with the pointer.
inline bool keyboardInUse = false;

/// Adds to a widget class what all views have in common: they measure and paint themselves again
/// when colours, font, style or writing direction change, and know whether to show the focus, which
/// they do only for those who use the keyboard.
template <typename Base>
class Themed : public Base {
public:
    using Base::Base;

protected:
    [[nodiscard]] Theme theme() const { return Theme{*this}; }
    [[nodiscard]] bool showsFocus() const { return this->hasFocus() && byKeyboard_; }

    /// Something changed that size or looks derive from; overriders drop what they keep of it.
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
        case Qt::OtherFocusReason: // moved by the program
            byKeyboard_ = keyboardInUse;
            break;
        default: // comes back
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
