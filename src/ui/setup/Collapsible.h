#pragma once

#include "ui/accessibility/View.h"
#include "ui/theme/Animation.h"

namespace quillon {

/// Shows its content while open, and takes no room while closed. On the way it uncovers the content
/// from the top. Closed content can neither be clicked nor reached with the keyboard.
class Collapsible : public View {
    Q_OBJECT

public:
    /// Is closed at first. Becomes the parent of the content.
    explicit Collapsible(QWidget* content);

    void setOpen(bool open, bool animated);
    [[nodiscard]] bool moving() const { return openness_.running(); }
    /// The number of pixels that it will have grown by when it has stopped moving.
    [[nodiscard]] int growthAhead() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, 0}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] int contentHeight(int width) const;
    void layOut();

    QWidget* content_;
    Animation openness_;
};

} // namespace quillon
