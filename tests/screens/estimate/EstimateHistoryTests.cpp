#include "screens/estimate/EstimateHistory.h"

#include <gtest/gtest.h>

#include <string>

namespace tarn {
namespace {

ShownEstimate Named(const std::string& name) {
    ShownEstimate shown;
    shown.Value.ProjectName = name;
    shown.Picture.WriteLine(name);
    return shown;
}

std::string NameOf(const std::optional<ShownEstimate>& shown) {
    if (!shown) {
        return "";
    }
    EXPECT_EQ(shown->Picture, Named(shown->Value.ProjectName).Picture);
    return shown->Value.ProjectName;
}

TEST(EstimateHistory, HasNothingAtFirst) {
    EstimateHistory history;
    EXPECT_FALSE(history.CanUndo());
    EXPECT_FALSE(history.CanRedo());
    EXPECT_EQ(NameOf(history.Undo(Named("now"))), "");
    EXPECT_EQ(NameOf(history.Redo(Named("now"))), "");
    EXPECT_FALSE(history.CanRedo()) << "nothing was taken back";
}

TEST(EstimateHistory, TakesStepsBackAndDoesThemAgain) {
    EstimateHistory history;
    history.Add(Named("A"));
    history.Add(Named("B"));
    EXPECT_EQ(NameOf(history.Undo(Named("C"))), "B");
    EXPECT_EQ(NameOf(history.Undo(Named("B"))), "A");
    EXPECT_FALSE(history.CanUndo());
    EXPECT_EQ(NameOf(history.Redo(Named("A with a list"))), "B");
    EXPECT_EQ(NameOf(history.Undo(Named("B"))), "A with a list") << "as it stood when it was left";
    EXPECT_EQ(NameOf(history.Redo(Named("A"))), "B");
    EXPECT_EQ(NameOf(history.Redo(Named("B"))), "C");
    EXPECT_FALSE(history.CanRedo());
}

TEST(EstimateHistory, ForgetsWhatWasTakenBackAtTheNextStep) {
    EstimateHistory history;
    history.Add(Named("A"));
    history.Undo(Named("B"));
    EXPECT_TRUE(history.CanRedo());
    history.Add(Named("A"));
    EXPECT_FALSE(history.CanRedo());
    EXPECT_TRUE(history.CanUndo());
    history.Clear();
    EXPECT_FALSE(history.CanUndo());
}

} // namespace
} // namespace tarn
