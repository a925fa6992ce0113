// The room entry screen: changes of the rooms taken back and made again, and its other keys.

#include "base/RunTimeError.h"
#include "project/RoomTesting.h"
#include "screens/rooms/RoomScreenTesting.h"
#include "store/TestDatabase.h"

#include <QMenu>
#include <QTableView>

namespace tarn {
namespace {

using namespace tarn::testing;

struct UndoingRooms : RoomScreenTest {
    UndoingRooms() {
        file.AddProject("MARCH", "MILL", 5, 3);
        store = file.Open(ShortWait);
        LoadedProject loaded = store.Load("MILL");
        open.Now = loaded.Value;
        open.Saved = open.Now;
        open.Read = loaded.Mark;
    }
    /// An item of the Edit menu.
    QAction& Item(const char* name) const {
        auto* action = form->findChild<QAction*>(QString::fromLatin1(name));
        if (action == nullptr) {
            throw std::runtime_error(std::string("there is no item ") + name);
        }
        return *action;
    }
    /// The items as they are written; those that cannot be chosen in brackets.
    Lines Items() const {
        Lines items;
        for (const char* name : {Controls::undoRooms, Controls::redoRooms}) {
            const std::string text = FromQt(Item(name).text().remove(QLatin1Char('&')));
            items.push_back(Item(name).isEnabled() ? text : "(" + text + ")");
        }
        return items;
    }
    void Undo() const { Press(*form, Qt::Key_Z, Qt::ControlModifier); }
    void Redo() const { Press(*form, Qt::Key_Y, Qt::ControlModifier); }
    std::string ShownItem() const { return RoomScreenTest::Item(); }
    Lines StoredRemarks() const {
        return file.Rows("SELECT RoomRemark FROM InputData WHERE TabIndex = 5 ORDER BY ObjNum");
    }

    TestDatabase file;
};

TEST_F(UndoingRooms, HaveAMenuThatNamesThem) {
    Open();
    const auto& menu = Find<QMenu>(*form, Controls::editMenu);
    EXPECT_EQ(menu.title(), QStringLiteral("&Undo"));
    EXPECT_EQ(Items(), (Lines{"(Undo)", "(Redo)"}));
    EXPECT_EQ(Item(Controls::undoRooms).shortcut(), QKeySequence(QStringLiteral("Ctrl+Z")));
    EXPECT_EQ(Item(Controls::redoRooms).shortcut(), QKeySequence(QStringLiteral("Ctrl+Y")));
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Items(), (Lines{"(Undo)", "(Redo)"}));
    TypeInto(6, "!");
    EXPECT_EQ(Items(), (Lines{"Undo change room 3", "(Redo)"})) << "as it would be stored";
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Items(), (Lines{"Undo change room 3", "(Redo)"}));
    boxes.YesNo = {true};
    ClickOn(Controls::deleteRoom);
    EXPECT_EQ(Items(), (Lines{"Undo delete room 2", "(Redo)"}));
    Item(Controls::undoRooms).trigger();
    EXPECT_EQ(Items(), (Lines{"Undo change room 3", "Redo delete room 2"}));
    Item(Controls::undoRooms).trigger();
    EXPECT_EQ(Items(), (Lines{"(Undo)", "Redo change room 3"}));
}

TEST_F(UndoingRooms, AreFoundByTheMouse) {
    Open();
    TypeSizes({"10", "", "12", ""});
    ClickOn(Controls::nextRoom);
    Press(*form, Qt::Key_F, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Right);
    auto& menu = Find<QMenu>(*form, Controls::editMenu);
    ASSERT_TRUE(QTest::qWaitFor([&] { return menu.isVisible(); }));
    QTest::mouseClick(&menu, Qt::LeftButton, {},
                      menu.actionGeometry(&Item(Controls::undoRooms)).center());
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
    EXPECT_EQ(ShownItem(), "4");
}

TEST_F(UndoingRooms, GoToTheRoomConcerned) {
    Open();
    ClickOn(Controls::previousRoom);
    ClickOn(Controls::previousRoom);
    TypeInto(6, "hall");
    ClickOn(Controls::nextRoom);
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(ShownItem(), "4");
    Undo();
    EXPECT_EQ(ShownItem(), "2");
    EXPECT_EQ(Texts()[6], "");
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
    ClickOn(Controls::nextRoom);
    Redo();
    EXPECT_EQ(ShownItem(), "2");
    EXPECT_EQ(Texts()[6], "hall");
    EXPECT_EQ(open.Now.Rooms.at(1).Remark, "hall");
    const auto& table = Find<QTableView>(*form, Controls::roomTable);
    EXPECT_EQ(table.selectionModel()->selectedRows().front().row(), 1);
}

TEST_F(UndoingRooms, AreMadeAgainByBothKeys) {
    Open();
    TypeSizes({"10", "", "12", ""});
    ClickOn(Controls::nextRoom);
    Undo();
    EXPECT_EQ(open.Now.Rooms.size(), 3U);
    EXPECT_EQ(Texts(), Lines(7));
    EXPECT_EQ(ShownItem(), "4");
    Press(*form, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(open.Now.Rooms.size(), 4U);
    EXPECT_EQ(ShownItem(), "4");
    EXPECT_EQ(Texts()[2], "12");
}

TEST_F(UndoingRooms, PutADeletedRoomBackAsItWas) {
    open.Now.Rooms[1] = {100, 200, 77, 200, "\u2028", std::string(300, 'r')};
    open.Saved = open.Now;
    Open();
    ClickOn(Controls::previousRoom);
    ClickOn(Controls::previousRoom);
    boxes.YesNo = {true};
    ClickOn(Controls::deleteRoom);
    EXPECT_EQ(ShownItem(), "2");
    Undo();
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
    EXPECT_EQ(ShownItem(), "2");
    EXPECT_EQ(Covering().currentIndex(), -1);
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
}

TEST_F(UndoingRooms, LetAFieldTakeItsTypingBackFirst) {
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "hall");
    ClickOn(Controls::previousRoom);
    TypeInto(6, "x");
    Undo();
    EXPECT_EQ(Texts()[6], "");
    EXPECT_EQ(ShownItem(), "2");
    EXPECT_EQ(open.Now.Rooms.at(2).Remark, "hall") << "only the typing in the field";
    Redo();
    EXPECT_EQ(Texts()[6], "x");
    Undo();
    Undo();
    EXPECT_EQ(ShownItem(), "3") << "the field has nothing left";
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
}

TEST_F(UndoingRooms, AreReachedFromAFieldThatDroppedItsZero) {
    Open();
    TypeSizes({"10", "0", "12", "0"});
    ClickOn(Controls::nextRoom);
    ClickOn(Controls::previousRoom);
    ASSERT_EQ(open.Now.Rooms.size(), 4U);
    ASSERT_EQ(Texts()[1], "");
    Find<QLineEdit>(*form, Controls::roomWidthMinor).setFocus();
    Undo();
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
    Redo();
    EXPECT_EQ(open.Now.Rooms.size(), 4U);
    EXPECT_EQ(Texts()[1], "");
}

TEST_F(UndoingRooms, LetAFieldTakeBackWhatAZeroReplaced) {
    Open();
    TypeInto(1, "5");
    auto& field = Find<QLineEdit>(*form, Controls::roomWidthMinor);
    field.setFocus();
    field.selectAll();
    Press(*form, Qt::Key_0);
    EXPECT_EQ(Texts()[1], "");
    Undo();
    EXPECT_EQ(Texts()[1], "5");
    EXPECT_TRUE(field.hasFocus());
}

TEST_F(UndoingRooms, TakeBackWhatIsTypedInOtherFields) {
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(5, "7");
    TypeInto(6, "hall");
    const Lines typed = Texts();
    Focus(Text(4));
    Undo();
    EXPECT_EQ(ShownItem(), "3");
    EXPECT_EQ(Texts()[5], "");
    EXPECT_EQ(Texts()[6], "");
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
    EXPECT_TRUE(Text(4).hasFocus()) << "the focus stays";
    Redo();
    EXPECT_EQ(Texts(), typed) << "nothing typed is lost";
    EXPECT_TRUE(open.Typed.IsEmpty());
}

TEST_F(UndoingRooms, KeepAHalfTypedRoomInItsFields) {
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "hall");
    ClickOn(Controls::nextRoom);
    TypeSizes({"12"});
    Focus(Text(4));
    Undo();
    EXPECT_EQ(ShownItem(), "3");
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
    EXPECT_TRUE(boxes.Messages.empty());
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(ShownItem(), "4");
    EXPECT_EQ(Texts()[0], "12");
}

TEST_F(UndoingRooms, WaitWhileASizeIsRefused) {
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "hall");
    ClickOn(Controls::previousRoom);
    Paste(2, "3,45");
    Focus(Text(6));
    Undo();
    EXPECT_EQ(boxes.Messages, Lines{WrongSize});
    EXPECT_TRUE(HasFocus(Controls::roomLengthMajor));
    EXPECT_EQ(ShownItem(), "2");
    EXPECT_EQ(open.Now.Rooms.at(2).Remark, "hall");
    EXPECT_EQ(Texts()[2], "3,45");
    Undo();
    EXPECT_EQ(Texts()[2], "16") << "the field has its typing back";
}

TEST_F(UndoingRooms, KeepWhatIsTypedWhenItCannotBeStored) {
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "hall");
    ClickOn(Controls::previousRoom);
    Paste(0, "2731");
    Focus(Text(6));
    Undo();
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_TRUE(boxes.Messages[0].starts_with("Run-time error '6'")) << boxes.Messages[0];
    EXPECT_EQ(Texts()[0], "2731");
    EXPECT_EQ(open.Now.Rooms.at(2).Remark, "hall");
}

TEST_F(UndoingRooms, GoAcrossASave) {
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "hall");
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(StoredRemarks(), (Lines{"", "", "hall"}));
    EXPECT_FALSE(open.HasUnsavedRooms());
    Focus(Text(5));
    Undo();
    EXPECT_EQ(Texts()[6], "");
    EXPECT_TRUE(open.HasUnsavedRooms());
    EXPECT_EQ(StoredRemarks(), (Lines{"", "", "hall"})) << "only SAVE writes";
    drafts.Flush();
    ASSERT_EQ(NewRun().Of("MILL").size(), 1U);
    EXPECT_EQ(NewRun().Of("MILL")[0].Record.Content.Rooms, open.Now.Rooms);
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(StoredRemarks(), (Lines{"", "", ""}));
    EXPECT_FALSE(open.HasUnsavedRooms());
    EXPECT_TRUE(NewRun().Of("MILL").empty());
    Redo();
    EXPECT_EQ(open.Now.Rooms.at(2).Remark, "hall");
    EXPECT_EQ(boxes.Messages, (Lines{"Data is saved", "Data is saved"}));
}

TEST_F(UndoingRooms, GoOnWhereAFieldTookASavedTypingBack) {
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "hall");
    ClickOn(Controls::saveRooms);
    Focus(Text(6));
    Undo();
    EXPECT_EQ(Texts()[6], "") << "the field's own";
    EXPECT_EQ(open.Now.Rooms.at(2).Remark, "hall");
    Undo();
    EXPECT_EQ(Texts()[6], "") << "it does not come back";
    EXPECT_EQ(open.Now.Rooms.at(2).Remark, "");
    EXPECT_FALSE(history.CanUndo());
    Redo();
    EXPECT_EQ(Texts()[6], "hall");
}

TEST_F(UndoingRooms, ForgetTheRoomOfASaveThatFails) {
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "hall");
    ClickOn(Controls::previousRoom);
    TypeInto(6, "bath");
    file.Run("UPDATE MainTab SET TabIndex = 32767, ProjName = 'OTHER'");
    open.Now.Sheet = 32767; // no other number is left
    open.Read.reset();
    ClickOn(Controls::saveRooms);
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(open.Now.Rooms.at(1).Remark, "");
    EXPECT_EQ(Items()[0], "Undo change room 2") << "which is typed, and not stored";
    Undo();
    EXPECT_EQ(Texts()[6], "");
    EXPECT_EQ(Items()[0], "Undo change room 3");
}

TEST_F(UndoingRooms, GoOnWhenTheScreenOpensAgain) {
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "hall");
    ClickOn(Controls::leaveRooms);
    EXPECT_EQ(open.Now.Rooms.at(2).Remark, "hall");
    Open();
    EXPECT_EQ(Items(), (Lines{"Undo change room 3", "(Redo)"}));
    Undo();
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
    form->close();
    open.Now.Rooms.pop_back(); // a load found others
    Open();
    EXPECT_EQ(Items(), (Lines{"(Undo)", "(Redo)"}));
}

TEST_F(UndoingRooms, KeepTheUnitsWithTheRooms) {
    open.Shown = Units::Metric;
    Open();
    TypeSizes({"3", "50", "4", "20"});
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.EnteredIn, Units::Metric);
    Undo();
    EXPECT_EQ(open.Now.EnteredIn, Units::Imperial);
    Redo();
    EXPECT_EQ(open.Now.EnteredIn, Units::Metric);
}

TEST_F(UndoingRooms, WaitWhileTheReportIsShown) {
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "hall");
    ClickOn(Controls::showReport);
    Undo();
    Press(*form, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(open.Now.Rooms.at(2).Remark, "hall");
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(UndoingRooms, WorkFromTheList) {
    Open();
    Press(*form, Qt::Key_F6);
    Press(*form, Qt::Key_Home, Qt::ControlModifier);
    boxes.YesNo = {true};
    Press(*form, Qt::Key_Delete);
    EXPECT_EQ(open.Now.Rooms.size(), 2U);
    Undo();
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
    const auto& table = Find<QTableView>(*form, Controls::roomTable);
    EXPECT_TRUE(table.isVisible()) << "the list stays";
    EXPECT_TRUE(table.hasFocus());
    EXPECT_EQ(table.currentIndex().row(), 0);
    EXPECT_EQ(table.model()->rowCount(), 4);
}

class UndoingAnything : public UndoingRooms, public ::testing::WithParamInterface<unsigned> {
  protected:
    UndoingAnything()
        : random_(GetParam()) {}
    int Any(int bound) { return Below(random_, bound); }
    void Act() {
        switch (Any(10)) {
        case 0:
            return ClickOn(Controls::nextRoom);
        case 1:
            return ClickOn(Controls::previousRoom);
        case 2:
            boxes.YesNo = {true};
            return ClickOn(Controls::deleteRoom);
        case 3:
            return ClickOn(Any(4) == 0 ? Controls::saveRooms : Controls::nextRoom);
        case 4:
            return Undo();
        case 5:
            return Redo();
        case 6:
            return TypeInto(5 + Any(2), std::to_string(Any(10)));
        default:
            for (const int field : {0, 2}) {
                Paste(field, std::to_string(1 + Any(20)));
            }
            return ClickOn(Controls::nextRoom);
        }
    }

    std::mt19937 random_;
};

INSTANTIATE_TEST_SUITE_P(Seeds, UndoingAnything, ::testing::Range(1U, 5U));

TEST_P(UndoingAnything, LeadsBackToTheBeginningAndToTheEndAgain) {
    SCOPED_TRACE(GetParam());
    const Project start = open.Now;
    Open();
    for (int i = 0; i < 120; ++i) {
        Act();
        ASSERT_TRUE(QTest::qWaitFor([&] { return form->isVisible(); }));
    }
    Paste(0, "7");
    Paste(2, "8");
    ClickOn(Controls::nextRoom);
    ClickOn(Controls::previousRoom);
    const Project end = open.Now;
    ASSERT_GT(history.Position(), 10);
    for (int most = 1000; history.CanUndo() && most > 0; --most) {
        Undo();
    }
    EXPECT_EQ(open.Now.Rooms, start.Rooms);
    EXPECT_EQ(open.Now.EnteredIn, start.EnteredIn);
    for (int most = 1000; history.CanRedo() && most > 0; --most) {
        Redo();
    }
    EXPECT_EQ(open.Now.Rooms, end.Rooms);
    EXPECT_EQ(open.Now.EnteredIn, end.EnteredIn);
}

using RoomKeys = UndoingRooms;

TEST_F(RoomKeys, SaveByCtrlS) {
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "hall");
    Press(*form, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(boxes.Messages, Lines{"Data is saved"});
    EXPECT_EQ(StoredRemarks(), (Lines{"", "", "hall"}));
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    EXPECT_EQ(Item(Controls::fileSave).shortcut(), QKeySequence(QStringLiteral("Ctrl+S")));
}

TEST_F(RoomKeys, ShowTheReportAndThenPrintItByCtrlP) {
    Open();
    Press(*form, Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(Find(*form, Controls::reportPanel).isVisible());
    EXPECT_TRUE(printer.Reports.empty()) << "nothing is printed unseen";
    Press(*form, Qt::Key_P, Qt::ControlModifier);
    AwaitPrinter();
    EXPECT_EQ(printer.Reports.size(), 1U);
    EXPECT_FALSE(Find(*form, Controls::reportPanel).isVisible()) << "as after PRINT";
}

TEST_F(RoomKeys, StoreTheRoomBeforeTheReportByCtrlP) {
    Open();
    Paste(0, "12'6");
    Press(*form, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(boxes.Messages, Lines{WrongSize});
    EXPECT_FALSE(Find(*form, Controls::reportPanel).isVisible());
}

TEST_F(RoomKeys, KeepTheReportOpenWhenItCannotBePrinted) {
    Open();
    ClickOn(Controls::showReport);
    printer.Failure = "There is no printer.";
    Press(*form, Qt::Key_P, Qt::ControlModifier);
    AwaitPrinter();
    EXPECT_EQ(boxes.Messages.size(), 1U);
    EXPECT_TRUE(Find(*form, Controls::reportPanel).isVisible());
}

TEST_F(RoomKeys, LeadBackToTheFormFromAReportOfTheList) {
    Open(800, 600);
    ClickOn(Controls::showRoomList);
    Press(*form, Qt::Key_P, Qt::ControlModifier);
    Press(*form, Qt::Key_Escape);
    EXPECT_TRUE(Find(*form, Controls::roomPanel).isVisible());
    EXPECT_EQ(Find<QPushButton>(*form, Controls::showRoomList).accessibleName(),
              QStringLiteral("SHOW LIST"));
}

TEST_F(RoomKeys, CloseTheReportByEscape) {
    Open();
    ClickOn(Controls::showReport);
    for (const char* name : {Controls::reportText, Controls::printReport, Controls::closeReport}) {
        if (!Find(*form, Controls::reportPanel).isVisible()) {
            ClickOn(Controls::showReport);
        }
        Focus(Find(*form, name));
        Press(*form, Qt::Key_Escape);
        EXPECT_FALSE(Find(*form, Controls::reportPanel).isVisible()) << name;
        EXPECT_TRUE(Find(*form, Controls::roomPanel).isEnabled());
        EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    }
    EXPECT_TRUE(printer.Reports.empty());
}

} // namespace
} // namespace tarn
