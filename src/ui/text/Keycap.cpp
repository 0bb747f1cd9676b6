#include "ui/text/Keycap.h"

#include "artwork/Brand.h"
#include "artwork/Colors.h"
#include "artwork/Shapes.h"
#include "state/ShownKeys.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>
#include <array>
#include <utility>

namespace quillon {
namespace {

constexpr TextStyle capText{11, QFont::DemiBold};
constexpr double leastSide = 20;
constexpr double besideLabel = 5;
constexpr double radius = 5;
constexpr double shadowOffset = 1.5;
constexpr double shadowOpacity = 0.18;
constexpr double shadowRoom = 2;
constexpr double darkCapOpacity = 0.55;
constexpr double lightCapOpacity = 0.14;
constexpr int betweenKeys = 3;
constexpr double labelTint = 0.16;

struct KeyName {
    const char* symbol;
    const char* name;
};

constexpr std::array keyNames{
    KeyName{"⌃", QT_TRANSLATE_NOOP("quillon::Keycap", "Control")},
    KeyName{"⌥", QT_TRANSLATE_NOOP("quillon::Keycap", "Alt")},
    KeyName{"⇧", QT_TRANSLATE_NOOP("quillon::Keycap", "Shift")},
};

/// Whether the label is the key's: its symbol, or what shownKeys has in its place.
bool isLabelOf(const KeyName& key, const QString& label) {
    return label == QString::fromUtf8(key.symbol) ||
           label == QCoreApplication::translate("Shortcut", key.symbol);
}

QString spokenKey(const QString& label) {
    const auto* const known =
        std::ranges::find_if(keyNames, [&](const KeyName& key) { return isLabelOf(key, label); });
    if (known == keyNames.end()) return label;
    return QCoreApplication::translate("quillon::Keycap", known->name);
}

} // namespace

KeyView::KeyView(QString label) : label_{std::move(label)} {
    setAccessibleRole(QAccessible::StaticText);
    setAccessibleName(spokenKey(label_));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize KeyView::sizeHint() const {
    const QFontMetricsF metrics{Theme::font(capText)};
    const double least = Theme::length(leastSide);
    const double width = std::max(least, metrics.horizontalAdvance(label_) + 2 * besideLabel);
    const double height = std::max(least, metrics.height() + 2);
    return wholeSize(width, height + shadowRoom);
}

void KeyView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    const QRectF box = QRectF{rect()}.adjusted(0, 0, 0, -shadowRoom);
    const QColor ink = paintKey(painter, box);
    painter.setFont(Theme::font(capText));
    painter.setPen(ink);
    painter.drawText(box, Qt::AlignCenter, label_);
}

QColor KeyLabel::paintKey(QPainter& painter, const QRectF& box) const {
    const Theme theme = this->theme();
    paintBox(painter, box, radius, faded(theme.color(Ink::accent), labelTint));
    return theme.color(Ink::primary);
}

QColor Keycap::paintKey(QPainter& painter, const QRectF& box) const {
    const Theme theme = this->theme();
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainterPath cap = roundedPath(box, radius);
    // The cap is translucent, and its own shadow must not show through it.
    painter.fillPath(cap.translated(0, shadowOffset).subtracted(cap),
                     theme.fill(faded(Qt::black, shadowOpacity)));
    if (dark_) {
        painter.fillPath(cap, theme.fill(faded(Qt::white, darkCapOpacity)));
        return theme.color(Brand::navy);
    }
    // A white cap would be invisible on white.
    const QColor fill = theme.dark() ? QColor{Qt::white} : Brand::navy;
    painter.fillPath(cap, theme.fill(faded(fill, lightCapOpacity)));
    return theme.color(theme.dark() ? Tint{QColor{Qt::white}} : Tint{Ink::primary});
}

KeyRow::KeyRow(KeyKind kind, const QStringList& labels) : kind_{kind} {
    setAccessibleRole(QAccessible::StaticText);
    setLayoutDirection(Qt::LeftToRight);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    rowIn(this, betweenKeys);
    setLabels(labels);
}

void KeyRow::setLabels(const QStringList& labels) {
    if (labels == labels_) return;
    labels_ = labels;
    while (QLayoutItem* item = layout()->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const QString& label : labels) {
        KeyView* key = nullptr;
        if (kind_ == KeyKind::label) {
            key = new KeyLabel{label};
        } else {
            key = new Keycap{label, kind_ == KeyKind::darkCap};
        }
        layout()->addWidget(key);
    }
    setAccessibleName(spokenKeys(labels));
}

QStringList keyLabels(ShortcutChoice shortcut) {
    QStringList labels;
    for (const std::string& key : shownKeys(shortcut))
        labels << QString::fromStdString(key);
    return labels;
}

QString spokenKeys(const QStringList& labels) {
    QStringList words;
    for (const QString& label : labels)
        words += spokenKey(label);
    return words.join(QLatin1Char{' '});
}

QString spokenText(QString text) {
    for (const KeyName& key : keyNames) {
        const QString symbol = QString::fromUtf8(key.symbol);
        if (text.contains(symbol)) text.replace(symbol, spokenKey(symbol) + QLatin1Char{' '});
    }
    return text;
}

} // namespace quillon
