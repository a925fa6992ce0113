#include "app/StartModule.h"
#include "store/Projects.h"
#include "store/Schema.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tarn {
namespace {

namespace fs = std::filesystem;

using testing::RawDatabase;
using testing::TestFolder;
using testing::WriteFile;

const QLocale English(QLocale::English, QLocale::UnitedStates);
const QDate March(2024, 3, 31);

/// A configuration directory and a data folder with a database.
class Start : public ::testing::Test {
  protected:
    Start() {
        CreateDatabaseFile(Database());
        Configure(Data());
    }

    std::string Data() const { return folder_.Path("my data"); }
    std::string Database() const { return folder_.Path("my data/DATA/Tarn.mdb"); }
    void Configure(const std::string& dataFolder) const {
        WriteFile(folder_.Path("TarnWin.INI"), "[TarnWin Directory]\n" + dataFolder + "\n");
    }
    bool Open() { return OpenDataBase(state_, {folder_.Path()}); }
    bool Init(const QDate& date = March, const QLocale& locale = English) {
        return InitSharedState(state_, engine_, {folder_.Path()}, date, locale);
    }

    TestFolder folder_;
    SharedState state_;
    EngineArrays engine_;
};

TEST_F(Start, OpensTheDatabaseOfTheDataFolder) {
    EXPECT_TRUE(Open());
    EXPECT_EQ(state_.DataPath, Data());
    EXPECT_EQ(state_.DBName, Data() + "\\DATA\\Tarn.mdb") << "backslashes stay as text";
    ASSERT_NE(state_.CurDB, nullptr) << state_.DatabaseFailure;
    EXPECT_EQ(state_.DatabaseFailure, "");
}

TEST_F(Start, OpensTheThreeSharedRecordsetsAndNoOther) {
    RawDatabase raw(Database());
    raw.Run("INSERT INTO DirTab VALUES ('SHOPS'), ('HOUSES')");
    raw.Run("INSERT INTO ProjTab VALUES ('HOUSES', 'A', 0)");
    raw.Run("INSERT INTO MainTab (TabIndex) VALUES (7)");
    ASSERT_TRUE(Open());
    EXPECT_EQ(state_.DBRS[1]->Field("Directory"), FieldValue(std::string("HOUSES"))) << "by name";
    EXPECT_EQ(state_.DBRS[2]->Field("ProjName"), FieldValue(std::string("A")));
    EXPECT_EQ(state_.DBRS[3]->Field("TabIndex"), FieldValue(std::int64_t{7}));
    for (int i = 0; i <= 23; ++i) {
        EXPECT_EQ(state_.DBRS[i] != nullptr, i >= 1 && i <= 3) << i;
    }
    state_.DBRS[1]->Edit(); // they can be edited
    state_.DBRS[2]->Edit();
    state_.DBRS[3]->Edit();
}

TEST_F(Start, OpensAFolderWrittenWithBackslashes) {
    std::string folder = Data() + "/";
    std::replace(folder.begin(), folder.end(), '/', '\\');
    Configure(folder + "\\\\");
    EXPECT_TRUE(Open());
    folder.pop_back();
    EXPECT_EQ(state_.DataPath, folder);
    EXPECT_EQ(state_.DBName, folder + "\\DATA\\Tarn.mdb");
    EXPECT_NE(state_.CurDB, nullptr) << state_.DatabaseFailure;
}

TEST_F(Start, TrailingBackslashesLeaveTheNameOfTheDatabase) {
    Configure("C:\\EST\\\\\\");
    EXPECT_TRUE(Open());
    EXPECT_EQ(state_.DataPath, "C:\\EST");
    EXPECT_EQ(state_.DBName, "C:\\EST\\DATA\\Tarn.mdb");
}

TEST_F(Start, NeedsAConfigurationFileThatIsNotEmpty) {
    WriteFile(folder_.Path("TarnWin.INI"), "");
    EXPECT_FALSE(Init());
    fs::remove(folder_.Path("TarnWin.INI"));
    EXPECT_FALSE(Init());
    EXPECT_EQ(state_.DBName, "");
    EXPECT_EQ(state_.CurDB, nullptr);
    EXPECT_EQ(ConfigurationMissingMessage, "Couldn't find TarnWin.ini");
}

TEST_F(Start, AMissingDatabaseDoesNotStopItAndIsNotMade) {
    Configure(folder_.Path("nowhere"));
    EXPECT_TRUE(Init());
    EXPECT_EQ(state_.CurDB, nullptr);
    EXPECT_EQ(state_.DBRS[1], nullptr);
    EXPECT_NE(state_.DatabaseFailure.find(folder_.Path("nowhere/DATA/Tarn.mdb") + " is missing"),
              std::string::npos)
        << state_.DatabaseFailure;
    EXPECT_FALSE(fs::exists(folder_.Path("nowhere")));
    EXPECT_EQ(state_.CurDirName, "MARCH") << "the rest of the start is done";
    EXPECT_EQ(state_.MonthStr[0], "JANUARY");
}

TEST_F(Start, AConfigurationWithoutAFolderIsNamedInTheFailure) {
    WriteFile(folder_.Path("TarnWin.INI"), "[Something else]\n/data\n");
    EXPECT_TRUE(Open());
    EXPECT_EQ(state_.DataPath, "");
    EXPECT_EQ(state_.DBName, "\\DATA\\Tarn.mdb");
    EXPECT_NE(state_.DatabaseFailure.find(folder_.Path("TarnWin.INI")), std::string::npos)
        << state_.DatabaseFailure;
}

TEST_F(Start, ABadDatabaseIsKeptAsItIsAndTheCauseIsKept) {
    WriteFile(Database(), "something else");
    EXPECT_TRUE(Open());
    EXPECT_EQ(state_.CurDB, nullptr);
    EXPECT_NE(state_.DatabaseFailure.find("is not a database"), std::string::npos);
    EXPECT_EQ(testing::ReadFile(Database()), "something else");
    EXPECT_EQ(testing::DatabaseErrorOf([&] { CheckDir(state_, "X"); }), state_.DatabaseFailure);
}

TEST_F(Start, AMissingTableLeavesItsRecordsetAloneUnset) {
    RawDatabase(Database()).Run("DROP TABLE ProjTab");
    EXPECT_TRUE(Open());
    EXPECT_NE(state_.CurDB, nullptr);
    EXPECT_NE(state_.DBRS[1], nullptr);
    EXPECT_EQ(state_.DBRS[2], nullptr);
    EXPECT_NE(state_.DBRS[3], nullptr);
    EXPECT_NE(state_.DatabaseFailure.find("ProjTab"), std::string::npos);
}

TEST_F(Start, ADatabaseThatCouldNotBeOpenedIsTriedAgain) {
    const std::string away = folder_.Path("away.mdb");
    fs::rename(Database(), away);
    EXPECT_TRUE(Init());
    ASSERT_EQ(state_.CurDB, nullptr);
    EXPECT_FALSE(RetryDataBase(state_));
    EXPECT_NE(state_.DatabaseFailure.find("is missing"), std::string::npos);
    EXPECT_FALSE(fs::exists(Database())) << "it is not made";

    fs::rename(away, Database());
    EXPECT_TRUE(RetryDataBase(state_));
    ASSERT_NE(state_.CurDB, nullptr);
    for (int i = 1; i <= 3; ++i) {
        EXPECT_NE(state_.DBRS[i], nullptr) << i;
    }
    const auto* opened = state_.CurDB.get();
    EXPECT_TRUE(RetryDataBase(state_));
    EXPECT_EQ(state_.CurDB.get(), opened) << "what is open stays open";
}

TEST_F(Start, EachTryNamesItsOwnCause) {
    fs::remove(Database());
    EXPECT_TRUE(Init());
    WriteFile(Database(), "something else");
    EXPECT_FALSE(RetryDataBase(state_));
    EXPECT_NE(state_.DatabaseFailure.find("is not a database"), std::string::npos)
        << state_.DatabaseFailure;
}

TEST_F(Start, AnotherTryWithoutADataFolderStillNamesTheConfiguration) {
    WriteFile(folder_.Path("TarnWin.INI"), "[Something else]\n");
    EXPECT_TRUE(Init());
    EXPECT_FALSE(RetryDataBase(state_));
    EXPECT_NE(state_.DatabaseFailure.find(folder_.Path("TarnWin.INI")), std::string::npos)
        << state_.DatabaseFailure;
}

TEST_F(Start, SetsTheSharedDefaults) {
    state_.MetricFlag = 1;
    state_.DimScale = 5;
    state_.ObjNum = 3;
    state_.ECutCount = 4;
    state_.CurProjName = "P";
    state_.RoomWidth[500] = 9;
    engine_.PieceCount = 7;
    engine_.PCX1[3000] = 9;
    EXPECT_TRUE(Init());
    EXPECT_EQ(state_.MetricFlag, 0);
    EXPECT_EQ(state_.DimScale, 0.01);
    EXPECT_EQ(state_.ObjNum, 0);
    EXPECT_EQ(state_.ECutCount, 0);
    EXPECT_EQ(state_.CurProjName, "");
    EXPECT_EQ(state_.MinCutLen[0], 3.0F);
    EXPECT_EQ(state_.MinCutLen[1], 1.5F);
    EXPECT_EQ(state_.MinCutLen[2], 0.5F);
    EXPECT_EQ(state_.MinCutLen[3], 0.0F);
    EXPECT_EQ(state_.RoomWidth[500], 0);
    EXPECT_EQ(engine_.PieceCount, 0);
    EXPECT_EQ(engine_.PCX1[3000], 0.0F);
    EXPECT_NE(state_.CurDB, nullptr);
}

TEST_F(Start, DimAllArraysEmptiesBothSetsOfArrays) {
    state_.RoomRemark[500] = "x";
    engine_.PosX[3000] = 9;
    engine_.PosCount = 2;
    DimAllArrays(state_, engine_);
    EXPECT_EQ(state_.RoomRemark[500], "");
    EXPECT_EQ(engine_.PosX[3000], 0.0F);
    EXPECT_EQ(engine_.PosCount, 0);
}

TEST_F(Start, TheFirstDirectoryIsTheMonthOfTheDate) {
    EXPECT_TRUE(Init(QDate(2024, 12, 1)));
    EXPECT_EQ(state_.CurDirName, "DECEMBER");
}

TEST(FillMonthStr, NamesTwelveMonthsAndLeavesTheLastElementEmpty) {
    SharedState state;
    FillMonthStr(state);
    EXPECT_EQ(state.MonthStr[0], "JANUARY");
    EXPECT_EQ(state.MonthStr[1], "FEBRUARY");
    EXPECT_EQ(state.MonthStr[2], "MARCH");
    EXPECT_EQ(state.MonthStr[3], "APRIL");
    EXPECT_EQ(state.MonthStr[4], "MAY");
    EXPECT_EQ(state.MonthStr[5], "JUNE");
    EXPECT_EQ(state.MonthStr[6], "JULY");
    EXPECT_EQ(state.MonthStr[7], "AUGUST");
    EXPECT_EQ(state.MonthStr[8], "SEPTEMBER");
    EXPECT_EQ(state.MonthStr[9], "OCTOBER");
    EXPECT_EQ(state.MonthStr[10], "NOVEMBER");
    EXPECT_EQ(state.MonthStr[11], "DECEMBER");
    EXPECT_EQ(state.MonthStr[12], "");
}

TEST(MonthDirectoryName, IsTheLocalesStandAloneLongNameInUpperCase) {
    EXPECT_EQ(MonthDirectoryName(March, English), "MARCH");
    EXPECT_EQ(MonthDirectoryName(March, QLocale(QLocale::German)), "MÄRZ");
    EXPECT_EQ(MonthDirectoryName(March, QLocale(QLocale::Russian)), "МАРТ")
        << "inside a date it would be another form";
    EXPECT_EQ(MonthDirectoryName(March, QLocale(QLocale::C)), "MARCH");
}

} // namespace
} // namespace tarn
