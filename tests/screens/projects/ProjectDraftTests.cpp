// What becomes of a project's drafts when it is left, renamed, deleted or made.

#include "screens/projects/ProjectScreenTesting.h"

namespace tarn {
namespace {

using namespace tarn::testing;

struct ProjectDrafts : ProjectScreenTest {
    void LeaveDraft(const std::string& project) {
        Draft draft;
        draft.Rooms.emplace();
        other.Write(other.NewFile(project), project, draft, QDateTime::currentDateTimeUtc());
    }
    std::size_t CountOf(const std::string& project) const { return other.Of(project).size(); }

    Drafts other = NewRun();
};

TEST_F(ProjectDrafts, StayWhenTheProjectIsLeft) {
    open.Now.Name = "BARN";
    open.Now.Rooms.emplace_back();
    drafts.Flush();
    Load();
    drafts.Flush();
    EXPECT_TRUE(open.Now.Rooms.empty());
    EXPECT_EQ(CountOf("BARN"), 1U);
}

TEST_F(ProjectDrafts, AreAllThatIsLeftOfTheStepsOfItsRooms) {
    open.Now.Name = "BARN";
    history.Do(0, [this] { open.Now.Rooms.emplace_back(); });
    history.Do(0, [this] { open.Now.Rooms.clear(); });
    EXPECT_TRUE(history.CanUndo());
    Load();
    EXPECT_FALSE(history.CanUndo()) << "a project of that name may be another one now";
}

TEST_F(ProjectDrafts, MoveWithARenamedProject) {
    LeaveDraft("BARN");
    LeaveDraft("SHED"); // of a project that was called so once
    Open();
    boxes.Inputs = {"shed"};
    DoubleClickEntry(Projects(), "BARN");
    EXPECT_EQ(Entries(Projects()), (Lines{"ANNEX", "SHED"}));
    EXPECT_EQ(CountOf("BARN"), 0U);
    EXPECT_EQ(CountOf("SHED"), 1U);
}

TEST_F(ProjectDrafts, EndWithADeletedProject) {
    LeaveDraft("BARN");
    LeaveDraft("ANNEX");
    Open();
    DeleteEntry(Projects(), "BARN", false);
    EXPECT_EQ(CountOf("BARN"), 1U);
    DeleteEntry(Projects(), "BARN");
    EXPECT_EQ(CountOf("BARN"), 0U);
    EXPECT_EQ(CountOf("ANNEX"), 1U);
}

TEST_F(ProjectDrafts, StayWhenTheDeletionFails) {
    LeaveDraft("BARN");
    Open();
    file.Run("CREATE TRIGGER Refuse BEFORE DELETE ON ProjTab BEGIN "
             "SELECT RAISE(ABORT, 'the disk is full'); END");
    DeleteEntry(Projects(), "BARN");
    EXPECT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(CountOf("BARN"), 1U);
}

TEST_F(ProjectDrafts, EndWithADeletedDirectory) {
    LeaveDraft("VILLA");
    LeaveDraft("TOWER");
    LeaveDraft("BARN");
    Open();
    DeleteEntry(Directories(), "HOUSES");
    EXPECT_EQ(CountOf("VILLA"), 0U);
    EXPECT_EQ(CountOf("TOWER"), 0U);
    EXPECT_EQ(CountOf("BARN"), 1U);
}

TEST_F(ProjectDrafts, OfAnOldProjectAreNotMetByANewOne) {
    LeaveDraft("GONE"); // another program deleted it
    LeaveDraft("BARN");
    Open();
    TypeNew("gone");
    Click(Button(Controls::acceptProject));
    EXPECT_EQ(screens.Calls, Lines{"menu new"});
    EXPECT_EQ(CountOf("GONE"), 0U);
    EXPECT_EQ(CountOf("BARN"), 1U);
}

TEST_F(ProjectDrafts, StayWhenTheirNameIsRefusedForANewProject) {
    LeaveDraft("BARN");
    Open();
    TypeNew("barn");
    Click(Button(Controls::acceptProject));
    EXPECT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(CountOf("BARN"), 1U);
}

} // namespace
} // namespace tarn
