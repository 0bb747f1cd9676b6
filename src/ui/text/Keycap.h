#pragma once

#include "state/ShortcutChoice.h"
#include "ui/accessibility/View.h"

#include <QStringList>

namespace quillon {

/// How a key looks: as a raised cap, as one for light and coloured grounds whatever the desktop's
/// colours are, or as a lightly tinted label within a sentence.
enum class KeyKind { cap, darkCap, label };

/// Shows the label of one key, and says it in words to assistive technology.
class KeyView : public View {
    Q_OBJECT

public:
    KeyView(KeyKind kind, QString label);

    [[nodiscard]] QString label() const { return label_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Paints the cap into this box, and returns the colour of the label on it.
    [[nodiscard]] QColor paintCap(QPainter& painter, const QRectF& box) const;

    KeyKind kind_;
    QString label_;
};

/// The keys of a shortcut side by side, in the order in which they are pressed, whatever the
/// direction of writing.
class KeyRow : public View {
    Q_OBJECT

public:
    explicit KeyRow(KeyKind kind, const QStringList& labels = {});

    void setLabels(const QStringList& labels);

private:
    KeyKind kind_;
    QStringList labels_;
};

/// The labels of a shortcut's keys, in the order in which they are pressed.
[[nodiscard]] QStringList keyLabels(ShortcutChoice shortcut);

/// The names of the keys: "Control Alt V" for ⌃, ⌥ and V.
[[nodiscard]] QString spokenKeys(const QStringList& labels);

/// The text with words in place of the symbols of keys: "press Control Alt V" for "press ⌃⌥V".
[[nodiscard]] QString spokenText(QString text);

} // namespace quillon
