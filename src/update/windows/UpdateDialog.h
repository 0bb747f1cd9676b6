#pragma once

#include <QDialog>

#include <functional>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace quillon {

/// A small window with the mark, a title, a line of text, and buttons below. Blocks nothing; on the
/// heap, since it goes by itself.
class UpdateDialog : public QDialog {
    Q_OBJECT

public:
    enum class Place {
        primary,   ///< at the right, pressed by Return
        secondary, ///< beside it
        apart,     ///< at the other end
    };

    UpdateDialog(const QString& title, const QString& text);

    void setTexts(const QString& title, const QString& text);

    /// Below the text, as wide as it.
    void addContent(QWidget* content, int stretch = 0);
    /// Of the secondary ones, the first is the rightmost. Takes the window away, then calls
    /// `pressed`.
    QPushButton* addButton(const QString& text, Place place, std::function<void()> pressed = {});
    /// Escape and the window's own button do the same as this one.
    void setEscape(QPushButton* button) { escape_ = button; }

    /// Takes the window away without any button.
    void leave();

    /// In logical pixels.
    static constexpr int textWidth = 400;

protected:
    void reject() override;

private:
    QLabel* title_;
    QLabel* text_;
    QVBoxLayout* column_;
    QHBoxLayout* buttons_;
    QPushButton* escape_ = nullptr;
    int apart_ = 0;
};

/// Text from outside, read-only, to be selected and scrolled. Loads nothing; opens links to https
/// addresses in the browser.
[[nodiscard]] QWidget* makeTextView(const QString& html, const QString& accessibleName);

/// The same for a message: without a frame, and as high as the text needs up to a limit.
[[nodiscard]] QWidget* makeMessageView(const QString& text);

} // namespace quillon
