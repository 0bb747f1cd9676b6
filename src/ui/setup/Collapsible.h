#pragma once

#include "ui/accessibility/View.h"
#include "ui/theme/Transition.h"

namespace quillon {

/// Shows its content or takes no room. While it opens or closes, the content is uncovered from the
/// top; what is closed can neither be clicked nor reached with the keyboard.
class Collapsible : public View {
    Q_OBJECT

public:
    /// Closed at first. Takes the content over.
    explicit Collapsible(QWidget* content, QWidget* parent = nullptr);

    void setOpen(bool open, bool animated);
    [[nodiscard]] bool moving() const { return openness_.running(); }
    /// By how many pixels it will be higher when it has stopped moving.
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
    Transition openness_;
};

} // namespace quillon
