// What becomes of the open project's draft.

#include "files/OutputFile.h"
#include "screens/DraftKeeper.h"
#include "store/TestDatabase.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

namespace tarn {
namespace {

using testing::TestFolder;
using testing::WriteFile;

Room Sized(Integer width) {
    return {width, 120, 0, 0, "", ""};
}

RoomDraft Remark(const std::string& remark) {
    RoomDraft fields;
    fields.Remark = remark;
    return fields;
}

struct OpenDrafts : ::testing::Test {
    OpenDrafts() {
        open.Now.Name = "P";
        open.Saved = open.Now;
        keeper.SetDrafts(NewRun());
    }
    Drafts NewRun() const { return {folder.Path("state"), "/data/Tarn.mdb"}; }
    /// As another run finds them.
    std::vector<KeptDraft> Kept(const std::string& project = "P") const {
        return NewRun().Of(project);
    }
    void TypeRoom(Integer width) {
        open.Now.Rooms.push_back(Sized(width));
        keeper.NoteChange();
        keeper.Flush();
        clock = clock.addSecs(60);
    }
    /// Another project is opened, or this one again.
    void OpenAgain() {
        keeper.LetGo();
        open.Now.Rooms = open.Saved.Rooms;
        open.Typed = {};
    }
    /// Make writing fail, until it is called with false.
    void Break(bool broken) const {
        const QString state = QString::fromStdString(folder.Path("state"));
        const QString away = QString::fromStdString(folder.Path("away"));
        if (broken) {
            QDir().mkpath(state);
            ASSERT_TRUE(QDir().rename(state, away));
            WriteFile(folder.Path("state"), "no folder");
        } else {
            ASSERT_TRUE(QFile::remove(state));
            ASSERT_TRUE(QDir().rename(away, state));
        }
    }

    TestFolder folder;
    QDateTime clock{QDate(2026, 11, 22), QTime(12, 0), Qt::UTC};
    OpenProject open;
    DraftKeeper keeper{open, [this] { return clock; }};
};

TEST_F(OpenDrafts, AreWrittenByThemselvesSoonAfterAChange) {
    open.Now.Rooms.push_back(Sized(100));
    keeper.NoteChange();
    EXPECT_TRUE(Kept().empty()) << "not at every key";
    ASSERT_TRUE(QTest::qWaitFor([&] { return !Kept().empty(); }));
    EXPECT_EQ(Kept()[0].Record.Content.Rooms, open.Now.Rooms);
    EXPECT_EQ(Kept()[0].Record.Written, clock);
}

TEST_F(OpenDrafts, DoNotWaitForTheLastOfManyChanges) {
    static_assert(DraftKeeper::KeepingDelay < 2000);
    bool kept = false;
    for (Integer i = 0; i < 1000 && !kept; ++i) {
        open.Now.Rooms.assign(1, Sized(i));
        keeper.NoteChange();
        QTest::qWait(10);
        kept = !Kept().empty();
    }
    EXPECT_TRUE(kept);
}

TEST_F(OpenDrafts, HaveTheRoomsTheirUnitsAndWhatStandsInTheFields) {
    open.Now.EnteredIn = Units::Metric;
    open.Typed.In = Units::Metric;
    open.Typed.New = Remark("hall");
    TypeRoom(366);
    ASSERT_EQ(Kept().size(), 1U);
    const Draft draft = Kept()[0].Record.Content;
    EXPECT_EQ(draft.Rooms, open.Now.Rooms);
    EXPECT_EQ(draft.EnteredIn, Units::Metric);
    EXPECT_EQ(draft.Typed, open.Typed);
}

TEST_F(OpenDrafts, HaveNoRoomsWhileOnlyFieldsAreTyped) {
    open.Typed.New = Remark("hall");
    keeper.Flush();
    ASSERT_EQ(Kept().size(), 1U);
    EXPECT_FALSE(Kept()[0].Record.Content.Rooms);
}

TEST_F(OpenDrafts, AreOneFileHoweverOftenTheyChange) {
    for (Integer i = 1; i < 5; ++i) {
        TypeRoom(i);
    }
    ASSERT_EQ(Kept().size(), 1U);
    EXPECT_EQ(Kept()[0].Record.Content.Rooms->size(), 4U);
}

TEST_F(OpenDrafts, AreNotWrittenAgainWithoutAChange) {
    TypeRoom(1);
    const QDateTime written = Kept()[0].Record.Written;
    keeper.NoteChange();
    keeper.Flush();
    EXPECT_EQ(Kept()[0].Record.Written, written);
}

TEST_F(OpenDrafts, GoWhenNothingIsUnsavedAnyMore) {
    TypeRoom(1);
    open.Now.Rooms = open.Saved.Rooms;
    keeper.Flush();
    EXPECT_TRUE(Kept().empty());
}

TEST_F(OpenDrafts, StayWhenTheProjectIsLeftAndStandBesideTheNext) {
    TypeRoom(1);
    OpenAgain();
    keeper.Flush();
    ASSERT_EQ(Kept().size(), 1U) << "what was dropped from memory is kept";
    TypeRoom(2);
    const auto kept = Kept();
    ASSERT_EQ(kept.size(), 2U);
    EXPECT_EQ(kept[0].Record.Content.Rooms->at(0).Width, 2);
    EXPECT_FALSE(kept[0].Record.Superseded.isValid());
    EXPECT_EQ(kept[1].Record.Content.Rooms->at(0).Width, 1);
    EXPECT_TRUE(kept[1].Record.Superseded.isValid());
}

TEST_F(OpenDrafts, EndWithASave) {
    TypeRoom(1);
    open.Saved = open.Now;
    keeper.NoteSaved();
    EXPECT_TRUE(Kept().empty());
}

TEST_F(OpenDrafts, KeepWhatStandsInTheFieldsBeyondASave) {
    open.Typed.New = Remark("hall");
    TypeRoom(1);
    open.Saved = open.Now;
    keeper.NoteSaved();
    ASSERT_EQ(Kept().size(), 1U);
    EXPECT_FALSE(Kept()[0].Record.Content.Rooms) << "they are stored";
    EXPECT_EQ(Kept()[0].Record.Content.Typed, open.Typed);
}

TEST_F(OpenDrafts, OfEarlierAreSupersededByASave) {
    TypeRoom(1);
    OpenAgain();
    keeper.NoteSaved();
    ASSERT_EQ(Kept().size(), 1U);
    EXPECT_EQ(Kept()[0].Record.Superseded, clock);
}

TEST_F(OpenDrafts, ThatAreOldEndWhenTheProgramStarts) {
    TypeRoom(1);
    OpenAgain();
    keeper.NoteSaved();
    clock = clock.addDays(DraftDays + 1);
    DraftKeeper next(open, [this] { return clock; });
    next.SetDrafts(NewRun());
    EXPECT_TRUE(Kept().empty());
}

TEST_F(OpenDrafts, AreTakenBackUnsaved) {
    open.Typed.New = Remark("hall");
    TypeRoom(1);
    OpenAgain();
    const auto worth = keeper.WorthTakingBack();
    ASSERT_EQ(worth.size(), 1U);
    keeper.TakeBack(worth[0]);
    EXPECT_EQ(open.Now.Rooms, std::vector<Room>{Sized(1)});
    EXPECT_EQ(open.Typed.New, Remark("hall"));
    EXPECT_TRUE(open.HasUnsavedRooms());
    EXPECT_TRUE(keeper.WorthTakingBack().empty());
}

TEST_F(OpenDrafts, AreTakenBackInPlaceOfOthersWhichStay) {
    TypeRoom(1);
    OpenAgain();
    TypeRoom(2);
    keeper.TakeBack(keeper.WorthTakingBack().at(0));
    EXPECT_EQ(open.Now.Rooms, std::vector<Room>{Sized(1)});
    const auto worth = keeper.WorthTakingBack();
    ASSERT_EQ(worth.size(), 1U);
    EXPECT_EQ(worth[0].Record.Content.Rooms->at(0).Width, 2);
}

TEST_F(OpenDrafts, ThatCannotBeWrittenCanBeTakenBackAsLongAsTheProgramRuns) {
    Break(true);
    open.Typed.New = Remark("hall");
    TypeRoom(1);
    ASSERT_NE(keeper.Trouble(), "");
    OpenAgain();
    EXPECT_EQ(keeper.Trouble(), "");
    const auto worth = keeper.WorthTakingBack();
    ASSERT_EQ(worth.size(), 1U);
    EXPECT_EQ(worth[0].Record.Written, clock);
    keeper.TakeBack(worth[0]);
    EXPECT_EQ(open.Now.Rooms, std::vector<Room>{Sized(1)});
    EXPECT_EQ(open.Typed.New, Remark("hall"));
    EXPECT_TRUE(keeper.WorthTakingBack().empty());
    EXPECT_NE(keeper.Trouble(), "") << "it still cannot be written";
    OpenAgain();
    EXPECT_EQ(keeper.WorthTakingBack().size(), 1U) << "once more";
    Break(false);
}

TEST_F(OpenDrafts, ThatCouldNotBeWrittenAreWrittenOnceThatWorksAgain) {
    Break(true);
    TypeRoom(1);
    const QDateTime left = clock;
    OpenAgain();
    open.Now.Name = open.Saved.Name = "OTHER";
    keeper.Flush();
    EXPECT_TRUE(keeper.WorthTakingBack().empty()) << "it is another project's";
    Break(false);
    EXPECT_TRUE(Kept().empty());
    clock = clock.addSecs(60);
    keeper.Flush();
    ASSERT_EQ(Kept().size(), 1U);
    EXPECT_EQ(Kept()[0].Record.Content.Rooms, std::vector<Room>{Sized(1)});
    EXPECT_EQ(Kept()[0].Record.Written, left);
    keeper.Flush();
    EXPECT_EQ(Kept().size(), 1U) << "once";
}

TEST_F(OpenDrafts, ThatCouldNotBeWrittenFollowTheirProject) {
    Break(true);
    for (const char* name : {"P", "GONE"}) {
        open.Now.Name = open.Saved.Name = name;
        TypeRoom(1);
        OpenAgain();
    }
    keeper.Move("p", "NEW");
    keeper.End("GONE");
    const auto worthOf = [this](const char* name) {
        open.Now.Name = open.Saved.Name = name;
        return keeper.WorthTakingBack().size();
    };
    EXPECT_EQ(worthOf("NEW"), 1U);
    EXPECT_EQ(worthOf("P"), 0U);
    EXPECT_EQ(worthOf("GONE"), 0U);
    Break(false);
}

TEST_F(OpenDrafts, ThatCouldNotBeWrittenAreFiveOfAProjectAtMost) {
    Break(true);
    for (Integer i = 1; i <= 7; ++i) {
        TypeRoom(i);
        OpenAgain();
    }
    const auto worth = keeper.WorthTakingBack();
    ASSERT_EQ(worth.size(), MostDrafts);
    EXPECT_EQ(worth.front().Record.Content.Rooms->at(0).Width, 7);
    EXPECT_EQ(worth.back().Record.Content.Rooms->at(0).Width, 3);
    Break(false);
}

TEST_F(OpenDrafts, ThatWereSavedAfterAllAreNotHeld) {
    Break(true);
    TypeRoom(1);
    open.Saved = open.Now;
    keeper.NoteSaved();
    OpenAgain();
    open.Saved.Rooms.clear();
    open.Now.Rooms.clear();
    EXPECT_TRUE(keeper.WorthTakingBack().empty());
    Break(false);
}

TEST_F(OpenDrafts, ThatWereTakenBackEndWithTheSave) {
    TypeRoom(1);
    OpenAgain();
    keeper.TakeBack(keeper.WorthTakingBack().at(0));
    TypeRoom(2);
    open.Saved = open.Now;
    keeper.NoteSaved();
    EXPECT_TRUE(Kept().empty());
}

TEST_F(OpenDrafts, ThatAreAlikeEndTogetherWithTheSave) {
    TypeRoom(1);
    OpenAgain();
    keeper.TakeBack(keeper.WorthTakingBack().at(0));
    OpenAgain(); // not saved this time either
    EXPECT_EQ(Kept().size(), 2U);
    keeper.TakeBack(keeper.WorthTakingBack().at(0));
    open.Saved = open.Now;
    keeper.NoteSaved();
    EXPECT_TRUE(Kept().empty());
}

TEST_F(OpenDrafts, ThatWereTakenBackStayWhenAnotherRunGoesOnWithThem) {
    OpenProject others = open;
    DraftKeeper other(others, [this] { return clock; });
    other.SetDrafts(NewRun());
    others.Now.Rooms.push_back(Sized(1));
    other.Flush();
    keeper.TakeBack(keeper.WorthTakingBack().at(0));
    others.Now.Rooms.push_back(Sized(2));
    other.Flush();
    open.Saved = open.Now;
    keeper.NoteSaved();
    ASSERT_EQ(Kept().size(), 1U);
    EXPECT_EQ(Kept()[0].Record.Content.Rooms->size(), 2U);
}

TEST_F(OpenDrafts, AreWorthTakingBackOnceEachAndFiveAtMost) {
    for (Integer i = 1; i <= 8; ++i) {
        TypeRoom(std::max<Integer>(i, 2)); // the first two are alike
        OpenAgain();
    }
    std::vector<Integer> widths;
    for (const KeptDraft& draft : keeper.WorthTakingBack()) {
        widths.push_back(draft.Record.Content.Rooms->at(0).Width);
    }
    EXPECT_EQ(widths, (std::vector<Integer>{8, 7, 6, 5, 4}));
    open.Saved.Rooms = open.Now.Rooms = {Sized(7)};
    EXPECT_EQ(keeper.WorthTakingBack().size(), 4U) << "one of them is what is stored";
}

TEST_F(OpenDrafts, ThatCannotBeWrittenSayWhyUntilTheyCan) {
    QObject context;
    std::vector<std::string> told;
    keeper.OnTrouble(context, [&] { told.push_back(keeper.Trouble()); });
    Break(true);
    TypeRoom(1);
    ASSERT_EQ(told.size(), 1U);
    EXPECT_NE(told[0].find(folder.Path("state")), std::string::npos) << told[0];
    TypeRoom(2);
    EXPECT_EQ(told.size(), 1U) << "nothing new";
    Break(false);
    keeper.Flush();
    EXPECT_EQ(told, (std::vector<std::string>{told[0], ""}));
    EXPECT_EQ(Kept().at(0).Record.Content.Rooms->size(), 2U);
}

TEST_F(OpenDrafts, TellOneThatIsGoneNothing) {
    auto context = std::make_unique<QObject>();
    int told = 0;
    keeper.OnTrouble(*context, [&] { ++told; });
    context.reset();
    Break(true);
    TypeRoom(1);
    EXPECT_EQ(told, 0);
    EXPECT_NE(keeper.Trouble(), "");
}

TEST_F(OpenDrafts, AreNotTakenBackOverWhatCannotBeKept) {
    TypeRoom(1);
    OpenAgain();
    const auto worth = keeper.WorthTakingBack();
    open.Now.Rooms.push_back(Sized(2));
    Break(true);
    EXPECT_THROW(keeper.TakeBack(worth.at(0)), OutputFileError);
    EXPECT_EQ(open.Now.Rooms, std::vector<Room>{Sized(2)});
}

TEST_F(OpenDrafts, FollowAProjectThatIsSavedAsANewOne) {
    TypeRoom(1);
    OpenAgain();
    TypeRoom(2);
    Drafts earlier = NewRun();
    earlier.Write(earlier.NewFile("Q"), "Q", Kept()[0].Record.Content, clock);
    open.Typed.New = Remark("hall");
    open.Now.Name = "Q";
    open.Saved = open.Now;
    keeper.NoteSavedAs("P");
    EXPECT_TRUE(Kept("P").empty());
    const auto kept = Kept("Q");
    ASSERT_EQ(kept.size(), 2U);
    EXPECT_EQ(kept[0].Record.Content.Typed, open.Typed);
    EXPECT_FALSE(kept[0].Record.Content.Rooms);
    EXPECT_EQ(kept[1].Record.Content.Rooms, std::vector<Room>{Sized(1)});
}

} // namespace
} // namespace tarn
