// Rooms from a file that become a project.

#include "screens/projects/ProjectScreenTesting.h"
#include "screens/projects/RoomsAsProject.h"
#include "store/Names.h"

namespace tarn {
namespace {

using namespace tarn::testing;

constexpr const char* Question =
    "The rooms of house.csv become a new project.\r\nWhat are their sizes in?";

struct RoomsAsProject : ProjectScreenTest {
    RoomsAsProject() {
        open.Now.Directory = "MARCH";
        before = Stored();
        Room room;
        room.Width = 120;
        room.Length = 96;
        rooms = {room, room};
    }

    void Make() {
        MakeProjectOf({"house.csv", proposal,
                       [this](Units units) {
                           readIn.push_back(units);
                           return rooms;
                       }},
                      session);
    }

    std::string proposal = "house";
    std::vector<Room> rooms;
    std::vector<Units> readIn;
    Lines before;
};

TEST_F(RoomsAsProject, AreStoredUnderTheNameGivenAndShownInTheMenu) {
    boxes.Choices = {"Feet and inches"};
    boxes.Inputs = {"Lake house"};
    Make();
    EXPECT_EQ(boxes.Questions, (Lines{Question}));
    EXPECT_EQ(boxes.Actions,
              (std::vector<std::vector<std::string>>{{"Feet and inches", "Centimetres"}}));
    EXPECT_EQ(boxes.Prompts, (Lines{"Name of the project:"}));
    EXPECT_EQ(boxes.InitialTexts, (Lines{"HOUSE"}));
    EXPECT_EQ(readIn, (std::vector{Units::Imperial}));
    EXPECT_EQ(boxes.Messages, Lines());
    const Project stored = store.Load("LAKE HOUSE").Value;
    EXPECT_EQ(stored.Rooms, rooms);
    EXPECT_EQ(stored.EnteredIn, Units::Imperial);
    EXPECT_EQ(store.DirectoryOf("LAKE HOUSE"), "MARCH");
    EXPECT_EQ(open.Now.Name, "LAKE HOUSE");
    EXPECT_EQ(screens.Calls, (Lines{"menu existing"}));
}

TEST_F(RoomsAsProject, AreInCentimetresOnRequest) {
    boxes.Choices = {"Centimetres"};
    boxes.Inputs = {"HUIS"};
    Make();
    EXPECT_EQ(readIn, (std::vector{Units::Metric}));
    EXPECT_EQ(store.Load("HUIS").Value.EnteredIn, Units::Metric);
}

TEST_F(RoomsAsProject, StayWhereTheyAreWhenTheUserGivesUp) {
    boxes.Choices = {""};
    Make();
    EXPECT_EQ(readIn, std::vector<Units>());
    boxes.Choices = {"Feet and inches"};
    boxes.Inputs = {std::nullopt};
    Make();
    EXPECT_EQ(boxes.Messages, Lines());
    EXPECT_EQ(Stored(), before);
    EXPECT_EQ(open.Now.Name, "");
    EXPECT_EQ(screens.Calls, Lines());
}

TEST_F(RoomsAsProject, TakeNoNameThatIsThereAlready) {
    boxes.Choices = {"Feet and inches"};
    boxes.Inputs = {"villa", "vil:la", "VILLA 2"};
    Make();
    ASSERT_EQ(boxes.Messages.size(), 2U);
    EXPECT_EQ(boxes.Messages[0], "There is one project with the same name, change to other one!");
    EXPECT_EQ(boxes.Messages[1],
              "Sorry, the project name couldn't contain any of following characters:\r\n"
              "   \\/:*?\"<>|");
    EXPECT_EQ(boxes.InitialTexts, (Lines{"HOUSE", "villa", "vil:la"})) << "what was typed is kept";
    EXPECT_EQ(store.Load("VILLA 2").Value.Rooms, rooms);
}

TEST_F(RoomsAsProject, ArePutForwardUnderANameThatFits) {
    proposal = std::string(70, 'a') + ":b";
    boxes.Choices = {"Feet and inches"};
    boxes.Inputs = {std::nullopt};
    Make();
    EXPECT_EQ(boxes.InitialTexts, (Lines{std::string(MaxNameLength, 'A')}));
}

TEST_F(RoomsAsProject, AreToldWhenThereAreNone) {
    rooms.clear();
    boxes.Choices = {"Feet and inches"};
    Make();
    EXPECT_EQ(boxes.Messages, (Lines{"No project is made of house.csv."}));
    EXPECT_EQ(boxes.Informative, (Lines{"There is no room in it."}));
    EXPECT_EQ(Stored(), before);
}

TEST_F(RoomsAsProject, AreToldLineByLineWhenTheyCannotBeRead) {
    boxes.Choices = {"Feet and inches"};
    MakeProjectOf({"house.csv", "house",
                   [](Units) -> std::vector<Room> { throw std::runtime_error("one\ntwo"); }},
                  session);
    EXPECT_EQ(boxes.Messages, (Lines{"No project is made of house.csv."}));
    EXPECT_EQ(boxes.Informative, (Lines{"one\r\ntwo"}));
    EXPECT_EQ(Stored(), before);
    EXPECT_EQ(screens.Calls, Lines());
}

TEST_F(RoomsAsProject, LeaveNothingWhenTheyCannotBeStored) {
    file.Run("CREATE TRIGGER No BEFORE INSERT ON InputData BEGIN SELECT RAISE(ABORT, 'no'); END");
    boxes.Choices = {"Feet and inches"};
    boxes.Inputs = {"SHED"};
    Make();
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_TRUE(boxes.Messages[0].starts_with("The project could not be made."))
        << boxes.Messages[0];
    EXPECT_EQ(Stored(), before) << "not even the project's row";
    EXPECT_EQ(open.Now.Name, "");
    EXPECT_EQ(screens.Calls, Lines());
}

TEST_F(RoomsAsProject, AreNoneOfAnEarlierProjectOfThatName) {
    Draft draft;
    draft.Rooms.emplace();
    Drafts other = NewRun();
    other.Write(other.NewFile("SHED"), "SHED", draft, QDateTime::currentDateTimeUtc());
    boxes.Choices = {"Feet and inches"};
    boxes.Inputs = {"SHED"};
    Make();
    EXPECT_EQ(other.Of("SHED").size(), 0U);
}

} // namespace
} // namespace tarn
