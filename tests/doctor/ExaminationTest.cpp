#include "doctor/Examination.h"

#include "support/ConnectedComputer.h"
#include "support/Faults.h"

#include <QPromise>

namespace quillon::test {

/// Surroundings of which none answers before the end of the test.
class HangingSurroundings final : public Surroundings {
public:
    HangingSurroundings() = default;
    HangingSurroundings(const HangingSurroundings&) = delete;
    HangingSurroundings& operator=(const HangingSurroundings&) = delete;
    ~HangingSurroundings() override {
        for (const auto& end : open_)
            end();
    }

    [[nodiscard]] QFuture<SystemTraits> system() const override { return late<SystemTraits>(); }
    [[nodiscard]] QFuture<XServerTraits> xServer() const override { return late<XServerTraits>(); }
    [[nodiscard]] QFuture<CompositorTraits> compositor() const override {
        return late<CompositorTraits>();
    }
    [[nodiscard]] QFuture<ClipboardTraits> clipboard() const override {
        return late<ClipboardTraits>();
    }
    [[nodiscard]] QFuture<BusTraits> bus() const override { return late<BusTraits>(); }
    [[nodiscard]] QFuture<FolderTraits> folder(std::filesystem::path /*path*/) const override {
        return late<FolderTraits>();
    }
    [[nodiscard]] QFuture<Presence> sound() const override { return late<Presence>(); }
    [[nodiscard]] QFuture<std::string> holder(PhysicalKey /*key*/) const override {
        return late<std::string>();
    }
    [[nodiscard]] std::optional<bool> isFree(PhysicalKey /*key*/) const override {
        ADD_FAILURE() << "asks a server that hangs";
        return std::nullopt;
    }

private:
    template <typename T>
    QFuture<T> late() const {
        const auto promise = std::make_shared<QPromise<T>>();
        promise->start();
        open_.push_back([promise] {
            promise->addResult(T{});
            promise->finish();
        });
        return promise->future();
    }

    mutable std::vector<std::function<void()>> open_;
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
