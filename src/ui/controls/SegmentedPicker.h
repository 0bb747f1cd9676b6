#pragma once

#include "ui/accessibility/View.h"

#include <QStringList>

#include <vector>

namespace quillon {

class Segment;

/// A few choices side by side, one of them picked. The Tab key reaches the picked one, the arrow
/// keys pick its neighbours. To assistive technology it is a group of radio buttons; it needs an
/// accessible name.
class SegmentedPicker : public View {
    Q_OBJECT

public:
    explicit SegmentedPicker(const QStringList& items, QWidget* parent = nullptr);

    /// -1 when none is picked.
    [[nodiscard]] int currentIndex() const;
    /// Does not emit picked().
    void setCurrentIndex(int index);
    /// What the item is called where its text does not say it.
    void setItemAccessibleName(int index, const QString& name);

    [[nodiscard]] QAccessible::Role accessibleRole() const override;

Q_SIGNALS:
    /// The user picked another one.
    void picked(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void keepOneTabStop();

    std::vector<Segment*> segments_;
    int current_ = -1;
};

} // namespace quillon
