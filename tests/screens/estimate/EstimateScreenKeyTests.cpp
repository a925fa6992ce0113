// What keys do beside the letters of the buttons.

#include "screens/estimate/EstimateScreenTesting.h"
#include "store/TestDatabase.h"

#include <QTimer>

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::ElementsAre;

struct EstimateKeys : EstimateScreenTest {
    void OpenEstimated() {
        Open({{200, 120}});
        PressOk();
        Search();
    }
    void Hold(Qt::Key key, QWidget& on) {
        QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
        QCoreApplication::sendEvent(&on, &held);
    }
};

TEST_F(EstimateKeys, EscapeIsCancelOnTheChoicesWhereverTheFocusIs) {
    Open({{200, 120}});
    for (const char* focused : {Controls::carpets[0], Controls::downLay, Controls::acceptChoices,
                                Controls::matchPattern, Controls::otherWidthMajor}) {
        Click(Option(Controls::otherWidth));
        Focus(Control(focused));
        Press(*form, Qt::Key_Escape);
        EXPECT_TRUE(Panel().isHidden()) << focused;
        EXPECT_TRUE(Button(Controls::leaveEstimate).isEnabled());
        EXPECT_TRUE(Button(Controls::openChoices).hasFocus());
        Click(Button(Controls::openChoices));
        EXPECT_TRUE(Option(Controls::otherWidth).isChecked()) << "all stays as it was";
    }
    EXPECT_TRUE(screens.Calls.empty());
}

TEST_F(EstimateKeys, EscapeTakesAWaitingPasteBack) {
    OpenEstimated();
    const auto before = Written();
    Click(Button(Controls::pasteCuts));
    EXPECT_EQ(Paper().cursor().shape(), Qt::CrossCursor);
    Press(*form, Qt::Key_Escape);
    EXPECT_NE(Paper().cursor().shape(), Qt::CrossCursor);
    QTest::mouseClick(&Paper(), Qt::LeftButton, {}, {50, 50});
    EXPECT_EQ(Written(), before);
    Press(*form, Qt::Key_Escape);
    EXPECT_THAT(screens.Calls, ElementsAre("options")) << "the screen stays";
}

TEST_F(EstimateKeys, EscapeEndsAnImprovingSearch) {
    for (int i = 0; i < 40; ++i) {
        Add({17 + 29 * i % 120, 50 + 37 * i % 170});
    }
    Open({});
    PressOk();
    Search();
    bool ran = false;
    QTimer::singleShot(0, form.get(), [&] {
        ran = Control(Controls::improvePanel).isVisible();
        Press(*form, Qt::Key_Y, Qt::ControlModifier);
        Press(*form, Qt::Key_Escape);
    });
    Click(Button(Controls::improveFills));
    EXPECT_TRUE(ran);
    EXPECT_TRUE(Control(Controls::improvePanel).isHidden());
}

TEST_F(EstimateKeys, EnterOnAnOptionIsOk) {
    Open({{200, 120}});
    int times = 0;
    for (const char* option :
         {Controls::carpets[0], Controls::standardWidths[1], Controls::downLay}) {
        for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
            Focus(Option(option));
            Press(*form, enter);
            EXPECT_TRUE(Panel().isHidden()) << option;
            EXPECT_EQ(screens.Calls.size(), static_cast<std::size_t>(++times));
            Click(Button(Controls::openChoices));
        }
    }
    Focus(Option(Controls::carpets[0]));
    Hold(Qt::Key_Return, Option(Controls::carpets[0]));
    EXPECT_TRUE(Panel().isVisible()) << "held from opening the panel";
    Focus(Control(Controls::matchPattern));
    Press(*form, Qt::Key_Return);
    EXPECT_TRUE(Panel().isVisible()) << "no option";
}

TEST_F(EstimateKeys, EnterOnAnOptionIsRefusedAsOkIs) {
    Open({{200, 120}});
    Click(Option(Controls::otherWidth));
    Press(*form, Qt::Key_Return);
    EXPECT_THAT(boxes.Messages, ElementsAre("The carpet width is not correct."));
    EXPECT_TRUE(Panel().isVisible());
}

TEST_F(EstimateKeys, CtrlPPrintsAndCtrlSSaves) {
    const TestDatabase database;
    database.AddProject("MARCH", "MAPLE STREET 9", 7, 1);
    store = database.Open();
    const LoadedProject loaded = store.Load("MAPLE STREET 9");
    open.Now = open.Saved = loaded.Value;
    open.Read = loaded.Mark;
    Open({{288, 120}});
    Press(*form, Qt::Key_P, Qt::ControlModifier);
    Press(*form, Qt::Key_S, Qt::ControlModifier);
    AwaitPrinter();
    EXPECT_TRUE(printer.Estimates.empty()) << "the buttons are not in use yet";
    EXPECT_TRUE(open.HasUnsavedRooms());
    PressOk();
    Press(*form, Qt::Key_P, Qt::ControlModifier);
    AwaitPrinter();
    EXPECT_EQ(printer.Estimates.size(), 1U);
    Press(*form, Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(boxes.Messages, ElementsAre("Data is saved"));
    EXPECT_FALSE(open.HasUnsavedRooms());
}

} // namespace
} // namespace tarn
