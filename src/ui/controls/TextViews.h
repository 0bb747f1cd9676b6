#pragma once

#include "ui/theme/Themed.h"

#include <QTextBrowser>

namespace quillon {

/// A read-only text from outside, which can be selected and scrolled. It loads nothing, and opens
/// links to https addresses in the browser.
class ReadOnlyText : public Themed<QTextBrowser> {
    Q_OBJECT

public:
    ReadOnlyText();

    /// Shows an HTML text, with links in the theme's colour.
    void setStructuredText(const QString& html);
    /// The height in pixels that it needs at this width if it is not to scroll.
    [[nodiscard]] int heightFor(double width) const;

protected:
    void themeChanged() override;
    /// Loads nothing, whatever the document names.
    QVariant loadResource(int type, const QUrl& name) override;

private:
    QString html_;
};

/// The text of a message, below its title. It is as high as it needs up to a limit, and scrolls
/// beyond that.
class MessageText : public ReadOnlyText {
    Q_OBJECT

public:
    /// `width` in points of the design.
    MessageText(const QString& text, double width);

protected:
    void themeChanged() override;

private:
    void fit();

    double width_;
};

} // namespace quillon
