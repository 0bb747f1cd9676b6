#pragma once

#include "ui/accessibility/View.h"

#include <QStringList>

#include <vector>

namespace quillon {

class Segment;

/// A few choices side by side, one of which is picked. The Tab key reaches the picked one, and the
/// arrow keys pick its neighbours. To assistive technology it is a group of radio buttons, which
/// needs an accessible name.
class SegmentedPicker : public View {
    Q_OBJECT

public:
    explicit SegmentedPicker(const QStringList& items);

    /// The picked choice, or -1.
    [[nodiscard]] int currentIndex() const;
    /// Picks a choice without emitting picked().
    void setCurrentIndex(int index);
    /// Names a choice for assistive technology, if its text does not do so.
    void setItemAccessibleName(int index, const QString& name);

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
