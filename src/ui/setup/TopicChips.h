#pragma once

#include "state/Topic.h"
#include "ui/accessibility/View.h"

#include <vector>

namespace quillon {

class Chip;

/// The topics by name, each in its colour.
class TopicChips : public View {
    Q_OBJECT

public:
    explicit TopicChips(QWidget* parent = nullptr);

    void setTopics(const std::vector<Topic>& topics);

private:
    std::vector<Chip*> chips_;
};

} // namespace quillon
