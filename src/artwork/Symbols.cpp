#include "artwork/Symbols.h"

#include <QByteArray>
#include <QFile>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <cmath>

// The linker drops a static library's resources unless this macro asks for them. It only works
// outside of namespaces.
static void loadSymbols() {
    Q_INIT_RESOURCE(symbols);
}

namespace quillon {
namespace {

constexpr std::array table{
#define SYMBOL(name, icon) SymbolEntry{name, icon},
#include "artwork/Symbols.def"
#undef SYMBOL
};

constexpr std::string_view fallbackIcon = "hash";

// The width of the lines that each weight adds around an icon's shapes, in units of its 16 by 16
// grid. The icon's own lines are about 1 wide.
constexpr std::array<double, 3> extraLines{0, 0.4, 0.8};

/// Filled symbols get no extra line: it would only close their cut-outs.
double extraLine(std::string_view name, SymbolWeight weight) {
    const bool filled = name.find(".fill") != std::string_view::npos;
    return filled ? 0 : extraLines.at(static_cast<std::size_t>(weight));
}

QString fromView(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The icon's SVG document, with lines of the given width around its shapes.
QByteArray iconDocument(std::string_view icon, double line) {
    loadSymbols();
    QFile file{QStringLiteral(":/symbols/%1.svg").arg(fromView(icon))};
    if (!file.open(QIODevice::ReadOnly)) return {};
    QByteArray document = file.readAll();
    if (line > 0) {
        document.replace("<svg ", R"(<svg stroke="#000" stroke-linejoin="round" stroke-width=")" +
                                      QByteArray::number(line) + R"(" )");
    }
    return document;
}

QPixmap drawSymbol(std::string_view icon, double size, QColor color, double devicePixelRatio,
                   double line) {
    const int pixels = static_cast<int>(std::lround(size * devicePixelRatio));
    QPixmap pixmap{pixels, pixels};
    pixmap.fill(Qt::transparent);
    QPainter painter{&pixmap};
    QSvgRenderer renderer{iconDocument(icon, line)};
    // Many icons touch the edge of their grid, and half of the extra line lies beyond it.
    renderer.setViewBox(QRectF{0, 0, 16, 16}.adjusted(-line / 2, -line / 2, line / 2, line / 2));
    renderer.render(&painter, QRectF{pixmap.rect()});
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), color);
    painter.end();
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

} // namespace

std::span<const SymbolEntry> symbols() {
    return table;
}

std::string_view symbolIcon(std::string_view name) {
    const auto* const entry = std::ranges::find(table, name, &SymbolEntry::name);
    return entry == table.end() ? fallbackIcon : entry->icon;
}

QPixmap symbolPixmap(std::string_view name, double size, QColor color, double devicePixelRatio,
                     SymbolWeight weight) {
    const std::string_view icon = symbolIcon(name);
    const double line = extraLine(name, weight);
    const QString key = QStringLiteral("symbol/%1/%2/%3/%4/%5")
                            .arg(fromView(icon))
                            .arg(size)
                            .arg(color.rgba(), 0, 16)
                            .arg(devicePixelRatio)
                            .arg(line);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) return pixmap;
    pixmap = drawSymbol(icon, size, color, devicePixelRatio, line);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

} // namespace quillon
