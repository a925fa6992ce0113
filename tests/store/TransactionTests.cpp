#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tarn {
namespace {

using namespace tarn::testing;

class Transactions : public ::testing::Test {
  protected:
    Lines Directories() const { return file_.Rows("SELECT Directory FROM DirTab ORDER BY rowid"); }

    TestDatabase file_;
    ProjectStore store_ = file_.Open(ShortWait);
};

TEST_F(Transactions, AreStoredAtTheirEnd) {
    store_.InOneTransaction([&] {
        store_.AddDirectory("MARCH");
        EXPECT_EQ(Directories(), Lines{});
        EXPECT_EQ(store_.Directories(), Lines{"MARCH"}) << "seen in it already";
    });
    EXPECT_EQ(Directories(), Lines{"MARCH"});
}

TEST_F(Transactions, ThatRaiseAreTakenBack) {
    file_.AddDirectory("MAY");
    EXPECT_THROW(store_.InOneTransaction([&] {
        store_.AddDirectory("MARCH");
        throw std::runtime_error("no more");
    }),
                 std::runtime_error);
    store_.AddDirectory("JUNE");
    EXPECT_EQ(Directories(), (Lines{"MAY", "JUNE"}));
}

TEST_F(Transactions, HoldEveryKindOfChange) {
    file_.AddDirectory("HOUSES");
    file_.AddProject("HOUSES", "VILLA", 1, 2);
    Project project;
    project.Name = "HUT";
    project.Rooms.resize(1);
    const auto changeAll = [&] {
        store_.RenameDirectory("HOUSES", "HOMES");
        store_.RenameProject("VILLA", "MANOR");
        store_.AddProject("HOMES", "HUT");
        project.Sheet = store_.Load("HUT").Value.Sheet;
        store_.Save(project, Units::Imperial);
        store_.DeleteProject("MANOR");
    };
    EXPECT_THROW(store_.InOneTransaction([&] {
        changeAll();
        throw std::runtime_error("no more");
    }),
                 std::runtime_error);
    EXPECT_EQ(Directories(), Lines{"HOUSES"});
    EXPECT_EQ(file_.Rows("SELECT ProjName FROM MainTab"), Lines{"VILLA"});

    store_.InOneTransaction(changeAll);
    EXPECT_EQ(Directories(), Lines{"HOMES"});
    EXPECT_EQ(file_.Rows("SELECT TabIndex, ProjName FROM MainTab"), Lines{"2|HUT"});
    EXPECT_EQ(file_.Rows("SELECT Dir, ProjName FROM ProjTab"), Lines{"HOMES|HUT"});
}

TEST_F(Transactions, GoOnAfterAPartThatFailedAsIfItHadNotBeenTried) {
    file_.AddDirectory("HOUSES");
    file_.AddProject("HOUSES", "VILLA", 1, 2);
    file_.Run("CREATE TRIGGER Stop BEFORE DELETE ON DirTab BEGIN SELECT RAISE(ABORT, 'stop'); END");
    store_.InOneTransaction([&] {
        store_.AddDirectory("SHOPS");
        for (int time = 0; time < 2; ++time) {
            EXPECT_THROW(store_.DeleteDirectory("HOUSES"), DatabaseError);
        }
        EXPECT_THROW(store_.InOneTransaction([&] {
            store_.AddDirectory("BARNS");
            EXPECT_THROW(store_.DeleteDirectory("HOUSES"), DatabaseError);
            throw std::runtime_error("no more");
        }),
                     std::runtime_error);
    });
    EXPECT_EQ(Directories(), (Lines{"HOUSES", "SHOPS"}));
    EXPECT_EQ(file_.Rows("SELECT ProjName FROM ProjTab"), Lines{"VILLA"});
    EXPECT_EQ(file_.Rows("SELECT count(*) FROM InputData"), Lines{"2"});
}

TEST_F(Transactions, ThatTheDatabaseTookBackItselfAreSurvived) {
    file_.Run("CREATE TRIGGER Stop BEFORE INSERT ON DirTab WHEN NEW.Directory = 'BAD' "
              "BEGIN SELECT RAISE(ROLLBACK, 'stop'); END");
    EXPECT_EQ(DatabaseErrorOf([&] {
                  store_.InOneTransaction([&] {
                      store_.AddDirectory("MARCH");
                      store_.AddDirectory("BAD");
                  });
              }),
              "DirTab takes no new row: stop.");
    store_.AddDirectory("JUNE");
    EXPECT_EQ(Directories(), Lines{"JUNE"});
}

TEST_F(Transactions, ThatCannotBeStoredAreTakenBack) {
    RawDatabase reader(file_.Path());
    reader.Run("BEGIN");
    reader.Rows("SELECT * FROM DirTab"); // its lock for reading keeps the change out of the file
    EXPECT_EQ(
        DatabaseErrorOf([&] { store_.InOneTransaction([&] { store_.AddDirectory("MARCH"); }); }),
        "The change cannot be stored: another program is using the database. Close that "
        "program and try again.");
    reader.Run("COMMIT");
    EXPECT_EQ(Directories(), Lines{});
    store_.AddDirectory("JUNE");
    EXPECT_EQ(Directories(), Lines{"JUNE"});
}

TEST_F(Transactions, FailWhileAnotherProgramHoldsALock) {
    RawDatabase other(file_.Path());
    other.Run("BEGIN IMMEDIATE");
    bool ran = false;
    EXPECT_EQ(DatabaseErrorOf([&] { store_.InOneTransaction([&] { ran = true; }); }),
              "The database takes no change: another program is using the database. Close that "
              "program and try again.");
    EXPECT_FALSE(ran);
    other.Run("COMMIT");
    store_.InOneTransaction([&] { ran = true; });
    EXPECT_TRUE(ran);
}

} // namespace
} // namespace tarn
