#pragma once

#include "ui/accessibility/View.h"

#include <QTextBrowser>

namespace quillon {

/// Text from outside, read-only, to be selected and scrolled. Loads nothing; opens links to https
/// addresses in the browser.
class ReadOnlyText : public Themed<QTextBrowser> {
    Q_OBJECT

public:
    explicit ReadOnlyText(QWidget* parent = nullptr);

    /// Structured text, whose links have the theme's colour.
    void setStructuredText(const QString& html);
    /// How high it would be without scrolling, in pixels.
    [[nodiscard]] int heightFor(double width) const;

protected:
    void themeChanged() override;
    /// Whatever a document names stays where it is.
    QVariant loadResource(int type, const QUrl& name) override;

private:
    QString html_;
};

/// The ground that a long text stands on.
class TextGround : public View {
    Q_OBJECT

public:
    explicit TextGround(ReadOnlyText* text);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The sentences of a message below its title, as high as they need up to a limit, beyond which
/// they scroll.
class MessageText : public ReadOnlyText {
    Q_OBJECT

public:
    /// `width` in points of the design.
    MessageText(const QString& text, double width, QWidget* parent = nullptr);

protected:
    void themeChanged() override;

private:
    void fit();

    double width_;
};

} // namespace quillon
