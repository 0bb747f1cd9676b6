#include "ui/setup/TopicChips.h"

#include "ui/setup/FlowLayout.h"
#include "ui/text/Chip.h"

namespace quillon {

TopicChips::TopicChips() {
    setLayout(new FlowLayout{Space::small});
}

void TopicChips::setTopics(const std::vector<Topic>& topics) {
    while (chips_.size() > topics.size()) {
        delete chips_.back();
        chips_.pop_back();
    }
    for (std::size_t i = 0; i < topics.size(); ++i) {
        const QString name = QString::fromStdString(topics[i].name);
        const QColor color = QColor::fromRgb(static_cast<QRgb>(topics[i].color));
        if (i < chips_.size()) {
            chips_[i]->setChip(name, color);
        } else {
            chips_.push_back(new Chip{name, color});
            layout()->addWidget(chips_.back());
        }
    }
}

} // namespace quillon
