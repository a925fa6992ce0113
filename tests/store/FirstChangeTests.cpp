#include "store/TestDatabase.h"

#include <gtest/gtest.h>

#include <functional>

namespace tarn {
namespace {

using namespace tarn::testing;

class BeforeTheFirstChange : public ::testing::Test {
  protected:
    BeforeTheFirstChange() {
        file_.AddDirectory("OLD");
        file_.AddProject("OLD", "P", 5, 1);
        store_.SetBeforeFirstChange([this] {
            ++times_;
            seen_ = file_.Open(ShortWait).Directories();
        });
    }

    TestDatabase file_;
    ProjectStore store_ = file_.Open(ShortWait);
    int times_ = 0;
    Lines seen_; ///< the directories that another store found when the action ran
};

TEST_F(BeforeTheFirstChange, TheActionSeesTheFileAsItWas) {
    store_.Directories();
    const LoadedProject loaded = store_.Load("P");
    EXPECT_EQ(times_, 0) << "reading is no change";
    store_.AddDirectory("NEW");
    EXPECT_EQ(times_, 1);
    EXPECT_EQ(seen_, Lines{"OLD"});
    store_.Save(loaded.Value, Units::Imperial);
    store_.DeleteDirectory("NEW");
    EXPECT_EQ(times_, 1) << "it runs once";
}

TEST_F(BeforeTheFirstChange, TheActionRunsBeforeAnyKindOfChange) {
    const Project project = store_.Load("P").Value;
    for (const auto& change : std::vector<std::function<void()>>{
             [&] { store_.AddDirectory("NEW"); }, [&] { store_.AddProject("OLD", "Q"); },
             [&] { store_.RenameDirectory("NEW", "NEWER"); },
             [&] { store_.RenameProject("Q", "R"); },
             [&] { store_.Save(project, Units::Imperial); },
             [&] { store_.InOneTransaction([&] { store_.AddDirectory("X"); }); },
             [&] { store_.DeleteProject("R"); }, [&] { store_.DeleteDirectory("OLD"); }}) {
        store_ = file_.Open(ShortWait);
        int times = 0;
        store_.SetBeforeFirstChange([&times] { ++times; });
        change();
        EXPECT_EQ(times, 1);
    }
}

TEST_F(BeforeTheFirstChange, TheActionGoesWithTheStore) {
    ProjectStore moved = std::move(store_);
    moved.AddDirectory("NEW");
    EXPECT_EQ(times_, 1);
}

TEST_F(BeforeTheFirstChange, NoTransactionRunsYet) {
    store_.SetBeforeFirstChange([this] {
        ++times_;
        RawDatabase other(file_.Path());
        other.Run("BEGIN EXCLUSIVE"); // ends the test when the file is locked
        other.Run("COMMIT");
    });
    store_.InOneTransaction([&] {
        store_.AddDirectory("NEW");
        EXPECT_EQ(times_, 1);
    });
    EXPECT_EQ(times_, 1);
}

TEST_F(BeforeTheFirstChange, TheActionMayUseTheStoreItself) {
    store_.SetBeforeFirstChange([this] { store_.AddDirectory("FIRST"); });
    store_.AddDirectory("SECOND");
    EXPECT_EQ(file_.Rows("SELECT Directory FROM DirTab ORDER BY rowid"),
              (Lines{"OLD", "FIRST", "SECOND"}));
}

TEST_F(BeforeTheFirstChange, AStoreForReadingNeverRunsTheAction) {
    ProjectStore store(file_.Path(), DatabaseAccess::ReadOnly);
    store.SetBeforeFirstChange([this] { ++times_; });
    EXPECT_THROW(store.AddDirectory("NEW"), DatabaseError);
    EXPECT_THROW(store.DeleteDirectory("OLD"), DatabaseError);
    EXPECT_EQ(times_, 0);
}

} // namespace
} // namespace tarn
