// The making of an order away from the window.

#include "base/RunTimeError.h"
#include "screens/ScreenTesting.h"
#include "screens/order/OrderRun.h"

#include <QPointer>

#include <gtest/gtest.h>

namespace tarn {
namespace {

/// Three rooms of which the shortest layout is not known to be it: their search does not end by
/// itself.
struct OrderRuns : ::testing::Test {
    OrderRuns() {
        project.Rooms.assign(3, {192, 240, 0, 0, "", ""});
        request.Rolls = {{144, "", "12ft", std::nullopt}};
        request.TrimAlong = 3;
        request.TrimAcross = 1;
    }
    void Begin(Double seconds) {
        OrderLimits limits;
        limits.Seconds = seconds;
        run = std::make_unique<OrderRun>(project, Byte{0}, request, limits,
                                         OrderRun::Callbacks{[this](const Order& order) {
                                                                 EXPECT_FALSE(hasEnded);
                                                                 last = order;
                                                             },
                                                             [this](const std::exception_ptr& why) {
                                                                 hasEnded = true;
                                                                 fault = why;
                                                                 DropRun();
                                                             }});
    }
    /// The search is the program's own then.
    void DropRun() {
        run.reset();
        search = QCoreApplication::instance()->children().back();
    }
    bool WaitFor(const std::function<bool()>& holds) { return QTest::qWaitFor(holds, 20000); }

    Project project;
    OrderRequest request;
    std::optional<Order> last;
    bool hasEnded = false;
    std::exception_ptr fault;
    std::unique_ptr<OrderRun> run;
    QPointer<QObject> search; ///< of the run that was dropped
};

TEST_F(OrderRuns, TellTheWholeOrderBeforeTheEnd) {
    Begin(0);
    EXPECT_FALSE(last) << "nothing is told but by the event loop";
    EXPECT_TRUE(WaitFor([this] { return hasEnded; }));
    EXPECT_FALSE(fault);
    ASSERT_TRUE(last);
    EXPECT_EQ(last->Best, 0U);
    EXPECT_EQ(last->Candidates.at(0).Figures->LengthNeeded, 1215);
    OrderObserver nobody;
    EXPECT_EQ(last->Request, MakeOrder(project, 0, request, {}, nobody).Request);
}

TEST_F(OrderRuns, TellWhatTheyHaveWhenTheyAreStopped) {
    Begin(3600);
    EXPECT_TRUE(WaitFor([this] { return last.has_value(); }));
    EXPECT_FALSE(hasEnded);
    run->Stop();
    EXPECT_TRUE(WaitFor([this] { return hasEnded; }));
    EXPECT_FALSE(fault);
    EXPECT_TRUE(last->Best);
}

TEST_F(OrderRuns, TellNothingOnceTheyAreGone) {
    Begin(3600);
    run.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE(last);
    EXPECT_FALSE(hasEnded);
}

/// The search itself takes as long as it takes until it notices.
TEST_F(OrderRuns, DoNotWaitForTheEndOfTheirSearch) {
    Begin(3600);
    DropRun();
    EXPECT_TRUE(search) << "it goes on, for a moment";
    EXPECT_TRUE(WaitFor([this] { return !search; }));
    EXPECT_FALSE(last) << "and tells nothing";
    EXPECT_FALSE(hasEnded);
}

TEST_F(OrderRuns, LeaveNothingBehindAfterTheirEnd) {
    Begin(0);
    EXPECT_TRUE(WaitFor([this] { return hasEnded; }));
    EXPECT_TRUE(WaitFor([this] { return !search; }));
}

TEST_F(OrderRuns, HandOnWhatWasRaised) {
    request.Rolls.clear();
    Begin(0);
    EXPECT_TRUE(WaitFor([this] { return hasEnded; }));
    EXPECT_FALSE(last);
    ASSERT_TRUE(fault);
    EXPECT_THROW(std::rethrow_exception(fault), RunTimeError);
}

} // namespace
} // namespace tarn
