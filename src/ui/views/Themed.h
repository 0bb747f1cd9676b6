#pragma once

#include "ui/views/Theme.h"

#include <QEvent>
#include <QFocusEvent>

#include <utility>

namespace quillon {

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
        const Qt::FocusReason reason = event->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            byKeyboard_ = reason != Qt::MouseFocusReason;
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
