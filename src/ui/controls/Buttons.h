#pragma once

#include "ui/controls/PressedByReturn.h"

#include <QPushButton>

#include <optional>
#include <string>

namespace quillon {

enum class ButtonKind {
    bordered,
    prominent,  // for the main action of a window
    borderless, // a text with room around it, which lights up under the pointer
    destructive,
};

/// How a button looks.
struct ButtonLook {
    ButtonKind kind = ButtonKind::bordered;
    TextStyle style = Text::body;
    /// The symbol's colour where it is not the text's.
    std::optional<Tint> symbolInk{};
};

/// A button with a text, a symbol or both. An "&" in the text marks its mnemonic.
class TextButton : public PressedByReturn<QPushButton> {
    Q_OBJECT

public:
    explicit TextButton(const QString& text, std::string symbol = {}, ButtonLook look = {},
                        QWidget* parent = nullptr);

    void setSymbol(const std::string& symbol);

    /// The distance between the button's edge and its text on either side, with which the text can
    /// be lined up with other texts.
    [[nodiscard]] int inset() const;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintGround(QPainter& painter, const Theme& theme) const;
    void paintContent(QPainter& painter, const Theme& theme) const;
    [[nodiscard]] Tint ink() const;
    /// The width of symbol, gap and text.
    [[nodiscard]] double contentWidth() const;
    /// The width of the symbol and the gap after it.
    [[nodiscard]] double symbolWidth() const;

    std::string symbol_;
    ButtonLook look_;
};

/// A button whose face consists of views in its layout. The views take no clicks; the button does,
/// with its whole rectangle. It needs an accessible name.
class ContentButton : public PressedByReturn<QPushButton> {
    Q_OBJECT

public:
    ContentButton();

    /// Makes it one of several choices, and says whether it is the one that is taken. Assistive
    /// technology is told of it as "selected".
    void setSelected(bool selected);
    [[nodiscard]] std::optional<bool> selected() const { return selected_; }
    /// Says whether what the button opens and closes is open. No value for other buttons.
    void setExpanded(std::optional<bool> expanded);
    [[nodiscard]] std::optional<bool> expanded() const { return expanded_; }
    /// Says whether its action is under way. Meanwhile the button is disabled, but not faded.
    void setBusy(bool busy);
    [[nodiscard]] bool busy() const { return busy_; }
    /// The radius of its corners, which the focus ring follows.
    void setCornerRadius(double radius);

    /// The sizes are those of its layout, not those of a push button's text.
    // NOLINTBEGIN(bugprone-parent-virtual-call)
    [[nodiscard]] QSize sizeHint() const override { return QWidget::sizeHint(); }
    [[nodiscard]] QSize minimumSizeHint() const override { return QWidget::minimumSizeHint(); }
    // NOLINTEND(bugprone-parent-virtual-call)

protected:
    /// Paints what is under the views. Unless overridden, only the pointer leaves a trace.
    virtual void paintGround(QPainter& painter, const Theme& theme);
    /// The colour of the focus ring on that ground.
    [[nodiscard]] virtual Tint focusTint() const { return Ink::accent; }
    [[nodiscard]] double cornerRadius() const { return radius_; }

    void paintEvent(QPaintEvent* event) override;
    void childEvent(QChildEvent* event) override;

private:
    std::optional<bool> selected_;
    std::optional<bool> expanded_;
    bool busy_ = false;
    bool hadFocus_ = false; // when it became busy
    double radius_ = Space::controlRadius;
};

} // namespace quillon
