#include "doctor/Examination.h"

#include "support/ConnectedComputer.h"
#include "support/Faults.h"

#include <QPromise>

namespace quillon::test {

/// Surroundings of which none answers.
class HangingSurroundings final : public Surroundings {
public:
    [[nodiscard]] QFuture<SystemTraits> system() const override { return never(system_); }
    [[nodiscard]] QFuture<XServerTraits> xServer() const override { return never(xServer_); }
    [[nodiscard]] QFuture<CompositorTraits> compositor() const override { return never(layers_); }
    [[nodiscard]] QFuture<ClipboardTraits> clipboard() const override { return never(clipboard_); }
    [[nodiscard]] QFuture<BusTraits> bus() const override { return never(bus_); }
    [[nodiscard]] QFuture<FolderTraits> folder(std::filesystem::path) const override {
        return never(folder_);
    }
    [[nodiscard]] QFuture<Presence> sound() const override { return never(sound_); }
    [[nodiscard]] std::optional<bool> isFree(PhysicalKey /*key*/) const override {
        ADD_FAILURE() << "asks a server that hangs";
        return std::nullopt;
    }

private:
    template <typename T>
    static QFuture<T> never(QPromise<T>& promise) {
        promise.start();
        return promise.future();
    }

    mutable QPromise<SystemTraits> system_;
    mutable QPromise<XServerTraits> xServer_;
    mutable QPromise<CompositorTraits> layers_;
    mutable QPromise<ClipboardTraits> clipboard_;
    mutable QPromise<BusTraits> bus_;
    mutable QPromise<FolderTraits> folder_;
    mutable QPromise<Presence> sound_;
};

struct Examination : testing::Test {
    /// Lets the examination end, and gives its facts. Once Telegram has had so many requests, the
    /// clock is moved on for what hangs.
    Facts examined(std::size_t requests) {
        QCoro::Task<Facts> examining =
            examine(computer.platform, *computer.store, surroundings, false);
        std::optional<Facts> facts;
        const auto follow = [](QCoro::Task<Facts>& task,
                               std::optional<Facts>& into) -> QCoro::Task<> {
            Facts ended = co_await task;
            into = std::move(ended);
        };
        const QCoro::Task<> following = follow(examining, facts);
        EXPECT_TRUE(waitUntil([&] { return computer.methods().size() >= requests; }));
        for (; !facts && took < 10s; took += 100ms) {
            QCoreApplication::processEvents();
            computer.clock.advance(100ms);
        }
        EXPECT_TRUE(facts) << "it takes longer than 10 seconds";
        return facts.value_or(Facts{});
    }

    HangingSurroundings surroundings;
    ConnectedComputer computer;
    std::chrono::milliseconds took{};
};

TEST_F(Examination, AsksForEverythingAndChangesNothing) {
    const Json before = computer.sandbox.view();
    const Facts facts = examined(8);
    EXPECT_EQ(computer.sandbox.view(), before);
    EXPECT_THAT(computer.methods(),
                UnorderedElementsAre("(no method)", "getMe", "getChat", "getChatMember",
                                     "sendChatAction", "sendChatAction", "sendChatAction",
                                     "sendChatAction"));
    EXPECT_EQ(facts.look.outcome, HttpLook::Outcome::answers);
    EXPECT_TRUE(facts.look.time);
    EXPECT_FALSE(facts.folder);
}

TEST_F(Examination, EndsWhateverHangs) {
    computer.sandbox.failNext(onlyFor("getMe", fault(sandbox::FaultKind::hang)));
    EXPECT_EQ(examined(2).bot.outcome, ApiCall::Outcome::silent);

    took = {};
    computer.sandbox.failNext(onlyFor("getChat", fault(sandbox::FaultKind::hang)));
    const Facts facts = examined(10);
    EXPECT_EQ(facts.group.outcome, ApiCall::Outcome::silent);
    EXPECT_EQ(facts.membership.outcome, ApiCall::Outcome::done);

    took = {};
    computer.secrets.late = true;
    computer.restart();
    EXPECT_FALSE(examined(0).keyring);
}

} // namespace quillon::test
