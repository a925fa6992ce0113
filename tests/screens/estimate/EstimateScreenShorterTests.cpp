// The shorter layout that is found quietly, and how improvements are taken back.

#include "screens/estimate/EstimateScreenTesting.h"

#include <QDialog>

#include <gmock/gmock.h>

#include <atomic>
#include <string>
#include <thread>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::Contains;
using ::testing::ElementsAre;

const std::string Offered = "IMPROVE: 8'3\" shorter";

/// Three strips of 100 inches that lie beside each other, but that the search lays in two rows. The
/// search beside the screen finds that once it is let go.
struct ShorterLayouts : EstimateScreenTest {
    ShorterLayouts() {
        quietly = [this](const Estimate& estimate, const ImproveLimits&, ImproveObserver&) {
            ++begun;
            held.wait(true);
            ImproveObserver nobody;
            return ImproveEstimate(estimate, {0, 500, 1}, nobody);
        };
    }
    ~ShorterLayouts() override { LetGo(); }

    void LetGo() {
        held = false;
        held.notify_all();
    }
    void OpenThreeStrips() {
        Open({{48, 100}, {48, 100}, {48, 100}});
        PressOk();
        Search();
    }
    void OpenOffered() {
        OpenThreeStrips();
        LetGo();
        AwaitOffer();
    }
    void AwaitOffer() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return Caption() == Offered; })) << Caption();
    }
    QPushButton& Improve() { return Button(Controls::improveFills); }
    QPushButton& Undo() { return Button(Controls::undoImprovement); }
    std::string Caption() { return FromQt(Improve().accessibleName()); }
    void ExpectLong() { EXPECT_THAT(Written(), Contains("Total Fills:3   Total Fill-Len:16'9\"")); }
    void ExpectShort() { EXPECT_THAT(Written(), Contains("Total Fills:3   Total Fill-Len:8'6\"")); }

    /// Notes when something is shown.
    struct ShowWatch : QObject {
        explicit ShowWatch(bool& seen)
            : Seen(seen) {}
        bool eventFilter(QObject* watched, QEvent* event) override {
            Seen = Seen || event->type() == QEvent::Show;
            return QObject::eventFilter(watched, event);
        }
        bool& Seen;
    };

    std::atomic<bool> held = true;
    std::atomic<int> begun = 0;
};

TEST_F(ShorterLayouts, AreOfferedByHowMuchShorterTheyAreAndTakenAtAPress) {
    OpenThreeStrips();
    EXPECT_EQ(Caption(), "IMPROVE");
    const std::vector<std::string> before = Written();
    LetGo();
    AwaitOffer();
    EXPECT_EQ(Written(), before) << "nothing changes by itself";
    EXPECT_EQ(Improve().text(), QStringLiteral("IMPRO&VE:\n8'3\" shorter"));
    Click(Improve());
    ExpectShort();
    EXPECT_TRUE(Control(Controls::improvePanel).isHidden()) << "nothing is searched";
    EXPECT_EQ(Caption(), "IMPROVE");
    EXPECT_TRUE(Picture().hasFocus());
    EXPECT_TRUE(boxes.Messages.empty());
}

// An offer comes by itself, maybe just when another button is pressed.
TEST_F(ShorterLayouts, AreOfferedWithoutMovingTheOtherButtons) {
    OpenThreeStrips();
    const auto places = [this] {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        return std::pair(Button(Controls::openOrder).geometry(),
                         Button(Controls::printEstimate).geometry());
    };
    const auto before = places();
    LetGo();
    AwaitOffer();
    EXPECT_EQ(places(), before);
    Click(Improve());
    EXPECT_EQ(places(), before);
}

TEST_F(ShorterLayouts, AreFoundByTheProgramsOwnSearch) {
    for (const Sized& room : {Sized{48, 100}, {48, 100}, {48, 100}}) {
        Add(room);
    }
    form = std::make_unique<EstimateScreen>(session, true);
    ShowOnDisplay(*form);
    PressOk();
    Search();
    AwaitOffer();
}

TEST_F(ShorterLayouts, AreOfferedInCentimetresInMetricUnits) {
    open.Shown = Units::Metric;
    Open({{122, 250}, {122, 250}, {122, 250}});
    PressOk();
    Search();
    LetGo();
    EXPECT_TRUE(QTest::qWaitFor([this] { return Caption() != "IMPROVE"; }));
    const auto total = [this] {
        for (const std::string& line : Written()) {
            if (line.starts_with("Total Length:")) {
                return std::stoi(line.substr(13));
            }
        }
        return 0;
    };
    const int before = total();
    const std::string caption = Caption();
    Click(Improve());
    EXPECT_EQ(caption, "IMPROVE: " + std::to_string(before - total()) + " shorter");
}

TEST_F(ShorterLayouts, AreTakenBackWithAllThatWasPasted) {
    OpenOffered();
    EXPECT_FALSE(Undo().isVisible()) << "there is nothing to take back";
    Click(Button(Controls::pasteCuts));
    QTest::mouseClick(&Paper(), Qt::LeftButton, {}, {60, 200});
    const std::vector<std::string> before = Written();
    Click(Improve());
    const std::vector<std::string> after = Written();
    EXPECT_TRUE(Undo().isVisible());
    Click(Undo());
    EXPECT_EQ(Written(), before);
    EXPECT_EQ(Caption(), Offered) << "it is still there for the taking";
    Press(*form, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Written(), after);
    EXPECT_EQ(Caption(), "IMPROVE");
    EXPECT_TRUE(Undo().isEnabled());
    Press(*form, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Written(), before);
    Press(*form, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Written(), before) << "there is no more";
    PressPrint();
    EXPECT_EQ(printer.Estimates.back().Picture, Picture().Shown());
}

TEST_F(ShorterLayouts, OfTheLongSearchAreTakenBackToo) {
    OpenThreeStrips();
    EXPECT_TRUE(Undo().isVisible());
    EXPECT_FALSE(Undo().isEnabled());
    LetGo();
    quietly = nullptr;
    Click(Improve());
    ExpectShort();
    EXPECT_TRUE(Undo().isEnabled());
    Click(Undo());
    ExpectLong();
    EXPECT_FALSE(Undo().isEnabled());
    EXPECT_TRUE(Picture().hasFocus());
}

TEST_F(ShorterLayouts, LeaveALongSearchToAPressThatBeganBeforeTheyWereFound) {
    OpenThreeStrips();
    QTest::mousePress(&Improve(), Qt::LeftButton);
    LetGo();
    AwaitOffer();
    bool searched = false;
    ShowWatch watch(searched);
    Control(Controls::improvePanel).installEventFilter(&watch);
    QTest::mouseRelease(&Improve(), Qt::LeftButton);
    ExpectShort();
    EXPECT_TRUE(searched);
}

TEST_F(ShorterLayouts, GoWithTheEstimate) {
    OpenOffered();
    Click(Improve());
    Click(Button(Controls::openChoices));
    PressOk();
    EXPECT_EQ(Caption(), "IMPROVE");
    EXPECT_FALSE(Undo().isEnabled());
    Search();
    ExpectLong();
    AwaitOffer();
    EXPECT_EQ(begun, 2);
    screens.Client->NoEstimate();
    EXPECT_EQ(Caption(), "IMPROVE");
    EXPECT_FALSE(Improve().isEnabled());
}

TEST_F(ShorterLayouts, AreNotLookedForWithoutFills) {
    Open({{144, 80}});
    PressOk();
    EXPECT_EQ(CutsListed(), 1);
    QCoreApplication::processEvents();
    EXPECT_EQ(begun, 0);
}

TEST_F(ShorterLayouts, AreNotOfferedBehindABox) {
    OpenThreeStrips();
    QDialog box(form.get());
    box.open();
    LetGo();
    // Word of the search arrives; there is nothing else to wait for.
    QTest::qWait(200);
    EXPECT_EQ(begun, 1);
    EXPECT_EQ(Caption(), "IMPROVE");
    box.reject();
    AwaitOffer();
}

TEST_F(ShorterLayouts, MoveNoButton) {
    OpenThreeStrips();
    const auto places = [this] {
        std::vector<QRect> all{Picture().geometry()};
        for (const char* name : {Controls::openChoices, Controls::pasteCuts, Controls::redrawLayout,
                                 Controls::printEstimate, Controls::saveFromEstimate}) {
            all.push_back(Control(name).geometry());
        }
        return all;
    };
    const auto before = places();
    const QRect improve(Improve().mapTo(form.get(), QPoint()), Improve().size());
    const QRect undo(Undo().mapTo(form.get(), QPoint()), Undo().size());
    LetGo();
    AwaitOffer();
    const QRect united = improve.united(undo);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Improve().height() == united.height(); }));
    EXPECT_EQ(places(), before);
    EXPECT_EQ(QRect(Improve().mapTo(form.get(), QPoint()), Improve().size()), united);
    EXPECT_GE(Improve().height(), Improve().sizeHint().height());
    EXPECT_GE(Improve().width(), Improve().sizeHint().width());
}

TEST_F(ShorterLayouts, AreTakenOnceByADoubleClick) {
    OpenOffered();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Improve().height() > Undo().sizeHint().height(); }));
    const QPoint low = Improve().rect().center() + QPoint(0, Improve().height() / 3);
    const QPoint onScreen = Improve().mapTo(form.get(), low);
    QTest::mouseClick(&Improve(), Qt::LeftButton, {}, low);
    ExpectShort();
    EXPECT_TRUE(QTest::qWaitFor([&] { return form->childAt(onScreen) == &Undo(); }));
    QTest::mouseDClick(&Undo(), Qt::LeftButton);
    ExpectShort();
}

TEST_F(ShorterLayouts, AreNoConcernOfAScreenThatIsLeft) {
    OpenThreeStrips();
    std::thread letting([this] {
        while (begun == 0) {
            std::this_thread::yield();
        }
        LetGo();
    });
    form.reset();
    letting.join();
    QCoreApplication::processEvents();
}

} // namespace
} // namespace tarn
