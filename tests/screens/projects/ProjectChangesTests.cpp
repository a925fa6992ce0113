// The project selection: making directories, renaming and deleting.

#include "screens/projects/ProjectScreenTesting.h"
#include "store/ProjectNames.h"

namespace tarn {
namespace {

using namespace tarn::testing;

struct NewDirectories : ProjectScreenTest {
    void Answer(std::initializer_list<std::optional<std::string>> answers) {
        boxes.Inputs.assign(answers);
        Click(Button(Controls::newDirectory));
        EXPECT_TRUE(boxes.Inputs.empty()) << "every answer is asked for";
        EXPECT_EQ(boxes.Prompts.back(), "Enter the new directory name");
    }
};

struct Renaming : ProjectScreenTest {
    void Rename(QListWidget& list, const std::string& entry,
                std::initializer_list<std::optional<std::string>> answers) {
        boxes.Inputs.assign(answers);
        DoubleClickEntry(list, entry);
        EXPECT_TRUE(boxes.Inputs.empty()) << "every answer is asked for";
    }
};

struct Deleting : ProjectScreenTest {};
struct SelectionKeys : ProjectScreenTest {};

TEST_F(NewDirectories, AreAddedInUpperCaseWithoutBlanks) {
    Open();
    Answer({"  barns "});
    EXPECT_EQ(Entries(Directories()), (Lines{"HOUSES", "SHOPS", "BARNS"}));
    EXPECT_EQ(file.Rows("SELECT * FROM DirTab WHERE Directory NOT IN ('HOUSES', 'SHOPS')"),
              Lines{"BARNS"});
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(Selected(Months()), "MARCH") << "the selection stays";
}

TEST_F(NewDirectories, DoNothingForNoAnswerATakenNameOrAMonth) {
    Open();
    const Lines before = Stored();
    for (const auto& answer : std::vector<std::optional<std::string>>{
             std::nullopt, "", "   ", "houses", " SHOPS ", "december", "JANUARY"}) {
        Answer({answer});
    }
    EXPECT_EQ(Entries(Directories()), (Lines{"HOUSES", "SHOPS"}));
    EXPECT_EQ(Stored(), before);
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(NewDirectories, SayWhyTheyCannotBeMade) {
    Open();
    const std::string tooLong(65, 'A');
    Answer({tooLong, std::nullopt});
    EXPECT_EQ(boxes.InitialTexts, (Lines{"", tooLong})) << "what was typed comes back";
    EXPECT_EQ(boxes.Messages, Lines{"The directory could not be made. The directory name " +
                                    tooLong + " has more than 64 characters."});
    EXPECT_EQ(Entries(Directories()), (Lines{"HOUSES", "SHOPS"}));
}

TEST_F(NewDirectories, AreAskedForAgainUntilTheyCanBeMade) {
    Open();
    RawDatabase other(file.Path());
    other.Run("BEGIN IMMEDIATE");
    boxes.OnMessage = [&] {
        if (boxes.Messages.size() == 2) {
            other.Run("ROLLBACK");
        }
    };
    Answer({" barns", " barns", " barns"});
    EXPECT_EQ(boxes.Messages.size(), 2U);
    EXPECT_EQ(boxes.InitialTexts, (Lines{"", " barns", " barns"}));
    EXPECT_EQ(Entries(Directories()), (Lines{"HOUSES", "SHOPS", "BARNS"}));
}

TEST_F(NewDirectories, AreScrolledToHoweverManyThereAre) {
    for (int count = 3; count < 25; ++count) {
        file.AddDirectory("D" + std::to_string(count));
        Open();
        ClickEntry(Directories(), "HOUSES");
        Directories().setFocus();
        Answer({"zoo" + std::to_string(count)});
        QCoreApplication::processEvents();
        QListWidget& list = Directories();
        const QListWidgetItem* last = list.item(list.count() - 1);
        EXPECT_EQ(FromQt(last->text()), "ZOO" + std::to_string(count));
        EXPECT_TRUE(list.viewport()->rect().contains(list.visualItemRect(last))) << count;
        EXPECT_EQ(Selected(list), "HOUSES") << "the selection stays";
    }
}

TEST_F(NewDirectories, AreScrolledToWhereTheyAreThereAlready) {
    for (int i = 0; i < 40; ++i) {
        file.AddDirectory("D" + std::to_string(i));
    }
    Open();
    QListWidget& list = Directories();
    const QListWidgetItem* there = list.findItems(QStringLiteral("D39"), Qt::MatchExactly).at(0);
    ASSERT_FALSE(list.viewport()->rect().intersects(list.visualItemRect(there)));
    Answer({"d39"});
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualItemRect(there)));
    EXPECT_EQ(Selected(list), "(none)");
    EXPECT_EQ(Selected(Months()), "MARCH");
}

TEST_F(NewDirectories, AreScrolledTo) {
    for (int i = 0; i < 40; ++i) {
        file.AddDirectory("D" + std::to_string(i));
    }
    Open();
    Answer({"zoo"});
    QListWidget& list = Directories();
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualItemRect(list.item(42))));
}

TEST_F(Renaming, ADirectoryMovesItsProjects) {
    open.Now.Directory = "HOUSES";
    open.Now.Name = "VILLA";
    Open();
    Rename(Directories(), "HOUSES", {" homes "});
    EXPECT_EQ(boxes.Prompts, Lines{"Enter the new name you want to change to:"});
    EXPECT_EQ(Entries(Directories()), (Lines{"HOMES", "SHOPS"}));
    EXPECT_EQ(Selected(Directories()), "HOMES");
    EXPECT_EQ(file.Rows("SELECT Directory FROM DirTab ORDER BY 1"), (Lines{"HOMES", "SHOPS"}));
    EXPECT_EQ(file.Rows("SELECT ProjName FROM ProjTab WHERE Dir = 'HOMES' ORDER BY rowid"),
              (Lines{"VILLA", "TOWER"}));
    EXPECT_EQ(open.Now.Directory, "HOMES");
    EXPECT_EQ(Label(Controls::currentDirectory), "DIRECTORY:HOMES");
    EXPECT_EQ(Label(Controls::currentProject), "PROJECT:VILLA");
    ClickEntry(Directories(), "HOMES");
    EXPECT_EQ(Entries(Projects()), (Lines{"VILLA", "TOWER"}));
}

TEST_F(Renaming, AsksAgainForATakenDirectory) {
    Open();
    Rename(Directories(), "HOUSES", {"shops", "May", "HOMES"});
    const std::string taken = "There is one directory with the same name, change to other one!";
    EXPECT_EQ(boxes.Messages, (Lines{taken, taken}));
    EXPECT_EQ(boxes.InitialTexts, (Lines{"", "shops", "May"}));
    EXPECT_EQ(Entries(Directories()), (Lines{"HOMES", "SHOPS"}));
}

TEST_F(Renaming, StopsForNoAnswerAndForTheSameName) {
    Open();
    const Lines before = Stored();
    for (const auto& answer :
         std::vector<std::optional<std::string>>{std::nullopt, " ", "houses"}) {
        Rename(Directories(), "HOUSES", {answer});
    }
    for (const auto& answer : std::vector<std::optional<std::string>>{std::nullopt, " ", "villa"}) {
        Rename(Projects(), "VILLA", {answer});
    }
    EXPECT_EQ(Stored(), before);
    EXPECT_EQ(Entries(Directories()), (Lines{"HOUSES", "SHOPS"}));
    EXPECT_EQ(Entries(Projects()), (Lines{"VILLA", "TOWER"}));
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(Renaming, AProjectRenamesItsSheet) {
    open.Now.Name = "BARN";
    Open();
    Rename(Projects(), "BARN", {" shed "});
    EXPECT_EQ(boxes.Prompts, Lines{"Enter the new project name you want to change to:"});
    EXPECT_EQ(Entries(Projects()), (Lines{"ANNEX", "SHED"}));
    EXPECT_EQ(BoxText(), "SHED") << "the locked box held the old name";
    EXPECT_EQ(file.Rows("SELECT ProjName FROM MainTab WHERE TabIndex = 2"), Lines{"SHED"});
    EXPECT_EQ(file.Rows("SELECT Dir FROM ProjTab WHERE ProjName = 'SHED'"), Lines{"MARCH"});
    EXPECT_EQ(file.Rows("SELECT Dir FROM ProjTab WHERE ProjName = 'BARN'"), Lines{});
    EXPECT_EQ(Label(Controls::currentProject), "PROJECT:SHED");
    Click(Button(Controls::acceptProject));
    EXPECT_EQ(screens.Calls, Lines{"menu existing"});
    EXPECT_EQ(open.Now.Name, "SHED");
}

TEST_F(Renaming, AProjectLeavesANameBeingTyped) {
    Open();
    TypeNew("BARN");
    Rename(Projects(), "BARN", {"SHED"});
    EXPECT_EQ(BoxText(), "BARN");
    EXPECT_FALSE(Box().isReadOnly());
}

TEST_F(Renaming, AsksAgainForAProjectNameThatIsForbiddenTakenOrTooLong) {
    Open();
    const std::string tooLong(65, 'A');
    Rename(Projects(), "BARN", {"A?", "A\"", "cabin", tooLong, "SHED"});
    EXPECT_EQ(
        boxes.Messages,
        (Lines{std::string(ForbiddenCharactersMessage), std::string(ForbiddenCharactersMessage),
               "There is one project with the same name, change to other one!",
               "The project name " + tooLong + " has more than 64 characters."}));
    EXPECT_EQ(boxes.InitialTexts, (Lines{"", "A?", "A\"", "cabin", tooLong}));
    EXPECT_EQ(Entries(Projects()), (Lines{"ANNEX", "SHED"}));
}

TEST_F(Renaming, IsNoBusinessOfMonthsAndEmptyPlaces) {
    Open();
    DoubleClickEntry(Months(), "MAY");
    for (QListWidget* list : {&Directories(), &Projects()}) {
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {},
                           list->viewport()->rect().bottomRight() - QPoint(5, 5));
    }
    EXPECT_TRUE(boxes.Prompts.empty()) << "nothing is asked";
}

TEST_F(Renaming, IsNoBusinessOfAnEntryThatWasNotSelected) {
    Open();
    ClickEntry(Directories(), "SHOPS");
    QTest::mouseDClick(Directories().viewport(), Qt::LeftButton, {},
                       PlaceOf(Directories(), "HOUSES"));
    ClickEntry(Directories(), "HOUSES");
    ClickEntry(Projects(), "TOWER");
    QTest::mouseDClick(Projects().viewport(), Qt::LeftButton, {}, PlaceOf(Projects(), "VILLA"));
    EXPECT_TRUE(boxes.Prompts.empty()) << "nothing is asked";
}

TEST_F(Renaming, ADirectoryWithADoubleQuoteFailsAndChangesNothing) {
    file.AddDirectory("A\"B");
    Open();
    const Lines before = Stored();
    Rename(Directories(), "A\"B", {"AB", std::nullopt});
    EXPECT_EQ(boxes.InitialTexts, (Lines{"", "AB"}));
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(boxes.Messages[0].rfind("The directory could not be renamed. ", 0), 0U)
        << boxes.Messages[0];
    EXPECT_EQ(Entries(Directories()), (Lines{"A\"B", "HOUSES", "SHOPS"}));
    EXPECT_EQ(Selected(Directories()), "A\"B");
    EXPECT_EQ(Stored(), before);
}

TEST_F(Deleting, ADirectoryAsksFirst) {
    Open();
    const Lines before = Stored();
    DeleteEntry(Directories(), "HOUSES", false);
    EXPECT_EQ(boxes.Questions,
              Lines{"Warning: Delete directory will make data under this directory lost!\r\n"
                    "Do you want to continue deleting?"});
    EXPECT_EQ(Stored(), before);
    EXPECT_EQ(Entries(Directories()), (Lines{"HOUSES", "SHOPS"}));
    EXPECT_EQ(Selected(Directories()), "HOUSES");
}

TEST_F(Deleting, ADirectoryTakesItsProjectsAndTheirData) {
    open.Now.Directory = "HOUSES";
    open.Now.Name = "VILLA";
    file.AddProject("SHOPS", "STALL", 8, 1);
    Open();
    ClickEntry(Projects(), "BARN");
    DeleteEntry(Directories(), "HOUSES");
    EXPECT_EQ(Entries(Directories()), Lines{"SHOPS"});
    EXPECT_EQ(Selected(Directories()), "SHOPS") << "the neighbour";
    EXPECT_EQ(Entries(Projects()), Lines{"STALL"}) << "its projects";
    EXPECT_EQ(BoxText(), "") << "the locked box";
    EXPECT_EQ(file.Rows("SELECT ProjName FROM ProjTab ORDER BY rowid"),
              (Lines{"ANNEX", "BARN", "CABIN", "STALL"}));
    EXPECT_EQ(file.Rows("SELECT DISTINCT TabIndex FROM InputData ORDER BY 1"),
              (Lines{"1", "2", "8"}));
    EXPECT_EQ(open.Now.Directory, "MARCH") << "the current month";
    EXPECT_EQ(Label(Controls::currentDirectory), "DIRECTORY:MARCH");
    EXPECT_EQ(Label(Controls::currentProject), "No Project Selected");
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(Deleting, TheLastDirectoryInTheListSelectsTheOneBefore) {
    Open();
    DeleteEntry(Directories(), "SHOPS");
    EXPECT_EQ(Selected(Directories()), "HOUSES");
    EXPECT_EQ(Entries(Projects()), (Lines{"VILLA", "TOWER"}));
    DeleteEntry(Directories(), "HOUSES");
    EXPECT_EQ(Entries(Directories()), Lines{});
    EXPECT_EQ(Entries(Projects()), Lines{});
    QTest::keyClick(&Directories(), Qt::Key_Delete);
    EXPECT_EQ(boxes.Questions.size(), 2U) << "an empty list asks nothing";
}

TEST_F(Deleting, ADirectoryLeavesANameBeingTyped) {
    Open();
    TypeNew("HUT");
    DeleteEntry(Directories(), "HOUSES");
    EXPECT_EQ(BoxText(), "HUT");
    EXPECT_FALSE(Box().isReadOnly());
}

TEST_F(Deleting, ADirectoryWithADoubleQuoteFailsAndChangesNothing) {
    file.AddDirectory("A\"B");
    Open();
    const Lines before = Stored();
    DeleteEntry(Directories(), "A\"B");
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(boxes.Messages[0].rfind("The directory could not be deleted. ", 0), 0U)
        << boxes.Messages[0];
    EXPECT_EQ(Entries(Directories()), (Lines{"A\"B", "HOUSES", "SHOPS"}));
    EXPECT_EQ(Selected(Directories()), "A\"B");
    EXPECT_EQ(Stored(), before);
}

TEST_F(Deleting, AProjectAsksFirst) {
    Open();
    const Lines before = Stored();
    DeleteEntry(Projects(), "BARN", false);
    EXPECT_EQ(boxes.Questions, Lines{"Are you sure to delete this project?\r\n"
                                     "Delete operation will make the data of the project lost!"});
    EXPECT_EQ(Stored(), before);
    EXPECT_EQ(BoxText(), "BARN");
}

TEST_F(Deleting, AProjectShowsItsNeighbourInTheLockedBox) {
    open.Now.Name = "ANNEX";
    Open();
    DeleteEntry(Projects(), "ANNEX");
    EXPECT_EQ(Entries(Projects()), Lines{"BARN"});
    EXPECT_EQ(Selected(Projects()), "BARN");
    EXPECT_EQ(BoxText(), "BARN");
    EXPECT_EQ(file.Rows("SELECT ProjName FROM MainTab WHERE TabIndex IN (1, 2)"), Lines{"BARN"});
    EXPECT_EQ(file.Rows("SELECT DISTINCT TabIndex FROM InputData WHERE TabIndex < 3"), Lines{"2"});
    EXPECT_EQ(Label(Controls::currentProject), "No Project Selected");
    DeleteEntry(Projects(), "BARN");
    EXPECT_EQ(Entries(Projects()), Lines{});
    EXPECT_EQ(BoxText(), "") << "no project that is gone";
    QTest::keyClick(&Projects(), Qt::Key_Delete);
    EXPECT_EQ(boxes.Questions.size(), 2U);
}

TEST_F(Deleting, TheLastProjectInTheListSelectsTheOneBefore) {
    Open();
    DeleteEntry(Projects(), "BARN");
    EXPECT_EQ(Selected(Projects()), "ANNEX");
    EXPECT_EQ(BoxText(), "ANNEX");
}

TEST_F(Deleting, AProjectLeavesANameBeingTyped) {
    Open();
    TypeNew("HUT");
    DeleteEntry(Projects(), "ANNEX");
    EXPECT_EQ(Selected(Projects()), "BARN");
    EXPECT_EQ(BoxText(), "HUT");
    EXPECT_FALSE(Box().isReadOnly());
}

TEST_F(Deleting, AKeyHeldDownAsksOnce) {
    Open();
    boxes.YesNo = {true, true, true};
    const auto hold = [](QListWidget& list) {
        for (const bool repeated : {false, true, true}) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, {}, repeated);
            QApplication::sendEvent(&list, &press);
        }
    };
    ClickEntry(Projects(), "ANNEX");
    hold(Projects());
    EXPECT_EQ(boxes.Questions.size(), 1U);
    EXPECT_EQ(Entries(Projects()), Lines{"BARN"});
    ClickEntry(Directories(), "HOUSES");
    hold(Directories());
    EXPECT_EQ(boxes.Questions.size(), 2U);
    EXPECT_EQ(Entries(Directories()), Lines{"SHOPS"});
}

TEST_F(Deleting, NothingHappensForMonthsAndWithoutASelection) {
    Open();
    const Lines before = Stored();
    for (QListWidget* list : {&Months(), &Directories(), &Projects()}) {
        Focus(*list);
        QTest::keyClick(list, Qt::Key_Delete);
    }
    EXPECT_TRUE(boxes.Questions.empty());
    EXPECT_EQ(Stored(), before);
}

TEST_F(SelectionKeys, F2RenamesAsADoubleClickDoes) {
    Open();
    ClickEntry(Projects(), "BARN");
    boxes.Inputs = {"shed"};
    QTest::keyClick(&Projects(), Qt::Key_F2);
    EXPECT_EQ(boxes.Prompts, Lines{"Enter the new project name you want to change to:"});
    EXPECT_EQ(Entries(Projects()), (Lines{"ANNEX", "SHED"}));
    EXPECT_EQ(BoxText(), "SHED");
    ClickEntry(Directories(), "HOUSES");
    boxes.Inputs = {"villas"};
    QTest::keyClick(&Directories(), Qt::Key_F2);
    EXPECT_EQ(boxes.Prompts.back(), "Enter the new name you want to change to:");
    EXPECT_EQ(Entries(Directories()), (Lines{"VILLAS", "SHOPS"}));
}

TEST_F(SelectionKeys, F2DoesNothingForMonthsWithoutASelectionAndWhileHeld) {
    Open();
    const Lines before = Stored();
    for (QListWidget* list : {&Months(), &Directories(), &Projects()}) {
        Focus(*list);
        QTest::keyClick(list, Qt::Key_F2);
    }
    ClickEntry(Projects(), "BARN");
    QKeyEvent held(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier, {}, true);
    QApplication::sendEvent(&Projects(), &held);
    EXPECT_TRUE(boxes.Prompts.empty());
    EXPECT_EQ(Stored(), before);
}

TEST_F(SelectionKeys, EscapeClosesTheSelectionWhereverTheFocusIs) {
    Open();
    const Lines before = Stored();
    for (const char* name : {Controls::months, Controls::directories, Controls::projects,
                             Controls::projectBox, Controls::acceptProject}) {
        Find(*form, name).setFocus(Qt::TabFocusReason);
        ASSERT_TRUE(Find(*form, name).hasFocus()) << name;
        Press(*form, Qt::Key_Escape);
        EXPECT_FALSE(Find(*form, Controls::selectionPanel).isVisible()) << name;
        EXPECT_TRUE(Button(Controls::selectProject).hasFocus());
        Press(*form, Qt::Key_Escape);
        EXPECT_TRUE(Find(*form, Controls::settingsPanel).isVisible()) << "nothing is left to close";
        Click(Button(Controls::selectProject));
    }
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
    QApplication::sendEvent(&Months(), &held);
    EXPECT_TRUE(Find(*form, Controls::selectionPanel).isVisible())
        << "it may be held down from a box that it closed";
    EXPECT_EQ(Stored(), before);
    EXPECT_TRUE(screens.Calls.empty());
}

} // namespace
} // namespace tarn
