#include "state/Topic.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(Topic, OfAKindIsTheFirstOneElseTheListsFirst) {
    const Topic files{.key = "files", .name = "Papers", .color = 1, .threadId = 5};
    const Topic others{.key = "files", .name = "Others", .color = 1, .threadId = 6};
    const Topic strange{.key = "strange", .name = "Strange", .color = 1, .threadId = 7};
    EXPECT_EQ(topicFor({strange, files, others}, TopicKind::files), files);
    EXPECT_EQ(topicFor({strange, files}, TopicKind::images), strange);
    // Without any topic, what is sent goes to the group's general one.
    EXPECT_EQ(topicFor({}, TopicKind::videos).name, "🎬 Videos");
    EXPECT_EQ(topicFor({}, TopicKind::videos).threadId, std::nullopt);
}

} // namespace quillon
