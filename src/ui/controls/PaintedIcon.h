#pragma once

#include <QIconEngine>

#include <functional>
#include <initializer_list>

class QPainter;

namespace quillon {

/// What is behind an icon that is painted in each size on demand.
class PaintedIcon final : public QIconEngine {
public:
    using Paint = std::function<void(QPainter&, const QRectF&)>;

    /// `paint` fills the frame that it is given. `sides` are those of squares, in pixels, for who
    /// asks which sizes there are. With a `name`, who paints icons themselves, as hosts of trays
    /// do, look for it in the icon theme first.
    PaintedIcon(Paint paint, std::initializer_list<int> sides, QString name = {});

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    QString iconName() override { return name_; }
    [[nodiscard]] QIconEngine* clone() const override { return new PaintedIcon{*this}; }

private:
    Paint paint_;
    QList<QSize> sizes_;
    QString name_;
};

} // namespace quillon
