#include "ui/settings/TroubleStrip.h"

#include "ui/controls/Card.h"
#include "ui/text/IconLabel.h"

#include <QPointer>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

namespace quillon {

namespace {

/// More would leave no room for the settings.
constexpr std::size_t mostLines = 3;

/// After a look that has found nothing; a look takes some requests.
constexpr std::chrono::seconds quietTime{30};

IconLabel* makeLine(const std::string& trouble) {
    auto* const line =
        new IconLabel{QString::fromStdString(trouble),
                      "exclamationmark.triangle.fill",
                      {.style = Text::callout, .ink = Ink::warning, .overflow = Overflow::wrap}};
    line->setAccessibleRole(QAccessible::AlertMessage);
    return line;
}

} // namespace

TroubleStrip::TroubleStrip(TroubleSource source)
    : source_{std::move(source)},
      lines_{new QVBoxLayout} {
    lines_->setContentsMargins(Space::large, Space::small, Space::large, Space::small);
    lines_->setSpacing(Space::small);
    auto* const column = columnIn(this, 0);
    column->addWidget(new Divider);
    column->addLayout(lines_);
    hide();
}

void TroubleStrip::look() {
    if (source_ && !looking_) lookNow();
}

void TroubleStrip::lookIfDue() {
    if (rest_.hasExpired()) look();
}

QCoro::Task<> TroubleStrip::lookNow() {
    looking_ = true;
    const QPointer<TroubleStrip> self{this};
    QCoro::Task<std::vector<std::string>> looking = source_();
    const std::vector<std::string> troubles = co_await looking;
    if (!self) co_return;
    looking_ = false;
    rest_.setRemainingTime(troubles.empty() ? quietTime : std::chrono::seconds{0});
    tell(troubles);
}

void TroubleStrip::add(QWidget* line) {
    lines_->addWidget(line);
    line->show(); // else it would have no height before the event loop turns
}

void TroubleStrip::tell(const std::vector<std::string>& troubles) {
    if (troubles == shown_) return;
    shown_ = troubles;
    while (QLayoutItem* const old = lines_->takeAt(0)) {
        delete old->widget();
        delete old;
    }
    const std::size_t count = std::min(troubles.size(), mostLines);
    for (std::size_t index = 0; index < count; ++index)
        add(makeLine(troubles[index]));
    if (const int more = static_cast<int>(troubles.size() - count); more > 0) {
        add(new IconLabel{tr("%n more: quillon doctor", nullptr, more),
                          "info.circle",
                          {.style = Text::callout, .ink = Ink::secondary}});
    }
    setVisible(!troubles.empty());
    Q_EMIT changed();
}

} // namespace quillon
