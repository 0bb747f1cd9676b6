#pragma once

#include "ui/accessibility/View.h"
#include "ui/settings/SettingsActions.h"

#include <QDeadlineTimer>

class QVBoxLayout;

namespace quillon {

/// Tells what keeps the program from working, a line each, with a line above them. It looks when it
/// is told to, and shows nothing where nothing is wrong.
class TroubleStrip : public View {
    Q_OBJECT

public:
    explicit TroubleStrip(TroubleSource source);

    /// Looks anew, unless a look is under way.
    void look();
    /// The same, unless the last look found nothing, a moment ago.
    void lookIfDue();

Q_SIGNALS:
    /// Other lines show than before, or none.
    void changed();

private:
    QCoro::Task<> lookNow();
    void add(QWidget* line);
    void tell(const std::vector<std::string>& troubles);

    TroubleSource source_;
    QVBoxLayout* lines_;
    std::vector<std::string> shown_;
    QDeadlineTimer rest_;
    bool looking_ = false;
};

} // namespace quillon
