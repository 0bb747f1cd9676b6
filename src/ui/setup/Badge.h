#pragma once

#include "ui/accessibility/View.h"

#include <string>

namespace quillon {

/// A number or a symbol in a small tinted circle.
class Badge : public View {
    Q_OBJECT

public:
    Badge();

    void setNumber(int number);
    void setSymbol(const std::string& symbol);
    /// Shows the checkmark of what is done, on a circle in full colour.
    void setDone();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
    [[nodiscard]] QString accessibleText() const override;

    /// Its diameter in device-independent pixels.
    [[nodiscard]] static int side();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void set(int number, const std::string& symbol, bool done);

    int number_ = 0;
    std::string symbol_;
    bool done_ = false;
};

} // namespace quillon
