// What assistive programs see of the whole view of a roll.

#include "screens/ScreenTesting.h"
#include "screens/roll/RollList.h"
#include "screens/roll/RollPanel.h"
#include "screens/roll/RollTesting.h"
#include "screens/roll/RollView.h"

#include <QAccessible>
#include <QAccessibleActionInterface>

namespace tarn {
namespace {

using namespace tarn::testing;

struct RollAccessTest : ::testing::Test {
    RollAccessTest() {
        panel.resize(900, 600);
        panel.show();
        panel.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&panel));
        panel.Show(ChartOfCuts(3, 120));
    }

    QAccessibleInterface& Access() {
        QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&panel.View());
        if (access == nullptr) {
            throw std::runtime_error("the view cannot be seen");
        }
        return *access;
    }
    static std::string NameOf(const QAccessibleInterface* access) {
        return access == nullptr ? "" : FromQt(access->text(QAccessible::Name));
    }

    FakeBoxes boxes;
    RollPanel panel{nullptr, boxes};
};

TEST_F(RollAccessTest, TheViewIsAListOfItsPieces) {
    EXPECT_EQ(Access().role(), QAccessible::List);
    EXPECT_EQ(NameOf(&Access()), "Whole roll");
    EXPECT_EQ(FromQt(Access().text(QAccessible::Description)), "Roll");
    ASSERT_EQ(Access().childCount(), 3);
    for (int i = 0; i < 3; ++i) {
        QAccessibleInterface* piece = Access().child(i);
        ASSERT_NE(piece, nullptr);
        EXPECT_TRUE(piece->isValid());
        EXPECT_EQ(piece, Access().child(i)) << "always the same";
        EXPECT_EQ(piece->role(), QAccessible::ListItem);
        EXPECT_EQ(NameOf(piece), "P" + std::to_string(i + 1) + ", described");
        EXPECT_EQ(piece->parent(), &Access());
        EXPECT_EQ(Access().indexOfChild(piece), i);
        EXPECT_EQ(piece->childCount(), 0);
        const QRect box = panel.View().BoxOf(static_cast<std::size_t>(i));
        EXPECT_EQ(piece->rect(),
                  QRect(panel.View().viewport()->mapToGlobal(box.topLeft()), box.size()));
        EXPECT_EQ(Access().childAt(piece->rect().center().x(), piece->rect().center().y()), piece);
    }
    EXPECT_EQ(Access().child(3), nullptr);
    EXPECT_EQ(Access().child(-1), nullptr);
}

TEST_F(RollAccessTest, APieceTellsWhetherItIsSelectedAndHasTheFocus) {
    EXPECT_TRUE(Access().child(1)->state().selectable);
    EXPECT_TRUE(Access().child(1)->state().focusable);
    EXPECT_FALSE(Access().child(1)->state().selected);
    EXPECT_EQ(Access().focusChild(), nullptr);
    Focus(panel.View());
    Press(panel, Qt::Key_Down);
    Press(panel, Qt::Key_Down);
    EXPECT_TRUE(Access().child(1)->state().selected);
    EXPECT_TRUE(Access().child(1)->state().focused);
    EXPECT_FALSE(Access().child(0)->state().selected);
    EXPECT_EQ(Access().focusChild(), Access().child(1));
    Focus(panel.List());
    EXPECT_TRUE(Access().child(1)->state().selected);
    EXPECT_FALSE(Access().child(1)->state().focused);
}

TEST_F(RollAccessTest, APieceTakesTheFocusOnRequest) {
    QAccessibleActionInterface* action = Access().child(2)->actionInterface();
    ASSERT_NE(action, nullptr);
    ASSERT_EQ(action->actionNames(), QStringList{QAccessibleActionInterface::setFocusAction()});
    action->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(panel.View().hasFocus());
    EXPECT_EQ(panel.View().Current(), std::optional<std::size_t>(2));
    EXPECT_EQ(FromQt(panel.List().currentIndex().data().toString()), "P3: line");
}

TEST_F(RollAccessTest, AnotherRollHasOtherPieces) {
    ASSERT_EQ(NameOf(Access().child(2)), "P3, described");
    RollChart chart = ChartOfCuts(2, 100);
    chart.Pieces[0].Description = "A, another";
    panel.Show(chart);
    EXPECT_EQ(Access().childCount(), 2);
    EXPECT_EQ(NameOf(Access().child(0)), "A, another");
    EXPECT_EQ(Access().child(2), nullptr);
}

TEST_F(RollAccessTest, TheListIsAListOfItsLines) {
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&panel.List());
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->role(), QAccessible::List);
    EXPECT_EQ(NameOf(list), "Cut list");
    ASSERT_EQ(list->childCount(), 5);
    EXPECT_EQ(NameOf(list->child(1)), "P1: line");
}

} // namespace
} // namespace tarn
