#pragma once

#include "ui/controls/Buttons.h"

#include <QAccessible>
#include <QDialog>

#include <functional>

class QHBoxLayout;
class QVBoxLayout;

namespace quillon {

class IconLabel;

/// A small window that says or asks something: the application's icon, a title, a text, and buttons
/// below. On the heap, since it goes by itself. The event loop goes on meanwhile.
class MessageWindow : public Themed<QDialog> {
    Q_OBJECT

public:
    enum class Place {
        primary,   ///< at the end, pressed by Return
        secondary, ///< beside it
        apart,     ///< at the other end
    };

    /// With `warning`, the icon has the symbol of one.
    MessageWindow(const QString& title, const QString& text, bool warning = false);

    void setTexts(const QString& title, const QString& text);

    /// Below the text, as wide as it. What can use more height than it asks for, lets the user
    /// resize the window.
    void addContent(QWidget* content, bool growing = false);
    /// Of the secondary ones, the first is next to the primary one. Takes the window away, then
    /// calls `pressed`.
    TextButton* addButton(const QString& text, Place place, std::function<void()> pressed = {});
    /// Escape and the window's own button do the same as this one.
    void setEscape(TextButton* button) { escape_ = button; }

    /// Takes the window away without any button.
    void leave();

    /// In points of the design.
    static constexpr double textWidth = 370;

protected:
    void reject() override;
    void themeChanged() override;
    void showEvent(QShowEvent* event) override;

private:
    void setWidths();

    IconLabel* title_;
    IconLabel* text_;
    QVBoxLayout* column_;
    QHBoxLayout* buttons_;
    TextButton* escape_ = nullptr;
    int apart_ = 0;
};

} // namespace quillon
