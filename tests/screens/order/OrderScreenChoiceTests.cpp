// What is chosen for an order: how it is typed, refused and kept.

#include "screens/order/OrderScreenTesting.h"
#include "store/TestDatabase.h"

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

struct OrderScreenChoices : OrderScreenTest {
    void OpenQuick() {
        Add(168, 120);
        Keep(0, {Roll(144, "12ft")});
        OpenCompared();
    }
    const OrderRequest& Kept() { return open.Now.Orders.at(0); }
};

TEST_F(OrderScreenChoices, AreThoseThatAreKept) {
    Add(168, 120);
    OrderRequest& request = Keep(0, {{162, "Shop", "13.5ft", 18.5}});
    request.Lays = {Lay::Cross};
    request.TrimAlong = 3;
    request.MostParts = 4;
    request.JoinRooms = true;
    request.Pattern = {18, 24, true};
    request.PatternDrift = 2.5;
    Open();
    EXPECT_EQ(Cell(Rolls(), 0, 0), "13.5ft");
    EXPECT_EQ(Cell(Rolls(), 0, 1), "Shop");
    EXPECT_EQ(Cell(Rolls(), 0, 2), "18.5");
    EXPECT_EQ(Rolls().rowCount(), 2) << "and an empty row for another";
    EXPECT_FALSE(Control<QCheckBox>(Controls::orderDownLay).isChecked());
    EXPECT_TRUE(Control<QCheckBox>(Controls::orderCrossLay).isChecked());
    EXPECT_EQ(FromQt(Field(Controls::orderTrimAlong).text()), "3in");
    EXPECT_EQ(FromQt(Control<QComboBox>(Controls::orderParting).currentText()), "4");
    EXPECT_TRUE(Control<QCheckBox>(Controls::orderJoinRooms).isChecked());
    EXPECT_EQ(FromQt(Field(Controls::orderPatternAcross).text()), "18in");
    EXPECT_TRUE(Control<QCheckBox>(Controls::orderHalfDrop).isChecked());
    EXPECT_EQ(FromQt(Field(Controls::orderPatternDrift).text()), "2.5");
    EXPECT_FALSE(open.HasUnsavedChanges());
    EXPECT_EQ(LabelText(Controls::orderNote), "");
}

TEST_F(OrderScreenChoices, AreTypedIntoEveryField) {
    OpenQuick();
    FillRoll(0, 2, "18.50");
    FillRoll(1, 0, "366cm");
    FillRoll(1, 1, "Depot");
    Click(Control<QCheckBox>(Controls::orderCrossLay));
    Fill(Controls::orderSelvage, "1");
    Fill(Controls::orderStep, "1ft");
    Fill(Controls::orderTrimAlong, "3in");
    Fill(Controls::orderTrimAcross, "2.5cm");
    QTest::keyClick(&Control(Controls::orderParting), Qt::Key_Down);
    Fill(Controls::orderShortestPart, "2'6\"");
    Click(Control<QCheckBox>(Controls::orderJoinRooms));
    Fill(Controls::orderPatternAcross, "18");
    Fill(Controls::orderPatternAlong, "24");
    Click(Control<QCheckBox>(Controls::orderHalfDrop));
    Fill(Controls::orderPatternDrift, "0.5");
    Fill(Controls::orderSeconds, "0.01");
    const OrderRequest expected{Units::Imperial,
                                {{144, "", "12ft", 18.5}, {366 / 2.54, "Depot", "366cm", {}}},
                                {Lay::Down, Lay::Cross},
                                1,
                                3,
                                1,
                                2,
                                30,
                                true,
                                {18, 24, true},
                                0.5,
                                12,
                                0.01};
    EXPECT_EQ(Kept(), expected);
    Click(Button(Controls::compare));
    WaitFor("Compared.");
    EXPECT_EQ(Table().rowCount(), 4);
}

TEST_F(OrderScreenChoices, ThatChangeMakeTheComparisonOutOfDateUntilTheyAreAsBefore) {
    OpenQuick();
    Fill(Controls::orderTrimAlong, "3");
    EXPECT_EQ(State(), OutOfDateText);
    EXPECT_FALSE(Button(Controls::printOrder).isEnabled()) << "it would have the former trim";
    EXPECT_FALSE(Button(Controls::saveOrderAs).isEnabled());
    Press(*form, Qt::Key_P, Qt::ControlModifier);
    EXPECT_THAT(printer.Orders, IsEmpty());
    EXPECT_TRUE(open.HasUnsavedOrders());
    Fill(Controls::orderTrimAlong, "");
    EXPECT_EQ(State(), "Compared.") << "an empty field is what is usual";
    EXPECT_TRUE(Button(Controls::printOrder).isEnabled());
    EXPECT_FALSE(open.HasUnsavedChanges());
    Fill(Controls::orderTrimAlong, "3");
    Press(*form, Qt::Key_Return);
    WaitFor("Compared.");
    EXPECT_EQ(Table().rowCount(), 1);
    EXPECT_TRUE(Button(Controls::printOrder).isEnabled());
}

TEST_F(OrderScreenChoices, ThatChangeEndTheComparisonThatIsBeingMade) {
    OpenEndless();
    Fill(Controls::orderTrimAlong, "4");
    EXPECT_EQ(State(), OutOfDateText);
    WaitUntil([this] { return !Button(Controls::stopComparing).isEnabled(); });
    EXPECT_EQ(State(), OutOfDateText);
    EXPECT_EQ(Table().rowCount(), 1) << "what was found stays in sight";
    EXPECT_FALSE(Button(Controls::printOrder).isEnabled());
}

TEST_F(OrderScreenChoices, AreInTheDraftAndSavedWithTheProject) {
    const TestDatabase file;
    file.AddProject("MARCH", "MAPLE STREET 9", 5, 2);
    store = file.Open();
    const LoadedProject loaded = store.Load("MAPLE STREET 9");
    open.Now = open.Saved = loaded.Value;
    open.Read = loaded.Mark;
    Open();
    Fill(Controls::orderSeconds, "0");
    drafts.Flush();
    ASSERT_EQ(NewRun().Of("MAPLE STREET 9").size(), 1U);
    EXPECT_EQ(NewRun().Of("MAPLE STREET 9")[0].Record.Content.Orders, open.Now.Orders);
    Fill(Controls::orderSeconds, "0.5");
    Press(*form, Qt::Key_Escape);
    EXPECT_EQ(NewRun().Of("MAPLE STREET 9")[0].Record.Content.Orders->at(0).Seconds, 0.5)
        << "at once when the screen is left";
    Press(*form, Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(boxes.Messages, ElementsAre("Data is saved"));
    EXPECT_FALSE(open.HasUnsavedChanges());
    EXPECT_EQ(store.Load("MAPLE STREET 9").Value.Orders, open.Now.Orders);
    EXPECT_THAT(NewRun().Of("MAPLE STREET 9"), IsEmpty());
}

TEST_F(OrderScreenChoices, ThatCannotBeTakenStandInTheFieldsAgainAndInTheDraft) {
    Add(300, 400, 2);
    Keep(2, {Roll(144, "12ft")});
    OpenQuick();
    Fill(Controls::orderStep, "9,5");
    FillRoll(0, 2, "18,50");
    TypeRoll(1, 1, "Fair");
    Click(Button(Controls::leaveOrder));
    form.reset();
    ASSERT_EQ(NewRun().Of("MAPLE STREET 9").size(), 1U);
    EXPECT_EQ(NewRun().Of("MAPLE STREET 9")[0].Record.Content.TypedOrders, open.TypedOrders);
    Open();
    EXPECT_EQ(FromQt(Field(Controls::orderStep).text()), "9,5");
    EXPECT_EQ(Cell(Rolls(), 0, 2), "18,50");
    EXPECT_EQ(Cell(Rolls(), 1, 1), "Fair");
    EXPECT_THAT(Refusal(), HasSubstr("18,50"));
    EXPECT_EQ(Table().rowCount(), 0);
    QTest::keyClick(&Control(Controls::orderCarpet), Qt::Key_Down);
    EXPECT_EQ(FromQt(Field(Controls::orderStep).text()), "3in") << "another carpet's own";
    EXPECT_EQ(Refusal(), "");
    QTest::keyClick(&Control(Controls::orderCarpet), Qt::Key_Up);
    EXPECT_EQ(FromQt(Field(Controls::orderStep).text()), "9,5");
    Fill(Controls::orderStep, "8");
    FillRoll(0, 2, "18.50");
    FillRoll(1, 0, "15ft");
    EXPECT_EQ(Refusal(), "");
    EXPECT_TRUE(open.TypedOrders.empty());
    EXPECT_EQ(open.Now.Orders.at(0).Step, 8);
}

TEST_F(OrderScreenChoices, ThatCannotBeSavedStayAsTheyAre) {
    OpenQuick();
    Fill(Controls::orderTrimAlong, "3");
    Press(*form, Qt::Key_S, Qt::ControlModifier);
    EXPECT_THAT(boxes.Messages, ElementsAre(HasSubstr("The project could not be saved.")));
    EXPECT_TRUE(open.HasUnsavedOrders());
    EXPECT_EQ(FromQt(Field(Controls::orderTrimAlong).text()), "3");
}

TEST_F(OrderScreenChoices, OfOtherUnitsAreTold) {
    Add(300, 400);
    Keep(0, {Roll(144, "12ft")});
    const auto stored = open.Saved.Orders;
    open.Shown = Units::Metric;
    Open();
    EXPECT_EQ(LabelText(Controls::orderNote),
              "The request that is kept for this carpet is in feet and inches and is not used. "
              "What you change takes its place.");
    EXPECT_EQ(Cell(Rolls(), 0, 0), "183cm");
    EXPECT_EQ(open.Now.Orders, stored);
    Fill(Controls::orderTrimAlong, "5");
    EXPECT_EQ(LabelText(Controls::orderNote), "");
    EXPECT_EQ(Kept().In, Units::Metric);
    EXPECT_EQ(Kept().TrimAlong, 5);
    Fill(Controls::orderTrimAlong, "0");
    EXPECT_EQ(open.Now.Orders, stored) << "nothing is chosen any more";
}

TEST_F(OrderScreenChoices, AreRefusedUnderTheFieldsWithTheFocusWhereTheFaultIs) {
    struct Case {
        const char* Name;
        const char* Text;
        const char* Reason;
    };
    const char* const pattern = "give it, and the rooms, in the units of the pattern.";
    OpenQuick();
    for (const Case& each : {Case{Controls::orderSelvage, "7in", "The selvage must be between"},
                             {Controls::orderStep, "0", "The step must be between"},
                             {Controls::orderTrimAlong, "3 yd", "The trim along \"3 yd\": write"},
                             {Controls::orderTrimAcross, "25", "The trim across must be between"},
                             {Controls::orderShortestPart, "x", "The shortest part \"x\": write"},
                             {Controls::orderPatternAcross, "1.5", pattern},
                             {Controls::orderPatternAlong, "1cm", pattern},
                             {Controls::orderPatternDrift, "11", "The pattern drift must be"},
                             {Controls::orderSeconds, "soon", "The search may take"}}) {
        const QString before = Field(each.Name).text();
        Fill(each.Name, each.Text);
        EXPECT_EQ(Refusal(), "") << "nobody is interrupted while typing";
        Click(Button(Controls::compare));
        EXPECT_THAT(Refusal(), HasSubstr(each.Reason));
        EXPECT_TRUE(Field(each.Name).hasFocus()) << each.Name;
        EXPECT_EQ(State(), OutOfDateText);
        EXPECT_EQ(FromQt(Field(each.Name).text()), each.Text) << "what was typed is still there";
        Fill(each.Name, FromQt(before));
        EXPECT_EQ(Refusal(), "");
    }
    EXPECT_FALSE(open.HasUnsavedChanges()) << "what is refused is not kept";
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(OrderScreenChoices, AreRefusedWhenAFieldIsLeftWithoutHoldingAnybodyUp) {
    OpenQuick();
    Fill(Controls::orderSelvage, "wide");
    Press(*form, Qt::Key_Tab);
    EXPECT_THAT(Refusal(), HasSubstr("The selvage \"wide\""));
    EXPECT_TRUE(Field(Controls::orderStep).hasFocus());
}

TEST_F(OrderScreenChoices, OfTicksAreRefusedWhereTheyStand) {
    OpenQuick();
    Click(Control<QCheckBox>(Controls::orderHalfDrop));
    Click(Button(Controls::compare));
    EXPECT_EQ(Refusal(), "A half drop needs a pattern repeat along.");
    EXPECT_TRUE(Control(Controls::orderHalfDrop).hasFocus());
    Click(Control<QCheckBox>(Controls::orderHalfDrop));
    Click(Control<QCheckBox>(Controls::orderDownLay));
    Click(Button(Controls::compare));
    EXPECT_EQ(Refusal(), "The lay must be down, cross or both.");
    EXPECT_TRUE(Control(Controls::orderDownLay).hasFocus());
}

TEST_F(OrderScreenChoices, AreShownFromBehindTheOtherPartsWhenTheyAreRefused) {
    Add(168, 120);
    Keep(0, {Roll(144, "12ft")});
    Open(std::nullopt, 800, 600);
    WaitFor("Compared.");
    auto& tabs = Control<QTabBar>(Controls::orderParts);
    tabs.setCurrentIndex(0);
    Fill(Controls::orderSelvage, "wide");
    tabs.setCurrentIndex(2);
    Click(Button(Controls::compare));
    EXPECT_EQ(tabs.currentIndex(), 0);
    EXPECT_TRUE(Field(Controls::orderSelvage).isVisible());
    EXPECT_TRUE(Field(Controls::orderSelvage).hasFocus());
}

TEST_F(OrderScreenChoices, OfRollsAreRefusedInTheirCell) {
    OpenQuick();
    FillRoll(1, 0, "twelve");
    EXPECT_EQ(Refusal(), "The roll \"twelve\": write the length as 12ft6in, 18in, 366cm or 3.66m.");
    Click(Button(Controls::compare));
    EXPECT_TRUE(Rolls().hasFocus());
    EXPECT_EQ(Rolls().currentRow(), 1);
    EXPECT_EQ(Rolls().currentColumn(), 0);
    FillRoll(1, 0, "15ft");
    EXPECT_EQ(Refusal(), "");
    FillRoll(0, 2, "18,50");
    Click(Button(Controls::compare));
    EXPECT_EQ(Refusal(),
              "The price \"18,50\" of the roll 12ft: a comma is not taken. Write it with "
              "a point, as 18.50.");
    EXPECT_EQ(Rolls().currentRow(), 0);
    EXPECT_EQ(Rolls().currentColumn(), 2);
}

TEST_F(OrderScreenChoices, OfRollsAreAddedInTheLastRowAndTakenAway) {
    OpenQuick();
    for (int row = 1; row < static_cast<int>(MostRolls); ++row) {
        FillRoll(row, 0, "12ft");
    }
    EXPECT_EQ(Rolls().rowCount(), static_cast<int>(MostRolls)) << "there may be no more";
    EXPECT_EQ(Kept().Rolls.size(), MostRolls);
    Rolls().setCurrentCell(0, 0);
    Focus(Rolls());
    Press(*form, Qt::Key_Delete);
    EXPECT_EQ(Kept().Rolls.size(), MostRolls - 1);
    EXPECT_EQ(Rolls().rowCount(), static_cast<int>(MostRolls));
    Click(Button(Controls::removeRoll));
    EXPECT_EQ(Kept().Rolls.size(), MostRolls - 2);
    while (!Cell(Rolls(), 0, 0).empty()) {
        Rolls().setCurrentCell(0, 0);
        Click(Button(Controls::removeRoll));
    }
    EXPECT_EQ(Rolls().rowCount(), 1);
    Click(Button(Controls::removeRoll));
    EXPECT_EQ(Rolls().rowCount(), 1) << "the empty row stays";
    EXPECT_EQ(Refusal(), "There is no roll to order from: name its width.");
}

TEST_F(OrderScreenChoices, OfRollsCountWhileTheyAreStillBeingTyped) {
    OpenQuick();
    TypeRoll(1, 0, "15ft");
    Press(*form, Qt::Key_M, Qt::AltModifier);
    WaitUntil([this] { return Table().rowCount() == 2; });
    EXPECT_EQ(Kept().Rolls.size(), 2U);
    FillRoll(1, 0, "14ft");
    Click(Button(Controls::compare));
    WaitFor("Compared.");
    TypeRoll(1, 0, "13ft");
    Press(*form, Qt::Key_B, Qt::AltModifier);
    EXPECT_EQ(Kept().Rolls[1].AsTyped, "13ft") << "leaving loses nothing";
}

TEST_F(OrderScreenChoices, OfRollsHoldNoTextThatMayNotBeKept) {
    OpenQuick();
    Rolls().item(0, 1)->setText(QStringLiteral("a\nb\tc\u0001") + QString(100, QLatin1Char('x')));
    const std::string name = Cell(Rolls(), 0, 1);
    EXPECT_EQ(name.substr(0, 6), "a b cx");
    EXPECT_EQ(name.size(), 60U);
}

TEST_F(OrderScreenChoices, TellHowAPatternIsMeasuredWhereThereIsOne) {
    OpenQuick();
    EXPECT_EQ(LabelText(Controls::orderPatternHint), "");
    Fill(Controls::orderPatternAlong, "24");
    EXPECT_NE(LabelText(Controls::orderPatternHint), "");
    Fill(Controls::orderPatternAlong, "");
    EXPECT_EQ(LabelText(Controls::orderPatternHint), "");
    Click(Control<QCheckBox>(Controls::orderHalfDrop));
    EXPECT_NE(LabelText(Controls::orderPatternHint), "");
}

TEST_F(OrderScreenChoices, MoveNothingWhenTheyAreRefused) {
    for (const int width : {800, 1366, 1920}) {
        SCOPED_TRACE(width);
        Add(168, 120);
        Keep(0, {Roll(144, "12ft")});
        Open(std::nullopt, width, width == 800 ? 600 : 768);
        WaitFor("Compared.");
        Control<QTabBar>(Controls::orderParts).setCurrentIndex(0);
        QCoreApplication::processEvents();
        const QRect rolls = Rolls().geometry();
        const QRect step = Field(Controls::orderStep).geometry();
        Fill(Controls::orderStep, "9,5");
        Press(*form, Qt::Key_Tab);
        QCoreApplication::processEvents();
        EXPECT_NE(Refusal(), "");
        EXPECT_EQ(Rolls().geometry(), rolls);
        EXPECT_EQ(Field(Controls::orderStep).geometry(), step);
        open.TypedOrders.clear();
    }
}

TEST_F(OrderScreenChoices, ShowWhatIsUsualWhereNothingIsTyped) {
    OpenQuick();
    const auto usual = [this](const char* name) { return FromQt(Field(name).placeholderText()); };
    EXPECT_EQ(usual(Controls::orderShortestPart), "3ft");
    EXPECT_EQ(usual(Controls::orderStep), "3in");
    EXPECT_EQ(usual(Controls::orderPatternDrift), "0");
    Fill(Controls::orderPatternAlong, "24");
    EXPECT_EQ(usual(Controls::orderPatternDrift), "1") << "with a repeat along";
    EXPECT_EQ(Kept().PatternDrift, 1);
}

} // namespace
} // namespace tarn
