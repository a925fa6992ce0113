// What the menu offers to take back, and how it changes the units.

#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/menu/MenuTesting.h"

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QTimer>

namespace tarn {
namespace {

using namespace tarn::testing;

struct MenuDrafts : MenuTest {
    /// Another run leaves a draft of one room, written so many minutes before 14:05 local time.
    void LeaveDraft(Integer width, int minutesBefore, Units enteredIn = Units::Imperial) {
        Draft draft;
        draft.Rooms = {{width, 120, 0, 0, "", ""}};
        draft.EnteredIn = enteredIn;
        Leave(draft, minutesBefore);
    }
    void Leave(const Draft& draft, int minutesBefore) {
        const QDateTime written(QDate(2026, 3, 13), QTime(14, 5));
        other.Write(other.NewFile("P"), "P", draft,
                    written.addSecs(qint64{-60} * minutesBefore).toUTC());
    }

    Drafts other = NewRun();
};

TEST_F(MenuDrafts, AreNotOfferedWhenThereAreNone) {
    Load();
    EXPECT_FALSE(Shows(Controls::takeBack));
    EXPECT_FALSE(Shows(Controls::earlierRooms));
}

TEST_F(MenuDrafts, ThatCannotBeWrittenSayWhy) {
    testing::WriteFile(FromQt(state.filePath(QStringLiteral("tarn"))), "no folder");
    Load();
    EXPECT_FALSE(Shows(Controls::notKept));
    open.Now.Rooms.pop_back();
    drafts.NoteChange();
    drafts.Flush();
    Load(MenuEntry::Returning);
    EXPECT_TRUE(Shows(Controls::notSaved));
    EXPECT_TRUE(Shows(Controls::notKept)) << "BACKWARD and the exit would lose the rooms";
    const auto& label = Control<QLabel>(Controls::notKept);
    EXPECT_TRUE(label.text().startsWith(QStringLiteral("NOT KEPT: ")))
        << label.text().toStdString();
    QFile::remove(state.filePath(QStringLiteral("tarn")));
    drafts.Flush();
    EXPECT_FALSE(Shows(Controls::notKept));
}

TEST_F(MenuDrafts, AreOfferedWithTheirTime) {
    LeaveDraft(7, 0);
    Load();
    EXPECT_TRUE(Shows(Controls::takeBack));
    EXPECT_EQ(CaptionOf(Button(Controls::takeBack)),
              QStringLiteral("TAKE BACK ROOMS OF 13 Mar 14:05"));
    EXPECT_FALSE(Shows(Controls::earlierRooms)) << "there is only one";
    EXPECT_TRUE(Button(Controls::enterRooms).hasFocus()) << "as ever";
    EXPECT_EQ(open.Now.Rooms.size(), 3U) << "what is stored is opened";
}

TEST_F(MenuDrafts, OfAnotherYearNameIt) {
    session.Today = [] { return QDate(2027, 1, 2); };
    LeaveDraft(7, 0);
    Load();
    EXPECT_EQ(CaptionOf(Button(Controls::takeBack)),
              QStringLiteral("TAKE BACK ROOMS OF 13 Mar 2026 14:05"));
}

TEST_F(MenuDrafts, AreTakenBackByAPress) {
    LeaveDraft(7, 0, Units::Metric);
    Load();
    Click(Button(Controls::takeBack));
    ASSERT_EQ(open.Now.Rooms.size(), 1U);
    EXPECT_EQ(open.Now.Rooms[0].Width, 7);
    EXPECT_TRUE(Shows(Controls::notSaved));
    EXPECT_TRUE(Control<QCheckBox>(Controls::metric).isChecked()) << "with their units";
    EXPECT_EQ(open.Shown, Units::Metric);
    EXPECT_FALSE(Shows(Controls::takeBack));
    EXPECT_TRUE(Button(Controls::enterRooms).hasFocus());
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(file.Rows("SELECT count(*) FROM InputData"), Lines{"3"}) << "nothing is stored";
}

TEST_F(MenuDrafts, AreAStepOfTheRoomsHistory) {
    LeaveDraft(7, 0, Units::Metric);
    Load();
    const Project before = open.Now;
    Click(Button(Controls::takeBack));
    EXPECT_EQ(history.UndoName(), "take back rooms of 13 Mar 14:05");
    history.Undo();
    EXPECT_EQ(open.Now, before);
    history.Redo();
    EXPECT_EQ(open.Now.Rooms.size(), 1U);
    EXPECT_EQ(open.Now.EnteredIn, Units::Metric);
}

TEST_F(MenuDrafts, ThatCannotBeTakenBackAreNoStep) {
    LeaveDraft(7, 0);
    Load();
    open.Now.Scale = 0; // no room has an extent
    Click(Button(Controls::takeBack));
    EXPECT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(open.Now.Rooms.size(), 3U);
    EXPECT_FALSE(history.CanUndo());
}

TEST_F(MenuDrafts, OfAnOrderAloneSaySo) {
    Draft draft;
    draft.Orders.emplace()[1] = DefaultOrderRequest(Units::Imperial);
    draft.Orders->at(1).Rolls = {{144, "", "12ft", std::nullopt}};
    draft.Orders->at(1).PatternDrift = 0;
    Leave(draft, 0);
    Load();
    EXPECT_EQ(CaptionOf(Button(Controls::takeBack)),
              QStringLiteral("TAKE BACK ORDER OF 13 Mar 14:05"));
    EXPECT_FALSE(Shows(Controls::notSaved));
    Click(Button(Controls::takeBack));
    EXPECT_EQ(open.Now.Orders, draft.Orders);
    EXPECT_EQ(open.Now.Rooms.size(), 3U);
    EXPECT_TRUE(Shows(Controls::notSaved));
    EXPECT_FALSE(Shows(Controls::takeBack));
    Leave(draft, 0);
    LeaveDraft(7, -5);
    open.Now.Orders.clear();
    Load(MenuEntry::ExistingProject);
    EXPECT_EQ(FromQt(Control<QMenu>(Controls::earlierRoomsMenu).actions().at(1)->text()),
              "13 Mar 14:05, the choices of an order");
}

TEST_F(MenuDrafts, AreTakenBackByTheirKey) {
    LeaveDraft(7, 0);
    Load();
    Press(*form, Qt::Key_T, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return open.Now.Rooms.size() == 1; }));
}

TEST_F(MenuDrafts, OfEarlierStandInAMenu) {
    LeaveDraft(7, 0);
    LeaveDraft(8, 10);
    Draft typed;
    typed.Typed.New.emplace().Remark = "hall";
    Leave(typed, 20);
    Load();
    EXPECT_TRUE(Shows(Controls::earlierRooms));
    auto& earlier = Control<QMenu>(Controls::earlierRoomsMenu);
    Lines items;
    for (const QAction* item : earlier.actions()) {
        items.push_back(FromQt(item->text()));
    }
    EXPECT_EQ(items, (Lines{"13 Mar 14:05, 1 room", "13 Mar 13:55, 1 room",
                            "13 Mar 13:45, a room that was being typed"}));
    // An earlier test may have ended the program, and no loop below the main one runs then.
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
    QCoreApplication::exec();
    QTimer timer; // the menu takes all events until an item is chosen
    QObject::connect(&timer, &QTimer::timeout, &earlier, [&] {
        if (earlier.isVisible()) {
            timer.stop();
            earlier.setActiveAction(earlier.actions().at(1));
            QTest::keyClick(&earlier, Qt::Key_Return);
        }
    });
    timer.start(1);
    Click(Button(Controls::earlierRooms));
    ASSERT_EQ(open.Now.Rooms.size(), 1U);
    EXPECT_EQ(open.Now.Rooms[0].Width, 8);
    EXPECT_EQ(CaptionOf(Button(Controls::takeBack)),
              QStringLiteral("TAKE BACK ROOMS OF 13 Mar 14:05"))
        << "the others are offered still";
}

TEST_F(MenuDrafts, AreReachedByTabBeforeTheWayOn) {
    LeaveDraft(7, 0);
    LeaveDraft(8, 10);
    file.Run("UPDATE MainTab SET EnteredMetric = 1");
    Load();
    Control(Controls::metric).setFocus();
    for (const char* name : {Controls::enteredInMetric, Controls::takeBack, Controls::earlierRooms,
                             Controls::enterRooms}) {
        Press(*form, Qt::Key_Tab);
        EXPECT_TRUE(Control(name).hasFocus()) << name;
    }
}

TEST_F(MenuDrafts, StandInTheirPanel) {
    LeaveDraft(7, 0);
    LeaveDraft(8, 10);
    file.Run("UPDATE MainTab SET EnteredMetric = 1");
    Load();
    const QRect panel = PlaceOf(Controls::menuPanel);
    for (const char* name : {Controls::takeBack, Controls::earlierRooms}) {
        EXPECT_TRUE(panel.contains(PlaceOf(name))) << name;
        EXPECT_LT(PlaceOf(name).bottom(), PlaceOf(Controls::enterRooms).top()) << name;
        EXPECT_GE(Control(name).width(), Control(name).sizeHint().width()) << name;
    }
    EXPECT_FALSE(PlaceOf(Controls::takeBack).intersects(PlaceOf(Controls::earlierRooms)));
}

TEST_F(MenuDrafts, AreNotOfferedForAProjectThatCannotBeLoaded) {
    LeaveDraft(7, 0);
    file.Run("UPDATE MainTab SET ObjNum = 502");
    Load();
    EXPECT_FALSE(Shows(Controls::takeBack));
    Click(Button(Controls::backToProjects));
    EXPECT_EQ(other.Of("P").size(), 1U) << "it stays for the time when it can";
}

TEST_F(MenuDrafts, AreOfferedAlsoWhileOtherRoomsAreUnsaved) {
    LeaveDraft(7, 0);
    Load();
    open.Now.Rooms.at(0).Width = 9;
    Load(MenuEntry::Returning);
    EXPECT_TRUE(Shows(Controls::notSaved));
    Click(Button(Controls::takeBack));
    EXPECT_EQ(open.Now.Rooms.size(), 1U);
    ASSERT_TRUE(Shows(Controls::takeBack)) << "what was there can be taken back in turn";
    Click(Button(Controls::takeBack));
    EXPECT_EQ(open.Now.Rooms.size(), 3U);
    EXPECT_EQ(open.Now.Rooms.at(0).Width, 9);
}

TEST_F(MenuDrafts, AreKeptByGoingBackwardAndByEnding) {
    Load();
    open.Now.Rooms.at(0).Width = 9;
    Click(Button(Controls::backToProjects));
    ASSERT_EQ(other.Of("P").size(), 1U);
    EXPECT_EQ(other.Of("P")[0].Record.Content.Rooms, open.Now.Rooms);
    EXPECT_TRUE(boxes.Questions.empty());
}

TEST_F(MenuDrafts, OutliveARoomsReloadThatFails) {
    Load();
    open.Typed.New.emplace().Remark = "hall";
    drafts.Flush();
    file.Run("UPDATE MainTab SET ObjNum = 502");
    Load(MenuEntry::Returning);
    EXPECT_FALSE(open.IsUsable);
    drafts.Flush();
    EXPECT_EQ(other.Of("P").size(), 1U);
}

TEST_F(MenuDrafts, OfATypedRoomStayWhenTheRoomsAreSavedAndReloaded) {
    Load();
    open.Typed.Changed = ChangedRoom{1, open.Now.Rooms.at(1), {}};
    Load(MenuEntry::Returning);
    EXPECT_TRUE(open.Typed.Changed);
    file.Run("UPDATE InputData SET RoomW = 333 WHERE ObjNum = 1");
    Load(MenuEntry::Returning);
    EXPECT_FALSE(open.Typed.Changed) << "another program changed that room";
    EXPECT_TRUE(open.Typed.New);
}

TEST_F(MenuDrafts, AreBesideAButtonThatTicksMetric) {
    file.Run("UPDATE MainTab SET EnteredMetric = 1");
    Load();
    auto& metric = Control<QCheckBox>(Controls::metric);
    Click(Button(Controls::enteredInMetric));
    EXPECT_TRUE(metric.isChecked());
    EXPECT_EQ(open.Shown, Units::Metric);
    EXPECT_FALSE(Shows(Controls::enteredInMetric));
    EXPECT_TRUE(metric.hasFocus());
}

TEST_F(MenuDrafts, AreBesideAButtonThatUnticksMetric) {
    Load();
    auto& metric = Control<QCheckBox>(Controls::metric);
    Click(metric);
    ASSERT_TRUE(Shows(Controls::enteredInMetric));
    EXPECT_EQ(CaptionOf(Button(Controls::enteredInMetric)), QStringLiteral("ENTERED IN FEET"));
    EXPECT_EQ(Button(Controls::enteredInMetric).accessibleName(),
              QStringLiteral("ENTERED IN FEET"));
    Press(*form, Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !metric.isChecked(); }));
    EXPECT_EQ(open.Shown, Units::Imperial);
    EXPECT_FALSE(Shows(Controls::enteredInMetric));
}

} // namespace
} // namespace tarn
