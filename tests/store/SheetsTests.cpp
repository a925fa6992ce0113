#include "app/RunTimeError.h"
#include "store/Sheets.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::RawDatabase;
using testing::ShortWait;
using testing::TestDatabase;

using Lines = std::vector<std::string>;

constexpr const char* AllSheets = "SELECT TabIndex, ProjName, ObjNum, PicScale, DigScale, "
                                  "TileLabelNUm, MagScale, ScaleTop, ScaleLeft, EnteredMetric "
                                  "FROM MainTab ORDER BY rowid";

class Sheets : public ::testing::Test {
  protected:
    Sheets() {
        file_.OpenInto(state_, ShortWait);
        state_.CurProjName = "P";
    }

    /// Add a sheet row numbered 4 of which `field` has the value `value`.
    void AddSheetWith(const std::string& field, const std::string& value) {
        file_.AddProject("MARCH", "P", 4, 2);
        file_.Run("UPDATE MainTab SET " + field + " = " + value);
    }

    TestDatabase file_;
    SharedState state_;
};

// --- saving ---

TEST_F(Sheets, SaveStoresTheCurrentState) {
    state_.CurProjName = "O'HARA";
    state_.ObjNum = 12;
    state_.DimScale = 0.01;
    state_.MetricFlag = 1;
    EXPECT_TRUE(SaveMainTab(state_, 7));
    EXPECT_EQ(file_.Rows(AllSheets), Lines{"7|O'HARA|12|NULL|0.01|1|1|-500|-500|1"});
}

TEST_F(Sheets, SavingTwiceLeavesOneRow) {
    EXPECT_TRUE(SaveMainTab(state_, 7));
    state_.ObjNum = 3;
    EXPECT_TRUE(SaveMainTab(state_, 7));
    EXPECT_EQ(file_.Rows("SELECT TabIndex, ObjNum FROM MainTab"), Lines{"7|3"});
}

TEST_F(Sheets, SaveReplacesEveryRowOfTheNumberAndNoOther) {
    file_.AddProject("MARCH", "A", 7);
    file_.AddProject("MARCH", "B", 7);
    file_.AddProject("MARCH", "C", 8);
    EXPECT_TRUE(SaveMainTab(state_, 7));
    EXPECT_EQ(file_.Rows("SELECT TabIndex, ProjName FROM MainTab ORDER BY rowid"),
              (Lines{"8|C", "7|P"}));
}

TEST_F(Sheets, EnteredMetricIsSetByASaveInMetricAndKeptByASaveWithout) {
    state_.ObjNum = 1;
    SaveMainTab(state_, 7);
    EXPECT_FALSE(WasEnteredInMetric(state_, 7));
    state_.MetricFlag = 1;
    SaveMainTab(state_, 7);
    EXPECT_TRUE(WasEnteredInMetric(state_, 7));
    state_.MetricFlag = 0;
    SaveMainTab(state_, 7);
    EXPECT_TRUE(WasEnteredInMetric(state_, 7));
    EXPECT_EQ(file_.Rows("SELECT TileLabelNUm, EnteredMetric FROM MainTab"), Lines{"0|1"});
}

TEST_F(Sheets, EnteredMetricIsClearedByASaveOfNoRoom) {
    state_.ObjNum = 1;
    state_.MetricFlag = 1;
    SaveMainTab(state_, 7);
    state_.ObjNum = 0;
    SaveMainTab(state_, 7);
    EXPECT_EQ(file_.Rows("SELECT TileLabelNUm, EnteredMetric FROM MainTab"), Lines{"1|0"});
}

TEST_F(Sheets, ANullEnteredMetricCountsAsTheUnitsFlag) {
    AddSheetWith("EnteredMetric", "NULL");
    EXPECT_FALSE(WasEnteredInMetric(state_, 4));
    file_.Run("UPDATE MainTab SET TileLabelNUm = 1");
    EXPECT_TRUE(WasEnteredInMetric(state_, 4));
    state_.ObjNum = 2;
    SaveMainTab(state_, 4);
    EXPECT_EQ(file_.Rows("SELECT TileLabelNUm, EnteredMetric FROM MainTab"), Lines{"0|1"});
}

TEST_F(Sheets, ADatabaseWithoutEnteredMetricUsesTheUnitsFlag) {
    AddSheetWith("TileLabelNUm", "1");
    file_.Run("ALTER TABLE MainTab DROP COLUMN EnteredMetric");
    EXPECT_TRUE(WasEnteredInMetric(state_, 4));
    state_.ObjNum = 2;
    EXPECT_TRUE(SaveMainTab(state_, 4)) << state_.DatabaseFailure;
    EXPECT_FALSE(WasEnteredInMetric(state_, 4));
    EXPECT_EQ(file_.Rows("SELECT ObjNum, TileLabelNUm FROM MainTab"), Lines{"2|0"});
}

TEST_F(Sheets, AMissingSheetWasNotEnteredInMetric) {
    EXPECT_FALSE(WasEnteredInMetric(state_, 4));
}

TEST_F(Sheets, AFailedSaveAnswersFalseWithTheCause) {
    RawDatabase other(file_.Path());
    other.Run("BEGIN IMMEDIATE");
    EXPECT_FALSE(SaveMainTab(state_, 7));
    EXPECT_NE(state_.DatabaseFailure.find("another program"), std::string::npos);
    other.Run("COMMIT");
    EXPECT_EQ(file_.Rows(AllSheets), Lines{});
}

// --- loading ---

TEST_F(Sheets, LoadSetsRoomsAndScaleAndTheNumber) {
    file_.AddProject("MARCH", "P", 4, 2);
    file_.Run("UPDATE MainTab SET DigScale = 0.25");
    Integer number = 4;
    EXPECT_TRUE(LoadMainTab(state_, number));
    EXPECT_EQ(state_.ObjNum, 2);
    EXPECT_EQ(state_.DimScale, 0.25);
    EXPECT_EQ(number, 4);
}

TEST_F(Sheets, SavingInMetricAndLoadingGivesFeetAndInches) {
    state_.MetricFlag = 1;
    SaveMainTab(state_, 7);
    Integer number = 7;
    EXPECT_TRUE(LoadMainTab(state_, number));
    EXPECT_EQ(state_.MetricFlag, 0);
}

TEST_F(Sheets, WhatIsSavedLoadsAsItWas) {
    state_.ObjNum = 501;
    state_.DimScale = 0.1;
    SaveMainTab(state_, 0);
    SharedState other;
    file_.OpenInto(other);
    Integer number = 0;
    EXPECT_TRUE(LoadMainTab(other, number));
    EXPECT_EQ(other.ObjNum, 501);
    EXPECT_EQ(other.DimScale, 0.1);
}

TEST_F(Sheets, NullsInFieldsOfOlderVersionsDoNotMatter) {
    for (const char* field : {"MagScale", "ScaleTop", "ScaleLeft", "PicScale", "TileLabelNUm"}) {
        SCOPED_TRACE(field);
        file_.Run("DELETE FROM MainTab");
        AddSheetWith(field, "NULL");
        Integer number = 4;
        EXPECT_TRUE(LoadMainTab(state_, number)) << state_.DatabaseFailure;
        EXPECT_EQ(state_.ObjNum, 2);
    }
}

TEST_F(Sheets, LoadWithoutARowResetsTheUnitsAlone) {
    state_.MetricFlag = 1;
    state_.ObjNum = 9;
    state_.DimScale = 0.5;
    Integer number = 4;
    EXPECT_FALSE(LoadMainTab(state_, number));
    EXPECT_EQ(state_.MetricFlag, 0);
    EXPECT_EQ(state_.ObjNum, 9);
    EXPECT_EQ(state_.DimScale, 0.5);
    EXPECT_EQ(number, 4);
    EXPECT_EQ(state_.DatabaseFailure, "The project's sheet, number 4, is missing.");
}

struct BadSheet {
    const char* Name;
    const char* Field;
    const char* Value;
};

class BadSheets : public Sheets, public ::testing::WithParamInterface<BadSheet> {};

TEST_P(BadSheets, FailToLoadWithNothingSetButTheUnits) {
    AddSheetWith(GetParam().Field, GetParam().Value);
    state_.MetricFlag = 1;
    state_.ObjNum = 9;
    state_.DimScale = 0.5;
    Integer number = 4;
    EXPECT_FALSE(LoadMainTab(state_, number));
    EXPECT_EQ(state_.MetricFlag, 0);
    EXPECT_EQ(state_.ObjNum, 9);
    EXPECT_EQ(state_.DimScale, 0.5);
    EXPECT_EQ(number, 4);
    EXPECT_NE(state_.DatabaseFailure.find(GetParam().Field), std::string::npos)
        << state_.DatabaseFailure;
}

INSTANTIATE_TEST_SUITE_P(LoadMainTab, BadSheets,
                         ::testing::Values(BadSheet{"NullRooms", "ObjNum", "NULL"},
                                           BadSheet{"NegativeRooms", "ObjNum", "-1"},
                                           BadSheet{"TooManyRooms", "ObjNum", "502"},
                                           BadSheet{"FarTooManyRooms", "ObjNum", "99999999999"},
                                           BadSheet{"TextAsRooms", "ObjNum", "'many'"},
                                           BadSheet{"NullScale", "DigScale", "NULL"},
                                           BadSheet{"ZeroScale", "DigScale", "0"},
                                           BadSheet{"NegativeScale", "DigScale", "-0.01"},
                                           BadSheet{"InfiniteScale", "DigScale", "9e999"}),
                         [](const auto& bad) { return bad.param.Name; });

TEST_F(Sheets, AMissingFieldFailsToLoad) {
    AddSheetWith("ObjNum", "2");
    file_.Run("ALTER TABLE MainTab DROP COLUMN ScaleTop");
    state_.ObjNum = 9;
    Integer number = 4;
    EXPECT_FALSE(LoadMainTab(state_, number));
    EXPECT_EQ(state_.ObjNum, 9);
    EXPECT_NE(state_.DatabaseFailure.find("ScaleTop"), std::string::npos);
}

TEST_F(Sheets, OfSeveralUnderOneNumberTheProjectsOwnIsLoaded) {
    file_.AddProject("MARCH", "A", 4, 2);
    file_.AddProject("MARCH", "P", 4, 3);
    file_.AddProject("MARCH", "Z", 4, 5);
    file_.Run("UPDATE MainTab SET EnteredMetric = 1 WHERE ProjName = 'P'");
    Integer number = 4;
    EXPECT_TRUE(LoadMainTab(state_, number));
    EXPECT_EQ(state_.ObjNum, 3);
    EXPECT_TRUE(WasEnteredInMetric(state_, 4));

    state_.CurProjName = "Z";
    EXPECT_TRUE(LoadMainTab(state_, number));
    EXPECT_EQ(state_.ObjNum, 5);
    EXPECT_FALSE(WasEnteredInMetric(state_, 4));

    state_.CurProjName = "NONE OF THEM";
    EXPECT_TRUE(LoadMainTab(state_, number));
    EXPECT_EQ(state_.ObjNum, 2) << "the first";
}

TEST_F(Sheets, SaveKeepsTheUnitsOfTheProjectsOwnRow) {
    file_.AddProject("MARCH", "A", 4, 2);
    file_.AddProject("MARCH", "P", 4, 3);
    file_.Run("UPDATE MainTab SET EnteredMetric = 1 WHERE ProjName = 'P'");
    state_.ObjNum = 3;
    EXPECT_TRUE(SaveMainTab(state_, 4));
    EXPECT_EQ(file_.Rows("SELECT ProjName, EnteredMetric FROM MainTab"), Lines{"P|1"});
}

// --- numbers ---

TEST_F(Sheets, TheFirstSheetIsNumberZero) {
    EXPECT_EQ(NewTabIndex(state_), 0);
    SaveMainTab(state_, 0);
    EXPECT_EQ(NewTabIndex(state_), 1);
}

TEST_F(Sheets, ANewNumberIsOneAboveTheGreatest) {
    file_.AddProject("MARCH", "A", 12);
    file_.AddProject("MARCH", "B", 3);
    EXPECT_EQ(NewTabIndex(state_), 13);
}

TEST_F(Sheets, ANewNumberIsNeverNegative) {
    file_.AddProject("MARCH", "A", -5);
    EXPECT_EQ(NewTabIndex(state_), 0);
    file_.AddProject("MARCH", "B", -1);
    EXPECT_EQ(NewTabIndex(state_), 0);
}

TEST_F(Sheets, RowsWithoutANumberCountAsNone) {
    file_.Run("INSERT INTO MainTab (ProjName) VALUES ('A')");
    EXPECT_EQ(NewTabIndex(state_), 0);
}

TEST_F(Sheets, ANumberPast32767Overflows) {
    file_.AddProject("MARCH", "A", 32766);
    EXPECT_EQ(NewTabIndex(state_), 32767);
    file_.AddProject("MARCH", "B", 32767);
    try {
        NewTabIndex(state_);
        FAIL() << "no error was raised";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), OverflowNumber);
    }
}

TEST_F(Sheets, NewTabIndexRaisesWhenItFails) {
    file_.Run("DROP TABLE MainTab");
    EXPECT_THROW(NewTabIndex(state_), DatabaseError);
}

TEST_F(Sheets, AProjectFindsItsSheet) {
    file_.AddProject("MARCH", "A", 3);
    file_.AddProject("MARCH", "P", 12);
    EXPECT_EQ(GetProjTabIndex(state_), 12);
    EXPECT_EQ(FindProjTabIndex(state_), 12);
}

TEST_F(Sheets, TheFirstOfTwoSheetsCounts) {
    file_.AddProject("MARCH", "P", 12);
    file_.AddProject("MARCH", "P", 3);
    EXPECT_EQ(GetProjTabIndex(state_), 12);
}

TEST_F(Sheets, AProjectWithoutASheetIsToldFromAFailure) {
    file_.AddProject("MARCH", "A", 3);
    EXPECT_EQ(GetProjTabIndex(state_), -100);
    EXPECT_EQ(FindProjTabIndex(state_), std::nullopt);
    EXPECT_EQ(state_.DatabaseFailure, "");

    file_.Run("DROP TABLE MainTab");
    EXPECT_EQ(GetProjTabIndex(state_), -100);
    EXPECT_NE(state_.DatabaseFailure.find("MainTab"), std::string::npos);
    EXPECT_THROW(FindProjTabIndex(state_), DatabaseError);
}

TEST_F(Sheets, ProjectsWithAnyNameFindTheirSheets) {
    int number = 0;
    const Lines names = {"DIR", "PROJNAME", "TABINDEX", "O'HARA", "100% A;B", "КВАРТИРА", "床"};
    for (const std::string& name : names) {
        file_.AddProject("MARCH", name, number++);
    }
    number = 0;
    for (const std::string& name : names) {
        state_.CurProjName = name;
        EXPECT_EQ(GetProjTabIndex(state_), number++) << name;
    }
}

TEST_F(Sheets, ASheetWithoutANumberIsAFailure) {
    file_.Run("INSERT INTO MainTab (ProjName) VALUES ('P')");
    EXPECT_EQ(GetProjTabIndex(state_), -100);
    EXPECT_THROW(FindProjTabIndex(state_), DatabaseError);
}

TEST_F(Sheets, WithoutADatabaseEverythingFailsWithTheReasonWhyItIsNotOpen) {
    state_.CurDB.reset();
    state_.DatabaseFailure = "The database file is missing.";
    Integer number = 1;
    EXPECT_FALSE(SaveMainTab(state_, 1));
    EXPECT_FALSE(LoadMainTab(state_, number));
    EXPECT_EQ(GetProjTabIndex(state_), -100);
    EXPECT_EQ(testing::DatabaseErrorOf([&] { NewTabIndex(state_); }),
              "The database file is missing.");
    EXPECT_EQ(state_.DatabaseFailure, "The database file is missing.");
}

} // namespace
} // namespace tarn
