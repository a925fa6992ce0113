#include "screens/ControlChecks.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Theme.h"
#include "screens/estimate/EstimateScreenTesting.h"

#include <QLayout>
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
            if (Option(Controls::carpets.at(static_cast<std::size_t>(i))).isEnabled()) {
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
    EXPECT_TRUE(Option(Controls::carpets[2]).isChecked());
    EXPECT_FALSE(Option(Controls::carpets[4]).isChecked());
    EXPECT_TRUE(Option(Controls::carpets[2]).hasFocus());
}

TEST_F(ChoicePanels, NeedACarpetRoom) {
    Open({{10, 10, 8}, {10, 10, 11}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return Button(Controls::leaveEstimate).isEnabled(); }));
    EXPECT_EQ(boxes.Messages, std::vector<std::string>{"There is not data in the database"});
    EXPECT_FALSE(Panel().isVisible());
    EXPECT_TRUE(Button(Controls::leaveEstimate).hasFocus());
    for (const char* name : {Controls::openChoices, Controls::pasteCuts, Controls::printEstimate,
                             Controls::saveFromEstimate, Controls::redrawLayout}) {
        EXPECT_FALSE(Button(name).isEnabled()) << name;
    }
    Click(Button(Controls::leaveEstimate));
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"menu returning"});
}

TEST_F(ChoicePanels, TellThatThereIsNoDataInFrontAndLeaveBackDisabledUntilThen) {
    bool inFront = false;
    bool enabled = true;
    boxes.OnMessage = [&] {
        for (const QWidget* widget : QApplication::allWidgets()) {
            if (widget->objectName() == QLatin1String(Controls::leaveEstimate)) {
                inFront = widget->isVisible();
                enabled = widget->isEnabled();
            }
        }
    };
    Open({});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !boxes.Messages.empty(); }));
    EXPECT_TRUE(inFront);
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(Button(Controls::leaveEstimate).isEnabled());
}

TEST_F(ChoicePanels, ShowTheImperialCaptions) {
    Open({{10, 10}});
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(CaptionAt(Controls::carpets.at(static_cast<std::size_t>(i))),
                  QStringLiteral("CARPET - %1").arg(i + 1));
    }
    EXPECT_EQ(CaptionAt(Controls::standardWidths[0]), QStringLiteral("CARPET WIDTH 6 FT."));
    EXPECT_EQ(CaptionAt(Controls::standardWidths[1]), QStringLiteral("CARPET WIDTH 12 FT."));
    EXPECT_EQ(CaptionAt(Controls::standardWidths[2]), QStringLiteral("CARPET WIDTH 13.5 FT."));
    EXPECT_EQ(CaptionAt(Controls::standardWidths[3]), QStringLiteral("CARPET WIDTH 15 FT."));
    EXPECT_EQ(CaptionAt(Controls::otherWidth), QStringLiteral("CARPET WIDTH OTHER"));
    EXPECT_EQ(CaptionAt(Controls::downLay), QStringLiteral("DOWN LAY"));
    EXPECT_EQ(CaptionAt(Controls::crossLay), QStringLiteral("CROSS LAY"));
    EXPECT_EQ(CaptionAt(Controls::matchPattern), QStringLiteral("MATCH PATTERN"));
    EXPECT_EQ(CaptionAt(Controls::acceptChoices), QStringLiteral("OK"));
    EXPECT_EQ(CaptionAt(Controls::cancelChoices), QStringLiteral("CANCEL"));
    EXPECT_EQ(LabelAt(Controls::otherWidthMajorUnit), "FEET");
    for (const char* name :
         {Controls::otherWidthMinorUnit, Controls::repeatWidthUnit, Controls::repeatLengthUnit}) {
        EXPECT_EQ(LabelAt(name), "INCHES") << name;
    }
    EXPECT_EQ(LabelAt(Controls::repeatWidthCaption), "WIDTH:");
    EXPECT_EQ(LabelAt(Controls::repeatLengthCaption), "LENGTH:");
    EXPECT_EQ(Box(Controls::otherWidthMajor).accessibleName(), QStringLiteral("FEET"));
    EXPECT_EQ(Box(Controls::repeatLength).accessibleName(), QStringLiteral("LENGTH:"));
}

TEST_F(ChoicePanels, ShowTheMetricCaptions) {
    open.Shown = Units::Metric;
    Open({{10, 10}});
    EXPECT_EQ(CaptionAt(Controls::standardWidths[0]), QStringLiteral("CARPET WIDTH 183 CMS"));
    EXPECT_EQ(CaptionAt(Controls::standardWidths[1]), QStringLiteral("CARPET WIDTH 366 CMS"));
    EXPECT_EQ(CaptionAt(Controls::standardWidths[2]), QStringLiteral("CARPET WIDTH 411 CMS"));
    EXPECT_EQ(CaptionAt(Controls::standardWidths[3]), QStringLiteral("CARPET WIDTH 457 CMS"));
    EXPECT_EQ(CaptionAt(Controls::otherWidth), QStringLiteral("CARPET WIDTH OTHER"));
    EXPECT_EQ(LabelAt(Controls::otherWidthMajorUnit), "METER");
    EXPECT_EQ(LabelAt(Controls::otherWidthMinorUnit), "CM");
    EXPECT_EQ(LabelAt(Controls::repeatWidthUnit), "CMS");
    EXPECT_EQ(LabelAt(Controls::repeatLengthUnit), "CMS");
}

TEST_F(ChoicePanels, BeginWithTheirDefaults) {
    Open({{10, 10}});
    EXPECT_TRUE(Option(Controls::standardWidths[1]).isChecked());
    EXPECT_TRUE(IsMarked(Option(Controls::standardWidths[1])));
    for (const char* name : {Controls::standardWidths[0], Controls::standardWidths[2],
                             Controls::standardWidths[3], Controls::otherWidth}) {
        EXPECT_FALSE(IsMarked(Option(name))) << name;
        EXPECT_FALSE(Option(name).isChecked()) << name;
    }
    EXPECT_TRUE(Option(Controls::downLay).isChecked());
    EXPECT_FALSE(Control<QCheckBox>(Controls::matchPattern).isChecked());
    for (const char* name : {Controls::repeatWidth, Controls::repeatLength}) {
        EXPECT_FALSE(Box(name).isEnabled()) << name;
        EXPECT_TRUE(Box(name).text().isEmpty()) << name;
    }
    for (const char* name : {Controls::otherWidthMajor, Controls::otherWidthMinor}) {
        EXPECT_FALSE(Box(name).isVisible()) << name;
        EXPECT_TRUE(Box(name).text().isEmpty()) << name;
    }
}

TEST_F(ChoicePanels, TakeTheMarkOffAWidthWhenOneIsClicked) {
    for (const char* clicked :
         {Controls::standardWidths[1], Controls::standardWidths[3], Controls::otherWidth}) {
        open.Now.Rooms.clear();
        Open({{10, 10}});
        Click(Option(clicked));
        for (const char* name :
             {Controls::standardWidths[0], Controls::standardWidths[1], Controls::standardWidths[2],
              Controls::standardWidths[3], Controls::otherWidth}) {
            EXPECT_FALSE(IsMarked(Option(name))) << name << " after " << clicked;
        }
        EXPECT_TRUE(Option(clicked).isChecked());
    }
}

TEST_F(ChoicePanels, KeepTheMarkOfAWidthWhenACarpetIsClicked) {
    Open({{10, 10, 0}, {10, 10, 1}});
    Click(Option(Controls::carpets[1]));
    EXPECT_FALSE(IsMarked(Option(Controls::carpets[1])));
    EXPECT_FALSE(IsMarked(Option(Controls::carpets[0])));
    EXPECT_TRUE(IsMarked(Option(Controls::standardWidths[1])));
    EXPECT_FALSE(Option(Controls::carpets[0]).isChecked());
    EXPECT_TRUE(Option(Controls::standardWidths[1]).isChecked()) << "a group of its own";
    EXPECT_TRUE(Option(Controls::downLay).isChecked());
}

TEST_F(ChoicePanels, ShowTheBoxesOfAFreeWidthOnlyForIt) {
    Open({{10, 10}});
    Click(Option(Controls::otherWidth));
    EXPECT_TRUE(Box(Controls::otherWidthMajor).isVisible());
    EXPECT_TRUE(Box(Controls::otherWidthMinor).isVisible());
    EXPECT_TRUE(Control(Controls::otherWidthMajorUnit).isVisible());
    const QRect before = Option(Controls::otherWidth).geometry();
    Click(Option(Controls::standardWidths[0]));
    EXPECT_FALSE(Box(Controls::otherWidthMajor).isVisible());
    EXPECT_FALSE(Box(Controls::otherWidthMinor).isVisible());
    EXPECT_EQ(Option(Controls::otherWidth).geometry(), before) << "nothing jumps";
}

TEST_F(ChoicePanels, ChooseAWidthByTheArrowKeysToo) {
    Open({{10, 10}});
    Focus(Option(Controls::standardWidths[3]));
    Click(Option(Controls::standardWidths[3]));
    Press(*form, Qt::Key_Down);
    EXPECT_TRUE(Option(Controls::otherWidth).isChecked());
    EXPECT_TRUE(Box(Controls::otherWidthMajor).isVisible());
}

TEST_F(ChoicePanels, ShowAMetricFreeWidthInCentimetresAsItIsTyped) {
    open.Shown = Units::Metric;
    Open({{10, 10}});
    Click(Option(Controls::otherWidth));
    EXPECT_EQ(LabelAt(Controls::otherWidthHint), "");
    Type(Box(Controls::otherWidthMajor), "8");
    EXPECT_EQ(LabelAt(Controls::otherWidthHint), "= 244 CM");
    Type(Box(Controls::otherWidthMinor), "6");
    EXPECT_EQ(LabelAt(Controls::otherWidthHint), "= 259 CM");
    EXPECT_TRUE(Control(Controls::otherWidthHint).isVisible());
    EXPECT_GT(Control(Controls::otherWidthHint).mapTo(form.get(), QPoint()).y(),
              Box(Controls::otherWidthMajor).mapTo(form.get(), QPoint()).y());
    Type(Box(Controls::otherWidthMinor), "'6");
    EXPECT_EQ(LabelAt(Controls::otherWidthHint), "");
}

TEST_F(ChoicePanels, ShowNoCentimetresInFeetAndInches) {
    Open({{10, 10}});
    Click(Option(Controls::otherWidth));
    Type(Box(Controls::otherWidthMajor), "8");
    EXPECT_EQ(LabelAt(Controls::otherWidthHint), "");
}

TEST_F(ChoicePanels, EnableTheRepeatBoxesForAMatchPattern) {
    Open({{10, 10}});
    auto& check = Control<QCheckBox>(Controls::matchPattern);
    Click(check);
    EXPECT_TRUE(Box(Controls::repeatWidth).isEnabled());
    EXPECT_TRUE(Box(Controls::repeatLength).isEnabled());
    Type(Box(Controls::repeatWidth), "18");
    Click(check);
    EXPECT_FALSE(Box(Controls::repeatWidth).isEnabled());
    EXPECT_FALSE(Box(Controls::repeatLength).isEnabled());
    EXPECT_EQ(Box(Controls::repeatWidth).text(), QStringLiteral("18"));
}

TEST_F(ChoicePanels, GoOnFromBoxToBoxToOkWithEnterAndRunNothing) {
    Open({{200, 120}});
    Click(Option(Controls::otherWidth));
    Click(Control<QCheckBox>(Controls::matchPattern));
    for (const auto& [first, second] :
         {std::pair(Controls::otherWidthMajor, Controls::otherWidthMinor),
          std::pair(Controls::repeatWidth, Controls::repeatLength)}) {
        for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
            Focus(Box(first));
            Press(*form, enter);
            EXPECT_TRUE(Box(second).hasFocus()) << first;
            Press(*form, enter);
            EXPECT_TRUE(Button(Controls::acceptChoices).hasFocus()) << second;
            EXPECT_TRUE(Panel().isVisible());
            EXPECT_TRUE(screens.Calls.empty());
            EXPECT_TRUE(boxes.Messages.empty());
        }
    }
    Type(Box(Controls::otherWidthMajor), "12");
    Click(Control<QCheckBox>(Controls::matchPattern));
    Focus(Button(Controls::acceptChoices));
    Press(*form, Qt::Key_Return);
    EXPECT_EQ(screens.Calls, std::vector<std::string>{"options"}) << "Enter presses OK itself";
}

TEST_F(ChoicePanels, TakeAnyTextInTheirBoxes) {
    Open({{10, 10}});
    Click(Option(Controls::otherWidth));
    Type(Box(Controls::otherWidthMajor), "12abc !'\"-.");
    EXPECT_EQ(Box(Controls::otherWidthMajor).text(), QStringLiteral("12abc !'\"-."));
}

TEST_F(ChoicePanels, LetTabWalkThroughThemInOrder) {
    Open({{10, 10, 0}, {10, 10, 1}});
    Click(Option(Controls::otherWidth));
    Click(Control<QCheckBox>(Controls::matchPattern));
    Focus(Option(Controls::carpets[0]));
    std::vector<std::string> order;
    for (int i = 0; i < 10; ++i) {
        order.push_back(FromQt(QApplication::focusWidget()->objectName()));
        Press(*form, Qt::Key_Tab);
    }
    EXPECT_THAT(order,
                ElementsAre(Controls::carpets[0], Controls::otherWidth, Controls::otherWidthMajor,
                            Controls::otherWidthMinor, Controls::downLay, Controls::matchPattern,
                            Controls::repeatWidth, Controls::repeatLength, Controls::acceptChoices,
                            Controls::cancelChoices));
}

TEST_F(ChoicePanels, LetTabComeToThePresetWidthAndLayFromTheFirstTimeOn) {
    Open({{10, 10, 0}});
    EXPECT_TRUE(Option(Controls::carpets[0]).hasFocus());
    Press(*form, Qt::Key_Tab);
    EXPECT_TRUE(Option(Controls::standardWidths[DefaultWidth]).hasFocus());
    EXPECT_TRUE(Option(Controls::standardWidths[DefaultWidth]).isChecked());
    Press(*form, Qt::Key_Tab);
    EXPECT_TRUE(Option(Controls::downLay).hasFocus());
}

TEST_F(ChoicePanels, ShareNoNameAndNoMnemonicWithTheRestOfTheScreen) {
    for (const Units units : BothUnits) {
        open.Shown = units;
        open.Now.Rooms.clear();
        Open({{10, 10}});
        ExpectNamesAndMnemonicsOnce(*form, units == Units::Imperial ? 27 : 26);
    }
}

TEST_F(ChoicePanels, GoToTheirControlsByTheirLetters) {
    Open({{10, 10, 0}, {10, 10, 3}});
    const auto press = [&](Qt::Key key) { Press(*form, key, Qt::AltModifier); };
    press(Qt::Key_4);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Option(Controls::carpets[3]).isChecked(); }));
    press(Qt::Key_H);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Option(Controls::otherWidth).isChecked(); }));
    press(Qt::Key_F);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Box(Controls::otherWidthMajor).hasFocus(); }));
    press(Qt::Key_N);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Box(Controls::otherWidthMinor).hasFocus(); }));
    press(Qt::Key_L);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Option(Controls::crossLay).isChecked(); }));
    press(Qt::Key_D);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Option(Controls::downLay).isChecked(); }));
    press(Qt::Key_M);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return Control<QCheckBox>(Controls::matchPattern).isChecked(); }));
    press(Qt::Key_W);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Box(Controls::repeatWidth).hasFocus(); }));
    press(Qt::Key_G);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Box(Controls::repeatLength).hasFocus(); }));
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
    scroller.ensureWidgetVisible(&Button(Controls::cancelChoices));
    Click(Button(Controls::cancelChoices));
    const auto least = [&] {
        return std::max(Control(Controls::body).layout()->minimumSize().height(),
                        scroller.viewport()->height());
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return Control(Controls::body).height() == least(); }));
    EXPECT_EQ(bar.maximum(), least() - scroller.viewport()->height());
    const int closed = bar.maximum();
    Click(Button(Controls::openChoices));
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.maximum() > closed; }));
}

TEST_F(ChoicePanels, ScrollIntoReachOnAScreenThatIsTooSmall) {
    Open({{10, 10}});
    form->resize(400, 300);
    auto& scroller = *form->findChild<QScrollArea*>();
    scroller.ensureWidgetVisible(&Button(Controls::cancelChoices));
    EXPECT_TRUE(QTest::qWaitFor([&] {
        scroller.ensureWidgetVisible(&Button(Controls::cancelChoices));
        const QPoint corner = Button(Controls::cancelChoices).rect().bottomRight();
        return form->rect().contains(Button(Controls::cancelChoices).mapTo(form.get(), corner));
    }));
}

} // namespace
} // namespace tarn
