#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace quillon {

/// Lays items out one after the other in the direction of writing, on as many lines as they need.
/// An item that is wider than a line gets the line's width.
class FlowLayout : public QLayout {
    Q_OBJECT

public:
    /// `spacing` is the distance between items and between lines, in device-independent pixels.
    explicit FlowLayout(int spacing);

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override { return static_cast<int>(items_.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    /// The size of all items on one line.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    void setGeometry(const QRect& frame) override;

private:
    /// Returns the height that the items take in a frame of this width, and moves them if `move`.
    int arrange(const QRect& frame, bool move) const;

    std::vector<std::unique_ptr<QLayoutItem>> items_;
};

} // namespace quillon
