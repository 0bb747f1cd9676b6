#include "ui/controls/AppIcon.h"

#include "ui/controls/BrandViews.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

namespace quillon {
namespace {

class AppIconEngine : public QIconEngine {
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/,
               QIcon::State /*state*/) override {
        paintAppIcon(*painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap{size};
        pixmap.fill(Qt::transparent);
        QPainter painter{&pixmap};
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    /// The sizes, in pixels, that title bars, task bars and window switchers show.
    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        QList<QSize> sizes;
        for (const int side : {16, 24, 32, 48, 64, 128})
            sizes.append({side, side});
        return sizes;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new AppIconEngine{*this}; }
};

} // namespace

QIcon appIcon() {
    return QIcon{new AppIconEngine};
}

} // namespace quillon
