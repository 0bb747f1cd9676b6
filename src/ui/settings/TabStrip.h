#pragma once

#include "ui/theme/Themed.h"

#include <QTabBar>

#include <string>
#include <vector>

namespace quillon {

/// The tabs of a window, each a symbol above a title. Arrow keys and mnemonics switch between them.
class TabStrip : public Themed<QTabBar> {
    Q_OBJECT

public:
    TabStrip();

    void add(const QString& title, const std::string& symbol);

protected:
    [[nodiscard]] QSize tabSizeHint(int index) const override;
    [[nodiscard]] QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    /// Makes Qt tell assistive technology which tab is selected and which has the focus, which its
    /// own description of tabs does not.
    static void describe();
    void paintTab(QPainter& painter, int index) const;

    std::vector<std::string> symbols_;
    int hovered_ = -1;
};

} // namespace quillon
