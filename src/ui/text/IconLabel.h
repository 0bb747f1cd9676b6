#pragma once

#include "ui/accessibility/View.h"
#include "ui/text/TextBlock.h"

#include <optional>
#include <string>

namespace quillon {

/// What a label does with a text that is wider than the label.
enum class Overflow { wrap, elideEnd, elideMiddle };

/// How a label looks.
struct LabelLook {
    TextStyle style = Text::body;
    Tint ink = Ink::primary;
    /// The symbol's colour where it is not the text's.
    std::optional<Tint> symbolInk{};
    Overflow overflow = Overflow::wrap;
    Qt::Alignment align = Qt::AlignLeading; // of a single line: leading or centred
};

/// A text, with a symbol before its first line if it has one. If the text is cut, a tool tip shows
/// all of it.
class IconLabel : public View {
    Q_OBJECT

public:
    explicit IconLabel(StyledText text = {}, std::string symbol = {}, LabelLook look = {},
                       QWidget* parent = nullptr);

    void setText(const StyledText& text);
    [[nodiscard]] const StyledText& text() const { return text_; }
    /// An empty name takes the symbol away.
    void setSymbol(const std::string& symbol);
    void setLook(const LabelLook& look);
    /// The part of the text that is on the screen, without what did not fit.
    [[nodiscard]] QString shownText() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QString accessibleText() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] TextBlock block() const;
    /// The width of the symbol and the gap after it.
    [[nodiscard]] double indent() const;
    QSizeF layOut(TextBlock& block, double width) const;

    StyledText text_;
    std::string symbol_;
    LabelLook look_;
};

} // namespace quillon
