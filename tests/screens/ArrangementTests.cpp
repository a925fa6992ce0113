// How controls stand to each other on a panel.

#include "screens/Arrangement.h"
#include "screens/Display.h"
#include "screens/ScreenTesting.h"

#include <QHBoxLayout>
#include <QLineEdit>

namespace tarn {
namespace {

using namespace tarn::testing;

TEST(SetSpacing, GivesOneMarginOnAllSidesAndTheSpacing) {
    QWidget panel;
    QHBoxLayout layout(&panel);
    SetSpacing(layout, 150, 300);
    const int margin = Pixels(150);
    EXPECT_EQ(layout.contentsMargins(), QMargins(margin, margin, margin, margin));
    EXPECT_EQ(layout.spacing(), Pixels(300));
    SetSpacing(layout, 0);
    EXPECT_EQ(layout.contentsMargins(), QMargins());
    EXPECT_EQ(layout.spacing(), Pixels(Metrics::Spacing));
}

/// Three boxes in a row, made from the left.
struct Rows : ::testing::Test {
    Rows() {
        for (QLineEdit* box : {&First, &Second, &Third}) {
            Row.addWidget(box);
        }
        Panel.show();
    }

    QWidget Panel;
    QHBoxLayout Row{&Panel};
    QLineEdit First;
    QLineEdit Second;
    QLineEdit Third;
};

TEST_F(Rows, KeepTheRoomOfAHiddenControl) {
    KeepRoom(Second);
    const QRect before = Third.geometry();
    Second.hide();
    Row.activate();
    EXPECT_EQ(Third.geometry(), before);
    First.hide();
    Row.activate();
    EXPECT_NE(Third.geometry(), before);
}

TEST_F(Rows, TakeTheTabKeyInTheOrderSet) {
    SetTabOrders({&Third, &Second, &First});
    Panel.activateWindow();
    Focus(Third);
    Press(Panel, Qt::Key_Tab);
    EXPECT_TRUE(Second.hasFocus());
    Press(Panel, Qt::Key_Tab);
    EXPECT_TRUE(First.hasFocus());
}

} // namespace
} // namespace tarn
