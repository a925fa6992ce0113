#include "store/Deletions.h"
#include "store/Projects.h"
#include "store/Schema.h"
#include "store/SharedRows.h"
#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::RawDatabase;
using testing::ShortWait;
using testing::TestDatabase;

using Lines = std::vector<std::string>;

/// Records the queries, and refuses one of them.
struct WatchedDatabase : Database {
    explicit WatchedDatabase(std::unique_ptr<Database> inner)
        : Inner(std::move(inner)) {}

    std::unique_ptr<Recordset> OpenDynaset(std::string_view query) override {
        Record(query);
        return Inner->OpenDynaset(query);
    }
    std::unique_ptr<Recordset> OpenSnapshot(std::string_view query) override {
        Record(query);
        return Inner->OpenSnapshot(query);
    }
    void Begin() override { Inner->Begin(); }
    void Commit() override { Inner->Commit(); }
    void Rollback() noexcept override { Inner->Rollback(); }

    void Record(std::string_view query) {
        Queries.emplace_back(query);
        if (query == Failing) {
            throw DatabaseError("Not now.");
        }
    }

    std::unique_ptr<Database> Inner;
    Lines Queries;
    std::string Failing;
};

class Deletions : public ::testing::Test {
  protected:
    Deletions() {
        file_.AddDirectory("KEEP");
        AddFullProject("KEEP", "KEPT", 2);
        file_.OpenInto(state_, ShortWait);
    }

    /// A project with its sheet, two rooms, and a row in every other table of the sheet.
    void AddFullProject(const std::string& directory, const std::string& project, int number) {
        file_.AddProject(directory, project, number, 2);
        for (const std::string_view table : SheetTables) {
            if (table != MainTab && table != InputData) {
                const std::string value = std::to_string(number);
                file_.Run("INSERT INTO " + std::string(table) + " VALUES (" + value + ")");
            }
        }
    }

    /// Sheet numbers in use, table by table, in the order of deletion.
    Lines NumbersInUse() const {
        Lines numbers;
        RawDatabase raw(file_.Path());
        for (const std::string_view table : SheetTables) {
            const Lines in = raw.Rows("SELECT DISTINCT TabIndex FROM " + std::string(table) +
                                      " ORDER BY TabIndex");
            std::string line(table);
            for (const std::string& number : in) {
                line += " " + number;
            }
            numbers.push_back(line);
        }
        return numbers;
    }

    /// NumbersInUse when every table holds just these.
    static Lines EveryTableHolds(const std::string& numbers) {
        Lines lines;
        for (const std::string_view table : SheetTables) {
            lines.push_back(std::string(table) + numbers);
        }
        return lines;
    }

    TestDatabase file_;
    SharedState state_;
};

TEST_F(Deletions, ThereAreTenTablesInAFixedOrder) {
    EXPECT_EQ((Lines(SheetTables.begin(), SheetTables.end())),
              (Lines{"AFillTab", "AngleMCut", "AInputData", "ESTTab", "FillCut", "InputData",
                     "MasterCut", "SAFill", "SFillCut", "MainTab"}));
}

TEST_F(Deletions, DeleteAllRowsEmptiesARecordsetFromItsCurrentRowOn) {
    file_.AddDirectory("B");
    file_.AddDirectory("C");
    const auto rows = state_.CurDB->OpenDynaset("Select * from DirTab");
    rows->MoveNext();
    EXPECT_TRUE(DeleteAllRows(*rows));
    EXPECT_TRUE(rows->AtEnd());
    EXPECT_EQ(file_.Rows("SELECT Directory FROM DirTab"), Lines{"KEEP"});
}

TEST_F(Deletions, DeleteAllRowsAcceptsAnEmptyRecordset) {
    EXPECT_TRUE(
        DeleteAllRows(*state_.CurDB->OpenDynaset("Select * from DirTab where Directory=\"X\"")));
}

TEST_F(Deletions, DeleteTabRowsDeletesOneSheetsRowsOfOneTable) {
    AddFullProject("KEEP", "OTHER", 5);
    EXPECT_FALSE(DeleteTabRows(state_, "FillCut", 5));
    EXPECT_EQ(file_.Rows("SELECT TabIndex FROM FillCut"), Lines{"2"});
    EXPECT_EQ(file_.Rows("SELECT TabIndex FROM SFillCut"), (Lines{"2", "5"}));
}

TEST_F(Deletions, DeleteTabRowsIgnoresErrors) {
    EXPECT_FALSE(DeleteTabRows(state_, "Nowhere", 5));
    RawDatabase other(file_.Path());
    other.Run("BEGIN IMMEDIATE");
    EXPECT_FALSE(DeleteTabRows(state_, "FillCut", 2));
    other.Run("COMMIT");
    EXPECT_EQ(file_.Rows("SELECT TabIndex FROM FillCut"), Lines{"2"});
}

TEST_F(Deletions, DeleteProjDataEmptiesAllTenTablesForOneSheet) {
    AddFullProject("KEEP", "OTHER", 5);
    ASSERT_EQ(NumbersInUse(), EveryTableHolds(" 2 5"));
    EXPECT_FALSE(DeleteProjData(state_, 5));
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
}

TEST_F(Deletions, DeleteProjDataPassesOverAMissingTable) {
    file_.Run("DROP TABLE AFillTab");
    DeleteProjData(state_, 2);
    EXPECT_EQ(file_.Rows("SELECT * FROM MainTab"), Lines{});
    EXPECT_EQ(file_.Rows("SELECT * FROM AngleMCut"), Lines{});
}

TEST_F(Deletions, DeletingADirectoryDeletesItsProjectsAndAllTheirData) {
    file_.AddDirectory("GONE");
    AddFullProject("GONE", "A", 5);
    AddFullProject("GONE", "B", 6);
    file_.Run("INSERT INTO ProjTab VALUES ('GONE', 'WITHOUT SHEET', 0)");
    EXPECT_TRUE(DeleteDirData(state_, "GONE")) << state_.DatabaseFailure;
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
    EXPECT_EQ(file_.Rows("SELECT ProjName FROM ProjTab ORDER BY rowid"), Lines{"KEPT"});
    EXPECT_EQ(file_.Rows("SELECT Directory FROM DirTab"), Lines{"KEEP"});
}

TEST_F(Deletions, DeletingADirectoryThatDoesNotExistDeletesNothing) {
    EXPECT_TRUE(DeleteDirData(state_, "NOWHERE"));
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
    EXPECT_EQ(file_.Rows("SELECT Directory FROM DirTab"), Lines{"KEEP"});
}

TEST_F(Deletions, ProjectsWithAnyNameAreDeletedAlone) {
    const Lines names = {"DIR", "PROJNAME", "TABINDEX", "O'HARA", "100%", "A;B", "КВАРТИРА"};
    int number = 10;
    for (const std::string& name : names) {
        file_.AddProject("KEEP", name, number++);
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_TRUE(DeleteProjectData(state_, names[i])) << state_.DatabaseFailure;
        Lines left = {"KEPT"};
        left.insert(left.end(), names.begin() + static_cast<long>(i) + 1, names.end());
        EXPECT_EQ(file_.Rows("SELECT ProjName FROM ProjTab ORDER BY rowid"), left);
        EXPECT_EQ(file_.Rows("SELECT ProjName FROM MainTab ORDER BY rowid"), left);
    }
}

TEST_F(Deletions, DirectoriesWithAnyNameAreDeletedAlone) {
    const Lines names = {"DIR", "PROJNAME", "TABINDEX", "O'HARA", "100%", "A;B", "КВАРТИРА"};
    int number = 10;
    for (const std::string& name : names) {
        file_.AddDirectory(name);
        file_.AddProject(name, std::string("P").append(std::to_string(number)), number);
        ++number;
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_TRUE(DeleteDirData(state_, names[i])) << state_.DatabaseFailure;
        Lines left = {"KEEP"};
        left.insert(left.end(), names.begin() + static_cast<long>(i) + 1, names.end());
        EXPECT_EQ(file_.Rows("SELECT Directory FROM DirTab"), left);
        EXPECT_EQ(file_.Rows("SELECT Dir FROM ProjTab ORDER BY rowid"), left);
        EXPECT_EQ(file_.Rows("SELECT count(*) FROM MainTab"), Lines{std::to_string(left.size())});
    }
}

TEST_F(Deletions, ADirectoryWithADoubleQuoteCannotBeDeletedAndNoRowChanges) {
    file_.AddDirectory("A\"B");
    AddFullProject("A\"B", "P", 5);
    EXPECT_FALSE(DeleteDirData(state_, "A\"B"));
    EXPECT_NE(state_.DatabaseFailure.find("A\"B"), std::string::npos);
    EXPECT_FALSE(DeleteDirData(state_, "X\" or \"1\"=\"1"));
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2 5"));
    EXPECT_EQ(file_.Rows("SELECT Directory FROM DirTab"), (Lines{"KEEP", "A\"B"}));
}

TEST_F(Deletions, DeletingAProjectDeletesItsRowAndAllItsData) {
    AddFullProject("KEEP", "GONE", 5);
    EXPECT_TRUE(DeleteProjectData(state_, "GONE")) << state_.DatabaseFailure;
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
    EXPECT_EQ(file_.Rows("SELECT Dir, ProjName FROM ProjTab"), Lines{"KEEP|KEPT"});
}

TEST_F(Deletions, DeletingAProjectDeletesEverySheetOfItsName) {
    AddFullProject("KEEP", "GONE", 5);
    AddFullProject("KEEP", "GONE", 6);
    EXPECT_TRUE(DeleteProjectData(state_, "GONE"));
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
}

TEST_F(Deletions, TheSharedProjectRowsSeeADeletion) {
    AddFullProject("KEEP", "GONE", 5);
    RowsOf(state_, SharedRows::Projects).MoveNext();
    EXPECT_TRUE(DeleteProjectData(state_, "GONE"));
    Recordset& rows = RowsOf(state_, SharedRows::Projects);
    EXPECT_EQ(rows.Field("ProjName"), FieldValue(std::string("KEPT")))
        << "it stands at its first row";
    rows.MoveNext();
    EXPECT_TRUE(rows.AtEnd());
}

TEST_F(Deletions, StopAtTheFirstQueryThatFailsAndSayWhy) {
    file_.AddDirectory("GONE");
    AddFullProject("GONE", "A", 5);
    file_.Run(
        "CREATE TRIGGER Stop BEFORE DELETE ON ProjTab BEGIN SELECT RAISE(ABORT, 'stop'); END");
    EXPECT_FALSE(DeleteDirData(state_, "GONE"));
    EXPECT_EQ(state_.DatabaseFailure, "ProjTab cannot be deleted from: stop.");
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2")) << "what was deleted before stays deleted";
    EXPECT_EQ(file_.Rows("SELECT Directory FROM DirTab"), (Lines{"KEEP", "GONE"}));

    state_.DatabaseFailure.clear();
    EXPECT_FALSE(DeleteProjectData(state_, "KEPT"));
    EXPECT_EQ(state_.DatabaseFailure, "ProjTab cannot be deleted from: stop.");
}

TEST_F(Deletions, WaitForALockOnceAndBeforeTheFirstRow) {
    AddFullProject("KEEP", "OTHER", 5);
    RawDatabase other(file_.Path());
    other.Run("BEGIN IMMEDIATE");
    auto counting = std::make_unique<WatchedDatabase>(std::move(state_.CurDB));
    const WatchedDatabase& watched = *counting;
    state_.CurDB = std::move(counting);
    EXPECT_FALSE(DeleteDirData(state_, "KEEP"));
    EXPECT_NE(state_.DatabaseFailure.find("another program"), std::string::npos);
    EXPECT_FALSE(DeleteProjectData(state_, "OTHER"));
    EXPECT_NE(state_.DatabaseFailure.find("another program"), std::string::npos);
    EXPECT_EQ(watched.Queries, Lines{}) << "no table is asked for";
    other.Run("ROLLBACK");
    EXPECT_TRUE(DeleteProjectData(state_, "OTHER")) << state_.DatabaseFailure;
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
}

TEST_F(Deletions, AProjectIsDeletedWhetherTheSharedRowsReopenOrNot) {
    AddFullProject("KEEP", "GONE", 5);
    auto failing = std::make_unique<WatchedDatabase>(std::move(state_.CurDB));
    WatchedDatabase& watched = *failing;
    state_.CurDB = std::move(failing);
    watched.Failing = "SELECT * from ProjTab";
    EXPECT_TRUE(DeleteProjectData(state_, "GONE")) << state_.DatabaseFailure;
    EXPECT_EQ(watched.Queries.back(), watched.Failing);
    EXPECT_EQ(NumbersInUse(), EveryTableHolds(" 2"));
    EXPECT_EQ(file_.Rows("SELECT ProjName FROM ProjTab"), Lines{"KEPT"});
    watched.Failing.clear();
    EXPECT_EQ(RowsOf(state_, SharedRows::Projects).Field("ProjName"),
              FieldValue(std::string("KEPT")));
}

TEST_F(Deletions, ASheetWithoutANumberStopsTheDeletion) {
    file_.AddProject("KEEP", "ODD", 5);
    file_.Run("UPDATE MainTab SET TabIndex = NULL WHERE ProjName = 'ODD'");
    EXPECT_FALSE(DeleteProjectData(state_, "ODD"));
    EXPECT_EQ(file_.Rows("SELECT ProjName FROM ProjTab ORDER BY rowid"), (Lines{"KEPT", "ODD"}));
}

TEST_F(Deletions, FailWithoutADatabase) {
    state_.CurDB.reset();
    state_.DatabaseFailure = "It is missing.";
    EXPECT_FALSE(DeleteDirData(state_, "KEEP"));
    EXPECT_FALSE(DeleteProjectData(state_, "KEPT"));
    EXPECT_EQ(state_.DatabaseFailure, "It is missing.");
}

} // namespace
} // namespace tarn
