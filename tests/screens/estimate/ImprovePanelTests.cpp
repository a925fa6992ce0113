#include "base/RunTimeError.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/ScreenTesting.h"
#include "screens/estimate/ImprovePanel.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

namespace tarn {
namespace {

using namespace tarn::testing;

/// A panel on a parent, and a search of the test's own.
struct ImprovePanels : ::testing::Test {
    explicit ImprovePanels(Units units = Units::Imperial)
        : Panel(&Parent, units) {
        ShowOnDisplay(Parent);
    }
    std::string Line(const char* name) { return FromQt(Find<QLabel>(Panel, name).text()); }

    QWidget Parent;
    ImprovePanel Panel;
};

struct MetricImprovePanels : ImprovePanels {
    MetricImprovePanels()
        : ImprovePanels(Units::Metric) {}
};

TEST_F(ImprovePanels, StandInViewWhileTheSearchRunsAndSayHowFarItIs) {
    EXPECT_TRUE(Panel.isHidden());
    const ImprovedEstimate result =
        Panel.Run([&](const ImproveLimits& limits, ImproveObserver& observer) {
            EXPECT_EQ(limits.Seconds, 10);
            EXPECT_EQ(limits.Steps, 0);
            EXPECT_TRUE(Panel.isVisible());
            EXPECT_TRUE(Panel.IsRunning());
            EXPECT_TRUE(Find<QPushButton>(Panel, Controls::stopImproving).hasFocus());
            EXPECT_TRUE(observer.Progress({630, 619}));
            EXPECT_EQ(Line(Controls::improvedSoFar), "Fills so far: 52'6\"");
            EXPECT_EQ(Line(Controls::improveBound), "No layout takes less than: 51'7\"");
            EXPECT_EQ(Line(Controls::improveGap), "at most 1.8% above the least possible");
            ImprovedEstimate found;
            found.Result.Improved = true;
            return found;
        });
    EXPECT_TRUE(result.Result.Improved);
    EXPECT_TRUE(Panel.isHidden());
    EXPECT_FALSE(Panel.IsRunning());
}

TEST_F(ImprovePanels, SayNothingOfABoundThatIsNotKnown) {
    Panel.Run([&](const ImproveLimits&, ImproveObserver& observer) {
        observer.Progress({630, 0});
        EXPECT_EQ(Line(Controls::improvedSoFar), "Fills so far: 52'6\"");
        EXPECT_EQ(Line(Controls::improveBound), "");
        EXPECT_EQ(Line(Controls::improveGap), "");
        return ImprovedEstimate{};
    });
}

TEST_F(ImprovePanels, ClaimNoLeastForAStartThatIsShorterThanTheRulesAllow) {
    Panel.Run([&](const ImproveLimits&, ImproveObserver& observer) {
        observer.Progress({630, 630, true});
        EXPECT_EQ(Line(Controls::improveBound), "");
        EXPECT_EQ(Line(Controls::improveGap), "none whose parts keep the minimum cut is as short");
        return ImprovedEstimate{};
    });
}

TEST_F(ImprovePanels, NeverClaimABoundThatIsNotProven) {
    Panel.Run([&](const ImproveLimits&, ImproveObserver& observer) {
        observer.Progress({630, 619.9});
        EXPECT_EQ(Line(Controls::improveBound), "No layout takes less than: 51'7\"");
        return ImprovedEstimate{};
    });
}

TEST_F(MetricImprovePanels, WriteWholeCentimetres) {
    Panel.Run([&](const ImproveLimits&, ImproveObserver& observer) {
        observer.Progress({500 / 2.54, 480.4 / 2.54});
        EXPECT_EQ(Line(Controls::improvedSoFar), "Fills so far: 500");
        EXPECT_EQ(Line(Controls::improveBound), "No layout takes less than: 480");
        return ImprovedEstimate{};
    });
}

TEST_F(ImprovePanels, LetTheWindowSystemWorkAndStopWhenAsked) {
    int asked = 0;
    QTimer::singleShot(0, &Panel, [&] { Click(Find(Panel, Controls::stopImproving)); });
    Panel.Run([&](const ImproveLimits&, ImproveObserver& observer) {
        while (observer.Progress({630, 619}) && ++asked < 1000) {
        }
        return ImprovedEstimate{};
    });
    EXPECT_LT(asked, 1000);
}

TEST_F(ImprovePanels, TakeWhatCameLastAsMeantForTheSearch) {
    bool runningAtLast = false;
    Panel.Run([&](const ImproveLimits&, ImproveObserver& observer) {
        observer.Progress({630, 619});
        QTimer::singleShot(0, &Panel, [&] { runningAtLast = Panel.IsRunning(); });
        return ImprovedEstimate{};
    });
    EXPECT_TRUE(runningAtLast);
}

TEST_F(ImprovePanels, StopWithTheKeyOfTheirButton) {
    QTimer::singleShot(0, &Panel, [&] { Press(Panel, Qt::Key_Space); });
    int asked = 0;
    Panel.Run([&](const ImproveLimits&, ImproveObserver& observer) {
        while (observer.Progress({630, 619}) && ++asked < 1000) {
        }
        return ImprovedEstimate{};
    });
    EXPECT_LT(asked, 1000);
}

TEST_F(ImprovePanels, ForgetTheStopOfTheSearchBefore) {
    Panel.Run([&](const ImproveLimits&, ImproveObserver& observer) {
        Panel.Stop();
        EXPECT_FALSE(observer.Progress({630, 619}));
        return ImprovedEstimate{};
    });
    Panel.Run([&](const ImproveLimits&, ImproveObserver& observer) {
        EXPECT_TRUE(observer.Progress({630, 619}));
        return ImprovedEstimate{};
    });
}

TEST_F(ImprovePanels, OfferWhatWasKeptInPlaceOfTheSearch) {
    Panel.Offer("12'4\" with parts of at least 3 FT", "none as short");
    EXPECT_TRUE(Panel.isVisible());
    EXPECT_FALSE(Panel.IsRunning());
    EXPECT_EQ(Line(Controls::improvedSoFar), "12'4\" with parts of at least 3 FT");
    EXPECT_EQ(Line(Controls::improveBound), "can be laid instead of the layout shown.");
    EXPECT_EQ(Line(Controls::improveGap), "none as short");
    EXPECT_TRUE(Panel.TakeButton().isVisible());
    EXPECT_TRUE(Panel.TakeButton().hasFocus());
    EXPECT_TRUE(Panel.LeaveButton().isVisible());
    EXPECT_FALSE(Find<QPushButton>(Panel, Controls::stopImproving).isVisible());
    EXPECT_FALSE(Find<QProgressBar>(Panel, Controls::improveTime).isVisible());
    Panel.Run([&](const ImproveLimits&, ImproveObserver&) {
        EXPECT_FALSE(Panel.TakeButton().isVisible());
        EXPECT_FALSE(Panel.LeaveButton().isVisible());
        EXPECT_TRUE(Find<QPushButton>(Panel, Controls::stopImproving).isVisible());
        EXPECT_TRUE(Find<QProgressBar>(Panel, Controls::improveTime).isVisible());
        return ImprovedEstimate{};
    });
    EXPECT_TRUE(Panel.isHidden());
}

TEST_F(ImprovePanels, GoOutOfViewAndHandOnAnError) {
    EXPECT_THROW(Panel.Run([](const ImproveLimits&, ImproveObserver&) -> ImprovedEstimate {
        RaiseInternal();
    }),
                 RunTimeError);
    EXPECT_TRUE(Panel.isHidden());
    EXPECT_FALSE(Panel.IsRunning());
}

} // namespace
} // namespace tarn
