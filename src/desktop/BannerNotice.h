#pragma once

#include <QAccessible>
#include <QWidget>

namespace quillon {

/// Tells assistive technology of a banner that is no window of Qt's. It is a window that never
/// shows, and says of itself that it does.
class BannerNotice : public QWidget {
    Q_OBJECT

public:
    BannerNotice();

    /// Has screen readers read the text out, once more if it is the same.
    void announce(const QString& text);
    /// Takes the announcement back, with the banner.
    void end();
    [[nodiscard]] bool announced() const { return announced_; }

private:
    void tell(QAccessible::Event event);

    bool announced_ = false;
};

} // namespace quillon
