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
/// below. It deletes itself, and therefore has to be on the heap. The event loop goes on meanwhile.
class MessageWindow : public Themed<QDialog> {
    Q_OBJECT

public:
    enum class Place {
        primary,   ///< at the trailing end; Return presses it
        secondary, ///< beside the primary one
        apart,     ///< at the leading end
    };

    /// If `warning`, the icon has the symbol of a warning.
    MessageWindow(const QString& title, const QString& text, bool warning = false);

    void setTexts(const QString& title, const QString& text);

    /// Adds a widget below the text, as wide as the text. If `growing`, it can use more height than
    /// it asks for, and the user can resize the window.
    void addContent(QWidget* content, bool growing = false);
    /// Adds a button that takes the window away and then calls `pressed`. The first secondary
    /// button stands next to the primary one.
    TextButton* addButton(const QString& text, Place place, std::function<void()> pressed = {});
    /// Makes Escape, and the button with which the desktop closes the window, press this button.
    void setEscape(TextButton* button) { escape_ = button; }

    /// Takes the window away without pressing a button.
    void leave();

    /// The width of the text in points of the design.
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
