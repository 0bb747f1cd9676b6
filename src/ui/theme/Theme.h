#pragma once

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QPalette>
#include <QPen>
#include <QSize>

#include <variant>

class QHBoxLayout;
class QPainter;
class QRectF;
class QVBoxLayout;
class QWidget;

namespace quillon {

/// What a colour is for. The theme decides which colour that is on this desktop.
enum class Ink { primary, secondary, tertiary, accent, warning, destructive };

/// A colour, given by what it is for or as a certain colour.
using Tint = std::variant<Ink, QColor>;

/// A size and a weight of the application's font. Sizes are in points of the design, whose running
/// text has 13 points: a text of 13 is as large as the application's font, whatever its size.
struct TextStyle {
    double points;
    QFont::Weight weight = QFont::Normal;

    [[nodiscard]] constexpr TextStyle semibold() const { return {points, QFont::DemiBold}; }
    [[nodiscard]] constexpr TextStyle bold() const { return {points, QFont::Bold}; }
    bool operator==(const TextStyle&) const = default;
};

namespace Text {
inline constexpr TextStyle title{17, QFont::Bold};
inline constexpr TextStyle headline{13, QFont::DemiBold};
inline constexpr TextStyle body{13};
inline constexpr TextStyle callout{12};
inline constexpr TextStyle caption{11};
} // namespace Text

/// Distances and corner radii in device-independent pixels.
namespace Space {
inline constexpr int hair = 2;
inline constexpr int tight = 4;
inline constexpr int small = 8;
inline constexpr int medium = 14;
inline constexpr int large = 20;
inline constexpr double cardRadius = 12;
inline constexpr double controlRadius = 7;
inline constexpr double focusWidth = 2;
} // namespace Space

/// The colours and fonts of the views, derived from a widget's palette and the application's font.
/// Views make one whenever they paint or measure, and never keep it.
class Theme {
public:
    /// The colours of a disabled widget come faded.
    explicit Theme(const QWidget& widget);
    explicit Theme(QPalette palette, bool enabled = true);

    /// Whether text is light on a dark ground.
    [[nodiscard]] bool dark() const { return dark_; }
    [[nodiscard]] QColor color(const Tint& tint) const;
    /// The colour, faded if the widget is disabled: for what a control is filled with.
    [[nodiscard]] QColor fill(QColor color) const;
    /// The faintest fill that still shows an area, and its variants under the pointer and pressed.
    [[nodiscard]] QColor quaternaryFill() const;
    [[nodiscard]] QColor hoverFill() const;
    [[nodiscard]] QColor pressedFill() const;
    /// The ground of a card, and the thin line around cards and between sections.
    [[nodiscard]] QColor cardFill() const;
    [[nodiscard]] QColor separator() const;
    /// The colour, darkened or lightened until text in it is legible on a card and in a window.
    [[nodiscard]] QColor readable(QColor color) const;
    /// White or navy, whichever suits symbols on a tile of this colour.
    [[nodiscard]] static QColor onTile(QColor tile);

    /// Paints the ring around the control with the keyboard's focus, just inside of `box`. A
    /// control with a fill passes a certain colour that stands out from the fill.
    void paintFocusRing(QPainter& painter, const QRectF& box, double radius,
                        const Tint& tint = Ink::accent) const;

    [[nodiscard]] static QFont font(const TextStyle& style);
    /// The size of the application's font, as a multiple of the design's. It scales what belongs to
    /// text: symbols, key caps, widths of columns.
    [[nodiscard]] static double textScale();
    /// A length of the design, in pixels. It grows with the text, but does not shrink with it.
    [[nodiscard]] static double length(double points);
    /// The same, rounded up to whole pixels.
    [[nodiscard]] static int wholeLength(double points);

private:
    QPalette palette_;
    bool enabled_;
    bool dark_;
};

/// The opacity of what is disabled, and of a step whose turn has not come.
inline constexpr double dimmedOpacity = 0.45;

/// Lays the widget's content out as a row or a column, with this distance between its parts and to
/// each of its edges.
QHBoxLayout* rowIn(QWidget* widget, int spacing, int margin = 0);
QVBoxLayout* columnIn(QWidget* widget, int spacing, int margin = 0);

/// A size of whole pixels that has room for this width and height.
[[nodiscard]] QSize wholeSize(double width, double height);

/// Whether the widget and all that is in it keep their colours while the widget is disabled. That
/// is for a widget that is disabled for a moment only, and whose text is still to be read.
void setBrightWhileDisabled(QWidget& widget, bool bright);

/// Shows the widget and all that is in it at this opacity, from 0 to 1.
void setOpacity(QWidget& widget, double opacity);

/// Paints a box with round corners. A line around it lies just inside of `box`.
void paintBox(QPainter& painter, const QRectF& box, double radius, const QBrush& fill,
              const QPen& line = Qt::NoPen);

} // namespace quillon
