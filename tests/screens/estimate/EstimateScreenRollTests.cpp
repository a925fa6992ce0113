// The whole view of the roll on the carpet estimate: beside the drawing, or in its place.

#include "files/RollDxf.h"
#include "screens/Display.h"
#include "screens/Theme.h"
#include "screens/estimate/EstimateScreenTesting.h"
#include "screens/roll/RollList.h"
#include "screens/roll/RollPanel.h"
#include "screens/roll/RollView.h"
#include "store/TestDatabase.h"

#include <QContextMenuEvent>
#include <QMenu>

#include <gmock/gmock.h>

#include <array>

namespace tarn {
namespace {

using namespace tarn::testing;

struct EstimateScreenRoll : EstimateScreenTest {
    RollView& View() {
        return static_cast<RollView&>(Control<QAbstractScrollArea>(Controls::rollView));
    }
    RollList& List() { return static_cast<RollList&>(Control<QListView>(Controls::rollList)); }
    QPushButton& SwitchButton() { return Button(Controls::switchView); }

    /// An estimate of one room with a cut and fills, on a display of that size.
    void EstimateOn(int width, int height) {
        Open({{200, 168}});
        form->resize(width, height - Pixels(FreeStrip));
        PressOk();
        Search();
        ASSERT_TRUE(QTest::qWaitFor([&] { return Picture().isVisible() || View().isVisible(); }));
        QCoreApplication::processEvents();
    }
    static QRect PlaceOf(const QWidget& widget, const QWidget& on) {
        return {widget.mapTo(&on, QPoint(0, 0)), widget.size()};
    }
};

TEST_F(EstimateScreenRoll, StandsBesideTheDrawingWhereTheWindowIsWide) {
    for (const std::array<int, 2> size :
         {std::array{1100, 700}, std::array{1366, 768}, std::array{1920, 1080}}) {
        SCOPED_TRACE(size[0]);
        open.Now.Rooms.clear();
        EstimateOn(size[0], size[1]);
        EXPECT_TRUE(Picture().isVisible());
        EXPECT_TRUE(View().isVisible());
        EXPECT_TRUE(List().isVisible());
        EXPECT_FALSE(SwitchButton().isVisible());
        const QRect picture = PlaceOf(Picture(), *form);
        const QRect view = PlaceOf(View(), *form);
        const QRect list = PlaceOf(List(), *form);
        const QRect buttons = PlaceOf(Button(Controls::openChoices), *form);
        EXPECT_LT(picture.right(), view.left());
        EXPECT_LT(std::max(view.right(), list.right()), buttons.left());
        EXPECT_FALSE(view.intersects(list));
        EXPECT_TRUE(form->rect().contains(list));
        EXPECT_EQ(picture.top(), view.top());
        EXPECT_EQ(view.top() == list.top(), size[0] == 1920);
    }
}

TEST_F(EstimateScreenRoll, HasThePiecesOfTheEstimateAndItsCutList) {
    EstimateOn(1366, 768);
    EXPECT_EQ(View().Shown(), ChartOf(Searched(), open.Now));
    EXPECT_EQ(List().model()->rowCount(), static_cast<int>(View().Shown().Lines.size()));
    screens.Client->NoEstimate();
    EXPECT_FALSE(View().isVisible());
    EXPECT_EQ(List().model()->rowCount(), 0);
}

TEST_F(EstimateScreenRoll, ShowsCutsWithoutFills) {
    Open({{144, 168}});
    form->resize(1366, 700);
    PressOk();
    EXPECT_TRUE(View().isVisible());
    EXPECT_EQ(View().Shown().Pieces.size(), 1U);
}

TEST_F(EstimateScreenRoll, OpensOnTheDrawingWhereThereIsRoomForOne) {
    EstimateOn(800, 600);
    EXPECT_TRUE(Picture().isVisible());
    EXPECT_FALSE(View().isVisible());
    EXPECT_TRUE(SwitchButton().isVisible());
    EXPECT_EQ(SwitchButton().text(), QStringLiteral("ROLL"));
}

TEST_F(EstimateScreenRoll, LeavesTheDrawingItsRoomOnASmallDisplay) {
    EstimateOn(800, 600);
    const QRect picture = PlaceOf(Picture(), *form);
    const QRect buttons = PlaceOf(Button(Controls::openChoices), *form);
    const int margin = Pixels(Metrics::Margin);
    EXPECT_EQ(picture.left(), margin);
    EXPECT_EQ(picture.right() + 1 + margin, buttons.left());
    EXPECT_EQ(picture.top(), buttons.top());
    EXPECT_TRUE(form->rect().contains(PlaceOf(SwitchButton(), *form)));
}

TEST_F(EstimateScreenRoll, IsShownInPlaceOfTheDrawingByTheButton) {
    EstimateOn(800, 600);
    const QRect room = PlaceOf(Picture(), *form);
    Click(SwitchButton());
    QCoreApplication::processEvents();
    EXPECT_FALSE(Picture().isVisible());
    EXPECT_TRUE(View().isVisible());
    EXPECT_TRUE(View().hasFocus());
    EXPECT_TRUE(room.contains(PlaceOf(View(), *form)));
    EXPECT_TRUE(room.contains(PlaceOf(List(), *form)));
    EXPECT_EQ(SwitchButton().text(), QStringLiteral("DRAWING"));
    EXPECT_FALSE(Control(Controls::zoomHint).isVisible());
    Click(SwitchButton());
    EXPECT_TRUE(Picture().isVisible());
    EXPECT_FALSE(View().isVisible());
    EXPECT_TRUE(Picture().hasFocus());
    EXPECT_TRUE(Control(Controls::zoomHint).isVisible());
}

TEST_F(EstimateScreenRoll, IsShownByTheKeyD) {
    EstimateOn(800, 600);
    Press(*form, Qt::Key_D);
    EXPECT_TRUE(View().isVisible());
    Press(*form, Qt::Key_D);
    EXPECT_TRUE(Picture().isVisible());
    EXPECT_FALSE(View().isVisible());
}

TEST_F(EstimateScreenRoll, IsNotSwitchedWhereThereIsNothingToSwitch) {
    Open({{200, 168}});
    EXPECT_FALSE(SwitchButton().isVisible());
    Press(*form, Qt::Key_D);
    EXPECT_FALSE(kept.IsOn(Preference::WholeRoll));
    form->resize(1366, 700);
    PressOk();
    Search();
    Press(*form, Qt::Key_D);
    EXPECT_TRUE(Picture().isVisible());
    EXPECT_TRUE(View().isVisible());
    EXPECT_FALSE(kept.IsOn(Preference::WholeRoll));
}

TEST_F(EstimateScreenRoll, IsNotSwitchedUnderTheChoices) {
    EstimateOn(800, 600);
    Click(Button(Controls::openChoices));
    EXPECT_FALSE(SwitchButton().isEnabled());
    Press(*form, Qt::Key_D);
    EXPECT_FALSE(View().isVisible());
    Click(Button(Controls::cancelChoices));
    EXPECT_TRUE(SwitchButton().isEnabled());
}

TEST_F(EstimateScreenRoll, IsShownAgainTheNextTimeWhereItWasLast) {
    EstimateOn(800, 600);
    Press(*form, Qt::Key_D);
    EXPECT_TRUE(kept.IsOn(Preference::WholeRoll));
    open.Now.Rooms.clear();
    EstimateOn(800, 600);
    EXPECT_TRUE(View().isVisible());
    EXPECT_FALSE(Picture().isVisible());
    Press(*form, Qt::Key_D);
    EXPECT_FALSE(kept.IsOn(Preference::WholeRoll));
}

TEST_F(EstimateScreenRoll, MakesWayForTheDrawingThatIsPastedIntoOrRedrawn) {
    kept.Set(Preference::WholeRoll, true);
    EstimateOn(800, 600);
    ASSERT_TRUE(View().isVisible());
    Click(Button(Controls::pasteCuts));
    EXPECT_TRUE(Picture().isVisible());
    EXPECT_FALSE(View().isVisible());
    EXPECT_TRUE(Picture().hasFocus());
    Press(*form, Qt::Key_Return);
    EXPECT_EQ(TimesWritten("Carpet-1  Width=12'0\"  DOWNLAY"), 2);
    Press(*form, Qt::Key_D);
    ASSERT_TRUE(View().isVisible());
    Click(Button(Controls::redrawLayout));
    EXPECT_TRUE(Picture().isVisible());
    EXPECT_TRUE(kept.IsOn(Preference::WholeRoll)) << "only for this time";
}

TEST_F(EstimateScreenRoll, FollowsTheWindowAsItBecomesWideAndNarrow) {
    kept.Set(Preference::WholeRoll, true);
    EstimateOn(800, 600);
    ASSERT_FALSE(Picture().isVisible());
    form->resize(1366, 700);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Picture().isVisible() && View().isVisible(); }));
    EXPECT_FALSE(SwitchButton().isVisible());
    form->resize(800, 584);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Picture().isVisible() && View().isVisible(); }));
    EXPECT_TRUE(SwitchButton().isVisible());
}

TEST_F(EstimateScreenRoll, IsReachedByTab) {
    EstimateOn(1366, 768);
    Focus(Picture());
    Press(*form, Qt::Key_Tab);
    EXPECT_TRUE(View().hasFocus());
    Press(*form, Qt::Key_Tab);
    EXPECT_TRUE(List().hasFocus());
}

TEST_F(EstimateScreenRoll, IsNotWhatIsPrinted) {
    EstimateOn(800, 600);
    const std::vector<std::string> written = Written();
    const std::size_t steps = Picture().Shown().Steps().size();
    Press(*form, Qt::Key_D);
    ASSERT_TRUE(View().isVisible());
    Button(Controls::printEstimate).click();
    AwaitPrinter();
    ASSERT_EQ(printer.Estimates.size(), 1U);
    EXPECT_EQ(printer.Estimates[0].Picture, Picture().Shown());
    EXPECT_EQ(Written(), written);
    EXPECT_EQ(Picture().Shown().Steps().size(), steps);
}

TEST_F(EstimateScreenRoll, IsSavedAsDxfByItsMenu) {
    const TestFolder files;
    EstimateOn(1366, 768);
    boxes.Files = {files.Path("a.dxf"), files.Path("b.dxf"), files.Path("missing/c.dxf")};
    for (const auto reason :
         {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard, QContextMenuEvent::Keyboard}) {
        QWidget& target = reason == QContextMenuEvent::Mouse ? *View().viewport() : View();
        QContextMenuEvent event(reason, QPoint(9, 9), target.mapToGlobal(QPoint(9, 9)));
        QApplication::sendEvent(&target, &event);
        QWidget* menu = QApplication::activePopupWidget();
        ASSERT_NE(menu, nullptr);
        QTest::keyClick(menu, Qt::Key_D);
    }
    EXPECT_EQ(boxes.SuggestedFiles[0], "MAPLE STREET 9.dxf");
    const std::string wanted = EstimateDxf(Searched(), open.Now);
    EXPECT_EQ(ReadFile(files.Path("a.dxf")), wanted);
    EXPECT_EQ(ReadFile(files.Path("b.dxf")), wanted);
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_THAT(boxes.Messages[0], ::testing::HasSubstr("missing/c.dxf"));
}

} // namespace
} // namespace tarn
