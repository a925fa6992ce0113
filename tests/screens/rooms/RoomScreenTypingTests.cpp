// The room entry screen: what is typed and in no room yet, and its draft.

#include "screens/rooms/RoomScreenTesting.h"
#include "store/TestDatabase.h"

#include <QDir>

namespace tarn {
namespace {

using namespace tarn::testing;

struct TypedRooms : RoomScreenTest {
    TypedRooms() { AddRooms(2); }

    std::vector<KeptDraft> Kept() const { return NewRun().Of(open.Now.Name); }
    void Leave() {
        ClickOn(Controls::leaveRooms);
        form.reset();
        screens.Calls.clear();
    }
    std::string Note() const { return FromQt(Find<QLabel>(*form, Controls::roomNote).text()); }
    QLabel& Warning() const { return Find<QLabel>(*form, Controls::titleWarning); }
};

TEST_F(TypedRooms, StandInTheFieldsAgain) {
    Open();
    TypeSizes({"12", "", "", ""});
    TypeInto(6, "hall");
    Leave();
    EXPECT_EQ(open.Now.Rooms.size(), 2U);
    Open();
    EXPECT_EQ(Item(), "3");
    EXPECT_EQ(Texts(), (Lines{"12", "", "", "", "", "", "hall"}));
    TypeInto(2, "10");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms.at(2), (Room{144, 120, 0, 0, "", "hall"}));
    EXPECT_EQ(Texts(), Lines(7)) << "once";
    EXPECT_TRUE(open.Typed.IsEmpty());
}

TEST_F(TypedRooms, StandInTheFieldsOfTheirRoomAgain) {
    Open();
    ClickOn(Controls::previousRoom);
    Paste(0, "12'6");
    TypeInto(6, "!");
    Leave();
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
    Open();
    EXPECT_EQ(Item(), "2");
    EXPECT_EQ(Texts()[0], "12'6");
    EXPECT_EQ(Texts()[6], "remark 1!");
    Paste(0, "12");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms.at(1).Remark, "remark 1!");
    EXPECT_EQ(Item(), "3");
}

TEST_F(TypedRooms, AreNoneWhenARoomWasOnlyLookedAt) {
    open.Now.Rooms.at(1).Base = 9;
    open.Now.Rooms.at(1).Covering = 12;
    open.Now.Rooms.at(1).Width = 144;
    open.Saved = open.Now;
    Open();
    ClickOn(Controls::previousRoom);
    ClickOn(Controls::previousRoom);
    ClickOn(Controls::nextRoom);
    EXPECT_TRUE(open.Typed.IsEmpty());
    Leave();
    EXPECT_TRUE(open.Typed.IsEmpty());
    EXPECT_TRUE(Kept().empty());
    Open();
    EXPECT_EQ(Item(), "3");
}

TEST_F(TypedRooms, ThatAreNewStayWhileOthersAreLookedAt) {
    Open();
    TypeInto(6, "hall");
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Item(), "2");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(Item(), "3");
    EXPECT_EQ(Texts()[6], "hall");
}

TEST_F(TypedRooms, AreGoneWhenTheyAreDeleted) {
    Open();
    TypeInto(6, "hall");
    boxes.YesNo = {true};
    ClickOn(Controls::deleteRoom);
    EXPECT_TRUE(open.Typed.IsEmpty());
    Leave();
    EXPECT_TRUE(Kept().empty());
}

TEST_F(TypedRooms, AreInTheDraftAtOnceWhenTheScreenIsLeft) {
    Open();
    TypeSizes({"12", "", "10", ""});
    ClickOn(Controls::nextRoom);
    TypeInto(6, "hall");
    Leave();
    ASSERT_EQ(Kept().size(), 1U);
    EXPECT_EQ(Kept()[0].Record.Content.Rooms, open.Now.Rooms);
    EXPECT_EQ(Kept()[0].Record.Content.Typed.New->Remark, "hall");
}

TEST_F(TypedRooms, AreInTheDraftAtOnceWhenTheEstimateIsOpened) {
    Open();
    TypeSizes({"12", "", "10", ""});
    ClickOn(Controls::estimateFromRooms);
    EXPECT_EQ(screens.Calls, Lines{"estimate from rooms"});
    ASSERT_EQ(Kept().size(), 1U);
    EXPECT_EQ(Kept()[0].Record.Content.Rooms, open.Now.Rooms);
}

TEST_F(TypedRooms, AreInTheDraftSoonWhileTheyAreTyped) {
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "!");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !Kept().empty(); }));
    const auto changed = Kept()[0].Record.Content.Typed.Changed;
    ASSERT_TRUE(changed);
    EXPECT_EQ(changed->Place, 1U);
    EXPECT_EQ(changed->Before, open.Now.Rooms.at(1));
    EXPECT_EQ(changed->Texts.Remark, "remark 1!");
}

TEST_F(TypedRooms, KeepTheirNumbersInOtherUnits) {
    AddRooms(0);
    open.Shown = Units::Metric;
    Open();
    TypeSizes({"3", "66", "", ""});
    Leave();
    open.Shown = Units::Imperial;
    Open();
    EXPECT_EQ(Texts()[0], "30");
    EXPECT_EQ(Texts()[1], "6");
    Leave();
    open.Shown = Units::Metric;
    Open();
    EXPECT_EQ(Texts()[0], "3");
    EXPECT_EQ(Texts()[1], "66");
}

TEST_F(TypedRooms, ThatCannotBeKeptSayWhyBelowTheSizes) {
    Open();
    WriteFile(FromQt(state.filePath(QStringLiteral("tarn"))), "no folder");
    TypeInto(6, "hall");
    drafts.Flush();
    EXPECT_TRUE(Note().starts_with("NOT KEPT: ")) << Note();
    EXPECT_NE(Note().find(FromQt(state.path())), std::string::npos) << Note();
    Open();
    EXPECT_TRUE(Note().starts_with("NOT KEPT: ")) << "a screen that opens says it too";
    QFile::remove(state.filePath(QStringLiteral("tarn")));
    drafts.Flush();
    EXPECT_EQ(Note(), "");
}

TEST_F(TypedRooms, AreSaidInOtherUnitsBesideTheTitle) {
    Open();
    EXPECT_FALSE(Warning().isVisible());
    open.Shown = Units::Metric;
    Open();
    EXPECT_TRUE(Warning().isVisible());
    EXPECT_EQ(Warning().text(), QStringLiteral("ENTERED IN FEET"));
    open.Saved.EnteredIn = open.Now.EnteredIn = Units::Metric;
    open.Shown = Units::Imperial;
    Open();
    EXPECT_EQ(Warning().text(), QStringLiteral("ENTERED IN METRIC"));
    EXPECT_EQ(Warning().accessibleName(), QStringLiteral("ENTERED IN METRIC"));
}

TEST_F(TypedRooms, StandBesideTheTitleAtAnySize) {
    open.Saved.EnteredIn = open.Now.EnteredIn = Units::Metric;
    for (const auto& [width, height] : {std::pair{800, 600}, {1920, 1080}}) {
        Open(width, height);
        const QLabel& title = Find<QLabel>(*form, Controls::formTitle);
        const QRect words = Warning().geometry();
        const int middle = width / 2;
        EXPECT_NEAR(title.geometry().center().x(), middle, 1) << "the title stays in the middle";
        EXPECT_GT(words.left(), middle + title.sizeHint().width() / 2);
        EXPECT_LT(words.right(), width);
        EXPECT_NEAR(words.center().y(), title.geometry().center().y(), 1);
        EXPECT_LT(words.bottom(), Find(*form, Controls::roomPanel).geometry().top());
    }
}

TEST_F(TypedRooms, SayTheUnitsAsSoonAsARoomChangesThem) {
    AddRooms(0);
    open.Shown = Units::Metric;
    Open();
    EXPECT_FALSE(Warning().isVisible());
    TypeSizes({"3", "66", "5", ""});
    EXPECT_FALSE(Warning().isVisible());
    ClickOn(Controls::nextRoom);
    EXPECT_FALSE(Warning().isVisible());
    EXPECT_TRUE(open.IsInMetric());
}

/// On a database, with SAVE.
struct SavedMeanwhile : RoomScreenTest {
    SavedMeanwhile() {
        file.AddProject("MARCH", "MILL", 5, 2);
        store = file.Open(ShortWait);
        LoadedProject loaded = store.Load("MILL");
        open.Now = loaded.Value;
        open.Saved = open.Now;
        open.Read = loaded.Mark;
    }
    Lines Stored() const {
        return file.Rows("SELECT RoomW FROM InputData WHERE TabIndex = 5 ORDER BY ObjNum");
    }
    std::vector<KeptDraft> Kept() const { return NewRun().Of(open.Now.Name); }
    std::string Note() const { return FromQt(Find<QLabel>(*form, Controls::roomNote).text()); }
    void TypeRoomAndSave() {
        Open();
        TypeSizes({"12", "", "10", ""});
        ClickOn(Controls::saveRooms);
    }

    TestDatabase file;
};

TEST_F(SavedMeanwhile, EndsTheDraft) {
    Open();
    TypeSizes({"12", "", "10", ""});
    drafts.Flush();
    EXPECT_EQ(Kept().size(), 1U);
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(boxes.Messages, Lines{"Data is saved"});
    EXPECT_TRUE(Kept().empty());
}

TEST_F(SavedMeanwhile, KeepsARemarkWithoutSizesAndSaysThatItIsNotStored) {
    Open();
    TypeInto(6, "hall");
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(boxes.Messages, Lines{"Data is saved"});
    EXPECT_EQ(Note(), "Room 3 is not stored: it needs a width and a length.");
    EXPECT_EQ(Texts()[6], "hall");
    ASSERT_EQ(Kept().size(), 1U);
    EXPECT_FALSE(Kept()[0].Record.Content.Rooms);
    EXPECT_EQ(Kept()[0].Record.Content.Typed.New->Remark, "hall");
    ClickOn(Controls::leaveRooms);
    Open();
    EXPECT_EQ(Texts()[6], "hall") << "in the same run";
    TypeSizes({"12", "", "10", ""});
    EXPECT_EQ(Note(), "") << "until the next change";
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(Stored(), (Lines{"100", "101", "144"}));
    EXPECT_EQ(Note(), "");
    EXPECT_TRUE(Kept().empty());
}

TEST_F(SavedMeanwhile, SaysItOfAHalfTypedRoomElsewhereToo) {
    Open();
    TypeInto(6, "hall");
    ClickOn(Controls::previousRoom);
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(Note(), "Room 3 is not stored: it needs a width and a length.");
}

TEST_F(SavedMeanwhile, ByAnotherProgramIsReplacedOnlyWhenTheUserSaysSo) {
    file.Run("UPDATE InputData SET RoomW = 7 WHERE ObjNum = 0");
    boxes.Choices = {""};
    TypeRoomAndSave();
    ASSERT_EQ(boxes.Questions.size(), 1U);
    EXPECT_EQ(boxes.Questions[0],
              "Another program has changed the project MILL since it was opened here.\r\n"
              "What that program stored is lost when you replace it.");
    EXPECT_EQ(boxes.Actions, (std::vector<Lines>{{"Replace it"}}));
    EXPECT_TRUE(boxes.Messages.empty()) << "it is not said to be saved";
    EXPECT_EQ(Stored(), (Lines{"7", "101"}));
    EXPECT_EQ(open.Now.Rooms.size(), 3U) << "the rooms stay";
    EXPECT_TRUE(open.HasUnsavedRooms());
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    boxes.Choices = {"Replace it"};
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(boxes.Messages, Lines{"Data is saved"});
    EXPECT_EQ(Stored(), (Lines{"100", "101", "144"}));
    EXPECT_FALSE(open.HasUnsavedRooms());
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(boxes.Questions.size(), 2U) << "nothing is asked of one's own save";
}

TEST_F(SavedMeanwhile, ThatIsGoneIsSavedAsANewProject) {
    file.Run("UPDATE ProjTab SET ProjName = 'OTHER'");
    file.Run("UPDATE MainTab SET ProjName = 'OTHER'");
    boxes.Choices = {"", "Save it as a new project", "Save it as a new project"};
    TypeRoomAndSave();
    ASSERT_EQ(boxes.Questions.size(), 1U);
    EXPECT_EQ(boxes.Questions[0],
              "The project MILL is no longer there: another program has renamed or deleted it.\r\n"
              "Its rooms can be saved as a new project.");
    EXPECT_EQ(boxes.Actions, (std::vector<Lines>{{"Save it as a new project"}}));
    EXPECT_TRUE(boxes.Messages.empty());
    boxes.Inputs = {std::nullopt};
    ClickOn(Controls::saveRooms);
    EXPECT_EQ(boxes.InitialTexts, Lines{"MILL"});
    EXPECT_TRUE(boxes.Messages.empty()) << "the name was not given";
    EXPECT_EQ(open.Now.Rooms.size(), 3U);
    boxes.Inputs = {"a/b", "other", " new "};
    ClickOn(Controls::saveRooms);
    ASSERT_EQ(boxes.Messages.size(), 3U);
    EXPECT_TRUE(boxes.Messages[0].starts_with("Sorry, the project name"));
    EXPECT_EQ(boxes.Messages[1], "There is one project with the same name, change to other one!");
    EXPECT_EQ(boxes.Messages[2], "Data is saved");
    EXPECT_EQ(boxes.InitialTexts, (Lines{"MILL", "MILL", "a/b", "other"}));
    EXPECT_EQ(file.Rows("SELECT Dir, ProjName FROM ProjTab"), (Lines{"MARCH|OTHER", "MARCH|NEW"}));
    EXPECT_EQ(store.Load("NEW").Value.Rooms, open.Now.Rooms);
    EXPECT_EQ(store.Load("OTHER").Value.Rooms.size(), 2U);
    EXPECT_EQ(open.Now.Name, "NEW");
    EXPECT_EQ(Find(*form, Controls::roomPanel).accessibleName(), QStringLiteral("PROJECT: NEW"));
    EXPECT_TRUE(Kept().empty());
    EXPECT_TRUE(NewRun().Of("MILL").empty());
}

} // namespace
} // namespace tarn
