#pragma once

#include "ui/theme/Themed.h"

#include <QPushButton>

#include <optional>
#include <string>

namespace quillon {

enum class ButtonKind {
    bordered,
    prominent,  // the one thing to do here
    borderless, // text with room around it that lights up under the pointer
    destructive,
};

/// How a button looks.
struct ButtonLook {
    ButtonKind kind = ButtonKind::bordered;
    TextStyle style = Text::body;
    /// The symbol's colour where it is not the text's.
    std::optional<Tint> symbolInk{};
};

/// A button with a text, a symbol or both. An "&" in the text marks its mnemonic. Space presses it,
/// and so does Return while it has the focus.
class TextButton : public Themed<QPushButton> {
    Q_OBJECT

public:
    explicit TextButton(const QString& text, std::string symbol = {}, ButtonLook look = {},
                        QWidget* parent = nullptr);

    void setSymbol(const std::string& symbol);

    /// Room between the edge and the text on either side, for those who line its text up with other
    /// texts.
    [[nodiscard]] int inset() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void paintGround(QPainter& painter, const Theme& theme) const;
    void paintContent(QPainter& painter, const Theme& theme) const;
    [[nodiscard]] Tint ink() const;
    /// Symbol, gap and text.
    [[nodiscard]] double contentWidth() const;
    /// The symbol and the gap after it.
    [[nodiscard]] double symbolWidth() const;

    std::string symbol_;
    ButtonLook look_;
};

/// A button whose face is made of views, laid out inside it: they take no clicks, the button does,
/// over its whole rectangle. Without an accessible name it is silent. Space and Return press it.
class ContentButton : public Themed<QPushButton> {
    Q_OBJECT

public:
    explicit ContentButton(QWidget* parent = nullptr);

    /// One of several, and the one that is taken; told to assistive technology as "selected".
    void setSelected(bool selected);
    [[nodiscard]] std::optional<bool> selected() const { return selected_; }
    /// Opens and closes something, and whether that is open; nothing for a button that does not.
    void setExpanded(std::optional<bool> expanded);
    [[nodiscard]] std::optional<bool> expanded() const { return expanded_; }
    /// Does what it is for at the moment: disabled meanwhile, but not faded.
    void setBusy(bool busy);
    [[nodiscard]] bool busy() const { return busy_; }
    /// The corners of its face, for the focus ring.
    void setCornerRadius(double radius);

    /// Those of its layout.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    /// What is under the views: nothing but a trace of the pointer, unless overridden.
    virtual void paintGround(QPainter& painter, const Theme& theme);
    /// The colour of the focus ring on that ground.
    [[nodiscard]] virtual Tint focusTint() const { return Ink::accent; }
    [[nodiscard]] double cornerRadius() const { return radius_; }

    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void childEvent(QChildEvent* event) override;

private:
    std::optional<bool> selected_;
    std::optional<bool> expanded_;
    bool busy_ = false;
    bool hadFocus_ = false; // when it became busy
    double radius_ = Space::controlRadius;
};

} // namespace quillon
