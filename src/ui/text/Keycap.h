#pragma once

#include "state/ShortcutChoice.h"
#include "ui/accessibility/View.h"

#include <QStringList>

namespace quillon {

/// Shows the label of one key, and says it in words to assistive technology.
class KeyView : public View {
    Q_OBJECT

public:
    explicit KeyView(QString label);

    [[nodiscard]] QString label() const { return label_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    /// Paints what is under the label into this box, and returns the colour of the label on it.
    [[nodiscard]] virtual QColor paintKey(QPainter& painter, const QRectF& box) const = 0;
    void paintEvent(QPaintEvent* event) override;

private:
    QString label_;
};

/// A key as a raised cap. A `dark` cap is made for light and coloured grounds, whatever the
/// desktop's colours are.
class Keycap : public KeyView {
    Q_OBJECT

public:
    explicit Keycap(const QString& label, bool dark = false) : KeyView{label}, dark_{dark} {}

protected:
    [[nodiscard]] QColor paintKey(QPainter& painter, const QRectF& box) const override;

private:
    bool dark_;
};

/// A key as a lightly tinted label within a sentence.
class KeyLabel : public KeyView {
    Q_OBJECT

public:
    using KeyView::KeyView;

protected:
    [[nodiscard]] QColor paintKey(QPainter& painter, const QRectF& box) const override;
};

enum class KeyKind { cap, darkCap, label };

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

/// The names of the keys: "Control Alt V" for ⌃ or Ctrl, ⌥ or Alt, and V.
[[nodiscard]] QString spokenKeys(const QStringList& labels);

/// The text with words in place of the symbols of keys: "press Control Alt V" for "press ⌃⌥V".
[[nodiscard]] QString spokenText(QString text);

} // namespace quillon
