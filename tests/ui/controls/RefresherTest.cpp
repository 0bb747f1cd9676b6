#include "ui/controls/Refresher.h"

#include "Model.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <memory>

namespace quillon::test {

namespace {

class RefresherTest : public testing::Test {
protected:
    RefresherTest() : refresher_{new Refresher{view_.get(), [this] { refresh(); }}} {
        refresher_->watch(model_, &Model::objectWillChange);
    }

    void refresh() {
        ++refreshes_;
        shown_ = model_.value();
        if (shown_ == 7) model_.set(8);
    }

    static void turn() { QCoreApplication::processEvents(); }

    Model model_;
    std::unique_ptr<QObject> view_ = std::make_unique<QObject>();
    Refresher* refresher_;
    int refreshes_ = 0;
    int shown_ = -1;
};

TEST_F(RefresherTest, ShowsManyAnnouncedChangesOnceAndAsTheyEnded) {
    model_.set(1);
    model_.set(2);
    EXPECT_EQ(refreshes_, 0);
    turn();
    EXPECT_EQ(refreshes_, 1);
    EXPECT_EQ(shown_, 2);
    turn();
    EXPECT_EQ(refreshes_, 1);
}

TEST_F(RefresherTest, ShowsAChangeThatARefreshMakes) {
    model_.set(7);
    for (int i = 0; i < 3; ++i)
        turn();
    EXPECT_EQ(shown_, 8);
    EXPECT_EQ(refreshes_, 2);
}

TEST_F(RefresherTest, ARefreshAtOnceLeavesNothingForLater) {
    model_.set(3);
    refresher_->refreshNow();
    EXPECT_EQ(shown_, 3);
    turn();
    EXPECT_EQ(refreshes_, 1);
    model_.set(4);
    turn();
    EXPECT_EQ(shown_, 4);
}

TEST_F(RefresherTest, DoesNotRefreshAViewThatIsGone) {
    model_.set(5);
    view_.reset();
    turn();
    model_.set(6);
    turn();
    EXPECT_EQ(refreshes_, 0);
}

} // namespace
} // namespace quillon::test
