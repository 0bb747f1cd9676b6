#pragma once

#include "state/Topic.h"
#include "ui/accessibility/View.h"

#include <vector>

namespace quillon {

class Chip;

/// The names of the topics, each in the topic's colour.
class TopicChips : public View {
    Q_OBJECT

public:
    TopicChips();

    void setTopics(const std::vector<Topic>& topics);

private:
    std::vector<Chip*> chips_;
};

} // namespace quillon
