#include "app/Controls.h"
#include "app/Theme.h"
#include "estimate/EstimateScreenTesting.h"
#include "screens/ControlChecks.h"

#include <QScrollArea>
#include <QScrollBar>

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::ElementsAre;

struct ChoicePanels : EstimateScreenTest {
    std::vector<int> EnabledCarpets() {
        std::vector<int> enabled;
        for (int i = 0; i < 8; ++i) {
            if (Option(FromQt(IndexedName("Option1", i)).c_str()).isEnabled()) {
                enabled.push_back(i);
            }
        }
        return enabled;
    }
    QString CaptionAt(const char* name) { return CaptionOf(Control<QAbstractButton>(name)); }
    std::string LabelAt(const char* name) {
        return FromQt(Control<QLabel>(name).text().remove(QLatin1Char('&')));
    }
};

TEST_F(ChoicePanels, StandInTheMiddleOfTheScreenWhenItLoads) {
    Open({{200, 120}});
    EXPECT_TRUE(Panel().isVisible());
    const QPoint corner = Panel().mapTo(form.get(), QPoint(0, 0));
    EXPECT_EQ(corner.x(), (form->width() - Panel().width()) / 2);
    EXPECT_EQ(corner.y(), (form->height() - Panel().height()) / 2);
    EXPECT_TRUE(form->rect().contains(QRect(corner, Panel().size()))) << "on the least display";
    form->resize(1900, 1000);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return Panel().mapTo(form.get(), QPoint(0, 0)).x() == (1900 - Panel().width()) / 2;
    }));
}

TEST_F(ChoicePanels, OfferTheCarpetsWithRoomsAndChooseTheLowest) {
    Open({{10, 10, 4}, {10, 10, 9}, {10, 10, 2}});
    EXPECT_THAT(EnabledCarpets(), ElementsAre(2, 4));
    EXPECT_TRUE(Option("Option1(2)").isChecked());
    EXPECT_FALSE(Option("Option1(4)").isChecked());
    EXPECT_TRUE(Option("Option1(2)").hasFocus());
}

TEST_F(ChoicePanels, NeedACarpetRoom) {
    Open({{10, 10, 8}, {10, 10, 11}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return Button("Command2").isEnabled(); }));
    EXPECT_EQ(boxes.Messages, std::vector<std::string>{"There is not data in the database"});
    EXPECT_FALSE(Panel().isVisible());
    EXPECT_TRUE(Button("Command2").hasFocus());
    for (const char* name : {"Command3", "Command4", "Command5", "Command6", "Command7"}) {
        EXPECT_FALSE(Button(name).isEnabled()) << name;
    }
    Click(Button("Command2"));
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"menu returning"});
}

TEST_F(ChoicePanels, TellThatThereIsNoDataInFrontAndLeaveBackDisabledUntilThen) {
    bool inFront = false;
    bool enabled = true;
    boxes.OnMessage = [&] {
        for (const QWidget* widget : QApplication::allWidgets()) {
            if (widget->objectName() == QStringLiteral("Command2")) {
                inFront = widget->isVisible();
                enabled = widget->isEnabled();
            }
        }
    };
    Open({});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !boxes.Messages.empty(); }));
    EXPECT_TRUE(inFront);
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(Button("Command2").isEnabled());
}

TEST_F(ChoicePanels, ShowTheImperialCaptions) {
    Open({{10, 10}});
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(CaptionAt(FromQt(IndexedName("Option1", i)).c_str()),
                  QStringLiteral("CARPET - %1").arg(i + 1));
    }
    EXPECT_EQ(CaptionAt("Option1(11)"), QStringLiteral("CARPET WIDTH 6 FT."));
    EXPECT_EQ(CaptionAt("Option1(12)"), QStringLiteral("CARPET WIDTH 12 FT."));
    EXPECT_EQ(CaptionAt("Option1(13)"), QStringLiteral("CARPET WIDTH 13.5 FT."));
    EXPECT_EQ(CaptionAt("Option1(14)"), QStringLiteral("CARPET WIDTH 15 FT."));
    EXPECT_EQ(CaptionAt("Option1(15)"), QStringLiteral("CARPET WIDTH OTHER"));
    EXPECT_EQ(CaptionAt("Option2(0)"), QStringLiteral("DOWN LAY"));
    EXPECT_EQ(CaptionAt("Option2(1)"), QStringLiteral("CROSS LAY"));
    EXPECT_EQ(CaptionAt("Check1"), QStringLiteral("MATCH PATTERN"));
    EXPECT_EQ(CaptionAt("Command1(0)"), QStringLiteral("OK"));
    EXPECT_EQ(CaptionAt("Command1(1)"), QStringLiteral("CANCEL"));
    EXPECT_EQ(LabelAt("Label1(0)"), "FEET");
    for (const char* name : {"Label1(1)", "Label1(2)", "Label1(3)"}) {
        EXPECT_EQ(LabelAt(name), "INCHES") << name;
    }
    EXPECT_EQ(LabelAt("Label3(0)"), "WIDTH:");
    EXPECT_EQ(LabelAt("Label3(1)"), "LENGTH:");
    EXPECT_EQ(Box("Text1(0)").accessibleName(), QStringLiteral("FEET"));
    EXPECT_EQ(Box("Text2(1)").accessibleName(), QStringLiteral("LENGTH:"));
}

TEST_F(ChoicePanels, ShowTheMetricCaptions) {
    state.MetricFlag = 1;
    Open({{10, 10}});
    EXPECT_EQ(CaptionAt("Option1(11)"), QStringLiteral("CARPET WIDTH 183 CMS"));
    EXPECT_EQ(CaptionAt("Option1(12)"), QStringLiteral("CARPET WIDTH 366 CMS"));
    EXPECT_EQ(CaptionAt("Option1(13)"), QStringLiteral("CARPET WIDTH 411 CMS"));
    EXPECT_EQ(CaptionAt("Option1(14)"), QStringLiteral("CARPET WIDTH 457 CMS"));
    EXPECT_EQ(CaptionAt("Option1(15)"), QStringLiteral("CARPET WIDTH OTHER"));
    EXPECT_EQ(LabelAt("Label1(0)"), "METER");
    EXPECT_EQ(LabelAt("Label1(1)"), "CM");
    EXPECT_EQ(LabelAt("Label1(2)"), "CMS");
    EXPECT_EQ(LabelAt("Label1(3)"), "CMS");
}

TEST_F(ChoicePanels, BeginWithTheirDefaults) {
    Open({{10, 10}});
    EXPECT_TRUE(Option("Option1(12)").isChecked());
    EXPECT_EQ(ForeColor(Option("Option1(12)")), 2);
    for (const char* name : {"Option1(11)", "Option1(13)", "Option1(14)", "Option1(15)"}) {
        EXPECT_EQ(ForeColor(Option(name)), 0) << name;
        EXPECT_FALSE(Option(name).isChecked()) << name;
    }
    EXPECT_TRUE(Option("Option2(0)").isChecked());
    EXPECT_FALSE(Control<QCheckBox>("Check1").isChecked());
    for (const char* name : {"Text2(0)", "Text2(1)"}) {
        EXPECT_FALSE(Box(name).isEnabled()) << name;
        EXPECT_TRUE(Box(name).text().isEmpty()) << name;
    }
    for (const char* name : {"Text1(0)", "Text1(1)"}) {
        EXPECT_FALSE(Box(name).isVisible()) << name;
        EXPECT_TRUE(Box(name).text().isEmpty()) << name;
    }
}

TEST_F(ChoicePanels, TakeTheMarkOffAWidthWhenOneIsClicked) {
    for (const char* clicked : {"Option1(12)", "Option1(14)", "Option1(15)"}) {
        state.ObjNum = 0;
        Open({{10, 10}});
        Click(Option(clicked));
        for (const char* name :
             {"Option1(11)", "Option1(12)", "Option1(13)", "Option1(14)", "Option1(15)"}) {
            EXPECT_EQ(ForeColor(Option(name)), 0) << name << " after " << clicked;
        }
        EXPECT_TRUE(Option(clicked).isChecked());
    }
}

TEST_F(ChoicePanels, KeepTheMarkOfAWidthWhenACarpetIsClicked) {
    Open({{10, 10, 0}, {10, 10, 1}});
    Click(Option("Option1(1)"));
    EXPECT_EQ(ForeColor(Option("Option1(1)")), 0);
    EXPECT_EQ(ForeColor(Option("Option1(0)")), 0);
    EXPECT_EQ(ForeColor(Option("Option1(12)")), 2);
    EXPECT_FALSE(Option("Option1(0)").isChecked());
    EXPECT_TRUE(Option("Option1(12)").isChecked()) << "a group of its own";
    EXPECT_TRUE(Option("Option2(0)").isChecked());
}

TEST_F(ChoicePanels, ShowTheBoxesOfAFreeWidthOnlyForIt) {
    Open({{10, 10}});
    Click(Option("Option1(15)"));
    EXPECT_TRUE(Box("Text1(0)").isVisible());
    EXPECT_TRUE(Box("Text1(1)").isVisible());
    EXPECT_TRUE(Control("Label1(0)").isVisible());
    const QRect before = Option("Option1(15)").geometry();
    Click(Option("Option1(11)"));
    EXPECT_FALSE(Box("Text1(0)").isVisible());
    EXPECT_FALSE(Box("Text1(1)").isVisible());
    EXPECT_EQ(Option("Option1(15)").geometry(), before) << "nothing jumps";
}

TEST_F(ChoicePanels, ChooseAWidthByTheArrowKeysToo) {
    Open({{10, 10}});
    Focus(Option("Option1(14)"));
    Click(Option("Option1(14)"));
    Press(*form, Qt::Key_Down);
    EXPECT_TRUE(Option("Option1(15)").isChecked());
    EXPECT_TRUE(Box("Text1(0)").isVisible());
}

TEST_F(ChoicePanels, ShowAMetricFreeWidthInCentimetresAsItIsTyped) {
    state.MetricFlag = 1;
    Open({{10, 10}});
    Click(Option("Option1(15)"));
    EXPECT_EQ(LabelAt("Label4"), "");
    Type(Box("Text1(0)"), "8");
    EXPECT_EQ(LabelAt("Label4"), "= 244 CM");
    Type(Box("Text1(1)"), "6");
    EXPECT_EQ(LabelAt("Label4"), "= 259 CM");
    EXPECT_TRUE(Control("Label4").isVisible());
    EXPECT_GT(Control("Label4").mapTo(form.get(), QPoint()).y(),
              Box("Text1(0)").mapTo(form.get(), QPoint()).y());
    Type(Box("Text1(1)"), "'6");
    EXPECT_EQ(LabelAt("Label4"), "");
}

TEST_F(ChoicePanels, ShowNoCentimetresInFeetAndInches) {
    Open({{10, 10}});
    Click(Option("Option1(15)"));
    Type(Box("Text1(0)"), "8");
    EXPECT_EQ(LabelAt("Label4"), "");
}

TEST_F(ChoicePanels, EnableTheRepeatBoxesForAMatchPattern) {
    Open({{10, 10}});
    auto& check = Control<QCheckBox>("Check1");
    Click(check);
    EXPECT_TRUE(Box("Text2(0)").isEnabled());
    EXPECT_TRUE(Box("Text2(1)").isEnabled());
    Type(Box("Text2(0)"), "18");
    Click(check);
    EXPECT_FALSE(Box("Text2(0)").isEnabled());
    EXPECT_FALSE(Box("Text2(1)").isEnabled());
    EXPECT_EQ(Box("Text2(0)").text(), QStringLiteral("18"));
}

TEST_F(ChoicePanels, GoOnFromBoxToBoxToOkWithEnterAndRunNothing) {
    Open({{200, 120}});
    Click(Option("Option1(15)"));
    Click(Control<QCheckBox>("Check1"));
    for (const auto& [first, second] :
         {std::pair("Text1(0)", "Text1(1)"), std::pair("Text2(0)", "Text2(1)")}) {
        for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
            Focus(Box(first));
            Press(*form, enter);
            EXPECT_TRUE(Box(second).hasFocus()) << first;
            Press(*form, enter);
            EXPECT_TRUE(Button("Command1(0)").hasFocus()) << second;
            EXPECT_TRUE(Panel().isVisible());
            EXPECT_TRUE(screens.Calls.empty());
            EXPECT_TRUE(boxes.Messages.empty());
        }
    }
    Type(Box("Text1(0)"), "12");
    Click(Control<QCheckBox>("Check1"));
    Focus(Button("Command1(0)"));
    Press(*form, Qt::Key_Return);
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"options"}) << "Enter presses OK itself";
}

TEST_F(ChoicePanels, TakeAnyTextInTheirBoxes) {
    Open({{10, 10}});
    Click(Option("Option1(15)"));
    Type(Box("Text1(0)"), "12abc !'\"-.");
    EXPECT_EQ(Box("Text1(0)").text(), QStringLiteral("12abc !'\"-."));
}

TEST_F(ChoicePanels, LetTabWalkThroughThemInOrder) {
    Open({{10, 10, 0}, {10, 10, 1}});
    Click(Option("Option1(15)"));
    Click(Control<QCheckBox>("Check1"));
    Focus(Option("Option1(0)"));
    std::vector<std::string> order;
    for (int i = 0; i < 10; ++i) {
        order.push_back(FromQt(QApplication::focusWidget()->objectName()));
        Press(*form, Qt::Key_Tab);
    }
    EXPECT_THAT(order,
                ElementsAre("Option1(0)", "Option1(15)", "Text1(0)", "Text1(1)", "Option2(0)",
                            "Check1", "Text2(0)", "Text2(1)", "Command1(0)", "Command1(1)"));
}

TEST_F(ChoicePanels, ShareNoNameAndNoMnemonicWithTheRestOfTheScreen) {
    for (const Byte metric : {Byte{0}, Byte{1}}) {
        state.MetricFlag = metric;
        state.ObjNum = 0;
        Open({{10, 10}});
        ExpectNamesAndMnemonicsOnce(*form, metric == 0 ? 25 : 24);
    }
}

TEST_F(ChoicePanels, GoToTheirControlsByTheirLetters) {
    Open({{10, 10, 0}, {10, 10, 3}});
    const auto press = [&](Qt::Key key) { Press(*form, key, Qt::AltModifier); };
    press(Qt::Key_4);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Option("Option1(3)").isChecked(); }));
    press(Qt::Key_H);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Option("Option1(15)").isChecked(); }));
    press(Qt::Key_F);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Box("Text1(0)").hasFocus(); }));
    press(Qt::Key_N);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Box("Text1(1)").hasFocus(); }));
    press(Qt::Key_L);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Option("Option2(1)").isChecked(); }));
    press(Qt::Key_D);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Option("Option2(0)").isChecked(); }));
    press(Qt::Key_M);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Control<QCheckBox>("Check1").isChecked(); }));
    press(Qt::Key_W);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Box("Text2(0)").hasFocus(); }));
    press(Qt::Key_G);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Box("Text2(1)").hasFocus(); }));
    press(Qt::Key_O);
    EXPECT_TRUE(QTest::qWaitFor([&] { return boxes.Messages.size() == 1; })) << "no width";
    press(Qt::Key_C);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Panel().isVisible(); }));
}

TEST_F(ChoicePanels, LetTheScreenBeSmallOnceTheyAreClosed) {
    Open({{10, 10}});
    form->resize(500, 400);
    auto& scroller = *form->findChild<QScrollArea*>();
    QScrollBar& bar = *scroller.verticalScrollBar();
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.maximum() > 0; })) << "the panel needs more";
    scroller.ensureWidgetVisible(&Button("Command1(1)"));
    Click(Button("Command1(1)"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.maximum() == 0; }));
    EXPECT_EQ(Control("Body").height(), scroller.viewport()->height());
    Click(Button("Command3"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.maximum() > 0; }));
}

TEST_F(ChoicePanels, ScrollIntoReachOnAScreenThatIsTooSmall) {
    Open({{10, 10}});
    form->resize(400, 300);
    auto& scroller = *form->findChild<QScrollArea*>();
    scroller.ensureWidgetVisible(&Button("Command1(1)"));
    EXPECT_TRUE(QTest::qWaitFor([&] {
        scroller.ensureWidgetVisible(&Button("Command1(1)"));
        const QPoint corner = Button("Command1(1)").rect().bottomRight();
        return form->rect().contains(Button("Command1(1)").mapTo(form.get(), corner));
    }));
}

} // namespace
} // namespace tarn
