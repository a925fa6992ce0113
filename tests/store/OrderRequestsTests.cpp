// What is kept of the orders of a project.

#include "store/TestDatabase.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using namespace tarn::testing;

class OrderRequests : public ::testing::Test {
  protected:
    /// P is stored with two rooms under number 5.
    OrderRequests() {
        file_.AddProject("MARCH", "P", 5, 2);
        loaded_ = store_.Load("P");
        loaded_.Value.Orders[1] = Request(Units::Imperial, "12ft");
        loaded_.Value.Orders[7] = Request(Units::Metric, "366cm");
    }

    static OrderRequest Request(Units units, const char* roll) {
        OrderRequest request = DefaultOrderRequest(units);
        request.Rolls = {{units == Units::Metric ? 366.0 : 144.0, "Shop", roll, 18.5}};
        request.TrimAlong = 3;
        request.PatternDrift = 0;
        return request;
    }
    SaveResult Save(const std::optional<StoredMark>& read = std::nullopt) {
        return store_.Save(loaded_.Value, Units::Imperial, read);
    }
    Lines Tables() const {
        return file_.Rows("SELECT name FROM sqlite_master WHERE name LIKE 'OrderData%'");
    }
    Lines Stored() const {
        return file_.Rows(
            "SELECT TabIndex, Carpet, Metric FROM OrderData ORDER BY TabIndex, Carpet");
    }

    TestDatabase file_;
    ProjectStore store_ = file_.Open();
    LoadedProject loaded_;
};

TEST_F(OrderRequests, AreStoredWithTheProjectAndLoaded) {
    EXPECT_EQ(Tables(), Lines{});
    const SaveResult saved = Save();
    EXPECT_TRUE(saved.IsSaved());
    EXPECT_EQ(Stored(), (Lines{"5|2|0", "5|8|1"}));
    EXPECT_EQ(Tables(), (Lines{"OrderData", "OrderDataTabIndex"}));
    const LoadedProject again = store_.Load("P");
    EXPECT_EQ(again.Value.Orders, loaded_.Value.Orders);
    EXPECT_EQ(again.Findings, Lines{});
    EXPECT_EQ(again.Mark, saved.Mark);
}

TEST_F(OrderRequests, NeedNoTableWhileThereIsNone) {
    loaded_.Value.Orders.clear();
    Save();
    EXPECT_EQ(Tables(), Lines{});
}

TEST_F(OrderRequests, GoWhenTheProjectIsSavedWithoutThem) {
    Save();
    loaded_.Value.Orders.erase(1);
    Save();
    EXPECT_EQ(Stored(), Lines{"5|8|1"});
}

TEST_F(OrderRequests, ChangedMeanwhileStopASave) {
    const StoredMark read = store_.Load("P").Mark;
    TestDatabase& other = file_;
    Save();
    const SaveResult result = Save(read);
    EXPECT_EQ(result.What, SaveResult::Outcome::Changed);
    EXPECT_EQ(other.Rows("SELECT COUNT(*) FROM OrderData"), Lines{"2"});
}

TEST_F(OrderRequests, StayWithARenamedProjectAndGoWithADeletedOne) {
    Save();
    store_.RenameProject("P", "Q");
    EXPECT_EQ(store_.Load("Q").Value.Orders, loaded_.Value.Orders);
    store_.DeleteProject("Q");
    EXPECT_EQ(Stored(), Lines{});
}

TEST_F(OrderRequests, ThatCannotBeReadAreNamedAndLeftOut) {
    Save();
    file_.Run("UPDATE OrderData SET Request = '{' WHERE Carpet = 2");
    file_.Run("INSERT INTO OrderData SELECT TabIndex, 9, Metric, Request FROM OrderData WHERE "
              "Carpet = 8");
    file_.Run("INSERT INTO OrderData SELECT TabIndex, 'x', Metric, Request FROM OrderData WHERE "
              "Carpet = 8");
    file_.Run("INSERT INTO OrderData SELECT TabIndex, 3, NULL, Request FROM OrderData WHERE "
              "Carpet = 8");
    const LoadedProject loaded = store_.Load("P");
    EXPECT_EQ(loaded.Value.Orders.size(), 1U);
    EXPECT_TRUE(loaded.Value.Orders.contains(7));
    EXPECT_EQ(loaded.Findings, Lines{"Requests for orders that cannot be read, left out and "
                                     "dropped by SAVE: carpet 2, 3, 9, x."});
    store_.Save(loaded.Value, Units::Imperial);
    EXPECT_EQ(Stored(), Lines{"5|8|1"});
}

TEST_F(OrderRequests, AreStoredWholeWithTheRoomsOrNotAtAll) {
    Save();
    file_.Run(
        "CREATE TRIGGER keep BEFORE INSERT ON OrderData BEGIN SELECT RAISE(ABORT, 'no'); END");
    loaded_.Value.Orders.erase(1);
    loaded_.Value.Rooms.clear();
    EXPECT_NE(DatabaseErrorOf([this] { Save(); }), "");
    EXPECT_EQ(Stored(), (Lines{"5|2|0", "5|8|1"}));
    EXPECT_EQ(file_.Rows("SELECT COUNT(*) FROM InputData"), Lines{"2"});
}

} // namespace
} // namespace tarn
