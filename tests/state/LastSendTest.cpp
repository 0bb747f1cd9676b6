#include "state/LastSend.h"

#include "support/Testing.h"

namespace quillon::test {

TEST(LastSend, IsReadAllOrNothing) {
    const QUuid one = QUuid::createUuid();
    const QUuid other = QUuid::createUuid();
    const UndoRecord record{.last = {.chat = -1'001'234'567'890,
                                     .date = Date{std::chrono::duration<double>{1.7e9 + 0.25}},
                                     .items = {{one, {5, 6}}, {other, {4'000'000'000}}}},
                            .takenBack = {other, one}};
    const std::string written = encodeUndo(record);
    EXPECT_EQ(decodeUndo(written), record);
    const std::pair<std::string, std::string> spoiled[]{
        {"\"chat\":-", "\"chat\":\"-\",\"x\":"},
        {"[5,6]", "[5,-6]"},
        {"[5,6]", "[5,6.5]"},
        {"[5,6]", "[]"},
        {"[5,6]", "7"},
        {"\"takenBack\":", "\"x\":"},
        {"}", ""},
    };
    for (const auto& [part, instead] : spoiled) {
        std::string text = written;
        ASSERT_NE(text.find(part), text.npos) << part;
        text.replace(text.find(part), part.size(), instead);
        EXPECT_EQ(decodeUndo(text), UndoRecord{}) << text;
    }
}

TEST(LastSend, StaysWithinItsLimits) {
    LastSend send;
    const QUuid first = QUuid::createUuid();
    const QUuid last = QUuid::createUuid();
    send.add(first, 1, {});
    for (std::int64_t id = 2; id < std::int64_t(lastSendLimit) + 2; ++id)
        send.add(last, 4'000'000'000'000 + id, {});
    EXPECT_EQ(send.count(), lastSendLimit);
    EXPECT_EQ(send.count(first), 0U) << "the oldest goes";
    const UndoRecord record{.last = send, .takenBack = std::vector(1'000, first)};
    EXPECT_LT(encodeUndo(record).size(), 1'000'000U);
    EXPECT_EQ(decodeUndo(encodeUndo(record)).last, send);
    EXPECT_THAT(decodeUndo(encodeUndo(record)).takenBack, SizeIs(historyLimit));
}

} // namespace quillon::test
