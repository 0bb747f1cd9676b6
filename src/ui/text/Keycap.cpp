#include "ui/text/Keycap.h"

#include "artwork/Brand.h"
#include "artwork/Colors.h"
#include "artwork/Shapes.h"

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
    QChar symbol;
    const char* name;
};

constexpr std::array keyNames{
    KeyName{u'\u2303', QT_TRANSLATE_NOOP("quillon::Keycap", "Control")},
    KeyName{u'\u2325', QT_TRANSLATE_NOOP("quillon::Keycap", "Alt")},
    KeyName{u'\u21e7', QT_TRANSLATE_NOOP("quillon::Keycap", "Shift")},
};

QString spokenKey(const QString& label) {
    const auto* const known = std::ranges::find_if(
        keyNames, [&](const KeyName& key) { return label == QString{key.symbol}; });
    if (known == keyNames.end()) return label;
    return QCoreApplication::translate("quillon::Keycap", known->name);
}

} // namespace

KeyView::KeyView(QString label, QWidget* parent) : View{parent}, label_{std::move(label)} {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void KeyView::setLabel(const QString& label) {
    if (label == label_) return;
    label_ = label;
    themeChanged();
    announceText();
}

QSize KeyView::sizeHint() const {
    const QFontMetricsF metrics{Theme::font(capText)};
    const double least = Theme::length(leastSide);
    const double width = std::max(least, metrics.horizontalAdvance(label_) + 2 * besideLabel);
    const double height = std::max(least, metrics.height() + 2);
    return wholeSize(width, height + shadowRoom);
}

QAccessible::Role KeyView::accessibleRole() const {
    return QAccessible::StaticText;
}

QString KeyView::accessibleText() const {
    return spokenKey(label_);
}

QRectF KeyView::keyBox() const {
    return QRectF{rect()}.adjusted(0, 0, 0, -shadowRoom);
}

void KeyView::paintLabel(QPainter& painter, QColor color) const {
    painter.setFont(Theme::font(capText));
    painter.setPen(color);
    painter.drawText(keyBox(), Qt::AlignCenter, label_);
}

Keycap::Keycap(const QString& label, bool dark, QWidget* parent)
    : KeyView{label, parent},
      dark_{dark} {}

void Keycap::paintEvent(QPaintEvent* /*event*/) {
    const Theme theme = this->theme();
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainterPath cap = roundedPath(keyBox(), radius);
    // The cap is translucent, and its own shadow must not show through it.
    painter.fillPath(cap.translated(0, shadowOffset).subtracted(cap),
                     theme.fill(faded(Qt::black, shadowOpacity)));
    if (dark_) {
        painter.fillPath(cap, theme.fill(faded(Qt::white, darkCapOpacity)));
        paintLabel(painter, theme.color(Brand::navy));
    } else if (theme.dark()) {
        painter.fillPath(cap, theme.fill(faded(Qt::white, lightCapOpacity)));
        paintLabel(painter, theme.color(QColor{Qt::white}));
    } else { // a white cap would be invisible on white
        painter.fillPath(cap, theme.fill(faded(Brand::navy, lightCapOpacity)));
        paintLabel(painter, theme.color(Ink::primary));
    }
}

void KeyLabel::paintEvent(QPaintEvent* /*event*/) {
    const Theme theme = this->theme();
    QPainter painter{this};
    paintBox(painter, keyBox(), radius, faded(theme.color(Ink::accent), labelTint));
    paintLabel(painter, theme.color(Ink::primary));
}

KeyRow::KeyRow(KeyKind kind, const QStringList& labels, QWidget* parent)
    : View{parent},
      kind_{kind} {
    setLayoutDirection(Qt::LeftToRight);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(betweenKeys);
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
    announceText();
}

QAccessible::Role KeyRow::accessibleRole() const {
    return QAccessible::StaticText;
}

QString KeyRow::accessibleText() const {
    return spokenKeys(labels_);
}

QStringList keyLabels(ShortcutChoice shortcut) {
    QStringList labels;
    for (const std::string_view key : keys(shortcut))
        labels << QString::fromUtf8(key.data(), std::ssize(key));
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
        if (text.contains(key.symbol))
            text.replace(key.symbol, spokenKey(QString{key.symbol}) + QLatin1Char{' '});
    }
    return text;
}

} // namespace quillon
