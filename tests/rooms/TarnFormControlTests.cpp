// The room entry screen: its controls and where they stand.

#include "rooms/RoomScreenTesting.h"
#include "screens/ControlChecks.h"

#include <QGroupBox>
#include <QHelpEvent>
#include <QMenu>
#include <QScrollBar>
#include <QToolTip>

namespace tarn {
namespace {

using namespace tarn::testing;

struct EntryControls : RoomScreen {
    void ExpectSizesDescribedAs(const Lines& descriptions) const {
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(FromQt(Text(i).accessibleDescription()),
                      descriptions[static_cast<std::size_t>(i)]);
        }
    }
    /// The tool tip that comes up where the mouse rests.
    QString TipAt(QWidget& widget, const QPoint& at) const {
        QToolTip::hideText();
        EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
        QHelpEvent event(QEvent::ToolTip, at, widget.mapToGlobal(at));
        QApplication::sendEvent(&widget, &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }
};

QString WithoutMnemonic(QString text) {
    return text.remove(QLatin1Char('&'));
}

TEST_F(EntryControls, HaveTheirCaptions) {
    state.CurProjName = "Mill & Söhne";
    Open();
    EXPECT_EQ(form->Caption(), QStringLiteral("EDIT DATA"));
    EXPECT_EQ(Find<QLabel>(*form, "PTitle").text(), QStringLiteral("SOLVANE 2040"));
    EXPECT_EQ(Find<QLabel>(*form, "FTitle").text(), QStringLiteral("*EDIT DATA*"));
    auto& frame = Find<QGroupBox>(*form, "Frame1");
    EXPECT_EQ(frame.title(), QStringLiteral("PROJECT: MILL && SÖHNE"));
    EXPECT_EQ(frame.accessibleName(), QStringLiteral("PROJECT: MILL & SÖHNE"));
    EXPECT_EQ(Find<QGroupBox>(*form, "Frame2").title(), QStringLiteral("ROOM SIZE"));
    EXPECT_EQ(Find<QGroupBox>(*form, "Frame3").title(), QStringLiteral("ITEM INFO"));
    const char* labels[] = {"ROOM   WIDTH", "FEET",   "INCHES",           "ROOM LENGTH",
                            "FEET",         "INCHES", "CARPET TYPE",      "BASE",
                            "ROOM No.",     "REMARK", "PROJECT ITEM No.", "1"};
    for (int i = 0; i < 12; ++i) {
        auto& label = Find<QLabel>(*form, IndexedName("Label1", i).toLatin1().constData());
        EXPECT_EQ(WithoutMnemonic(label.text()), QLatin1String(labels[i])) << i;
    }
    const std::pair<const char*, const char*> buttons[] = {
        {NextButton, "NEXT ROOM"}, {PreviousButton, "PREVIOUS ROOM"}, {DeleteButton, "DELETE "},
        {SaveButton, "SAVE"},      {"Command3", "ESTIMATE"},          {"RepMnu", "REPORT"},
        {"Back", "BACK"},          {"Command2(0)", "PRINT"},          {"Command2(1)", "CLOSE"}};
    for (const auto& [name, caption] : buttons) {
        auto& button = Find<QPushButton>(*form, name);
        EXPECT_EQ(CaptionOf(button), QLatin1String(caption)) << name;
        EXPECT_EQ(button.accessibleName(), QLatin1String(caption)) << name;
    }
    EXPECT_EQ(Text(0).accessibleName(), QStringLiteral("ROOM   WIDTH"));
    EXPECT_EQ(Text(3).accessibleName(), QStringLiteral("INCHES"));
    EXPECT_EQ(Covering().accessibleName(), QStringLiteral("CARPET TYPE"));
    EXPECT_EQ(Text(6).accessibleName(), QStringLiteral("REMARK"));
    ExpectSizesDescribedAs(
        {"ROOM   WIDTH FEET", "ROOM   WIDTH INCHES", "ROOM LENGTH FEET", "ROOM LENGTH INCHES"});
    EXPECT_EQ(Text(4).toolTip(), QStringLiteral("EXAMPLE: W2L1"));
    EXPECT_EQ(Find(*form, "Label1(7)").toolTip(), QStringLiteral("EXAMPLE: W2L1"));
}

TEST_F(EntryControls, NameMetresAndCentimetresInMetric) {
    state.MetricFlag = 1;
    Open();
    EXPECT_EQ(Find<QLabel>(*form, "Label1(1)").text(), QStringLiteral("M"));
    EXPECT_EQ(Find<QLabel>(*form, "Label1(2)").text(), QStringLiteral("CM"));
    EXPECT_EQ(Find<QLabel>(*form, "Label1(4)").text(), QStringLiteral("M"));
    EXPECT_EQ(Find<QLabel>(*form, "Label1(5)").text(), QStringLiteral("CM"));
    ExpectSizesDescribedAs(
        {"ROOM   WIDTH M", "ROOM   WIDTH CM", "ROOM LENGTH M", "ROOM LENGTH CM"});
}

TEST_F(EntryControls, ListTheTwelveCoverings) {
    Open();
    Lines items;
    for (int i = 0; i < Covering().count(); ++i) {
        items.push_back(FromQt(Covering().itemText(i)));
    }
    EXPECT_EQ(items, (Lines{"CARPET-1", "CARPET-2", "CARPET-3", "CARPET-4", "CARPET-5", "CARPET-6",
                            "CARPET-7", "CARPET-8", "TILE-1", "TILE-2", "TILE-3", "TILE-4"}));
    EXPECT_EQ(Covering().currentIndex(), 0);
}

TEST_F(EntryControls, HaveAFileMenu) {
    Open();
    auto& menu = Find<QMenu>(*form, "FMnu");
    EXPECT_EQ(WithoutMnemonic(menu.title()), QStringLiteral("File"));
    ASSERT_EQ(menu.actions().size(), 3);
    EXPECT_EQ(menu.actions()[0]->objectName(), QStringLiteral("FileMnu(1)"));
    EXPECT_EQ(WithoutMnemonic(menu.actions()[0]->text()), QStringLiteral("Save"));
    EXPECT_EQ(menu.actions()[1]->objectName(), QStringLiteral("FileMnu(90)"));
    EXPECT_TRUE(menu.actions()[1]->isSeparator());
    EXPECT_EQ(menu.actions()[2]->objectName(), QStringLiteral("FileMnu(99)"));
    EXPECT_EQ(WithoutMnemonic(menu.actions()[2]->text()), QStringLiteral("Close"));
}

TEST_F(EntryControls, ShareNoNameAndNoMnemonic) {
    Open();
    ExpectNamesAndMnemonicsOnce(*form, 16);
    Press(*form, Qt::Key_K, Qt::AltModifier);
    EXPECT_TRUE(HasFocus("Text1(6)"));
}

TEST_F(EntryControls, FollowTheOrderOfTyping) {
    Open();
    const char* order[] = {"Text1(0)", "Text1(1)",     "Text1(2)",   "Text1(3)",
                           "Combo1",   "Text1(4)",     "Text1(5)",   "Text1(6)",
                           NextButton, PreviousButton, DeleteButton, "Command3",
                           "RepMnu",   "Back",         SaveButton,   "Text1(0)"};
    for (const char* name : order) {
        EXPECT_TRUE(HasFocus(name)) << name;
        Press(*form, Qt::Key_Tab);
    }
}

class EntryOnEveryDisplay : public RoomScreen,
                            public ::testing::WithParamInterface<std::tuple<int, int, bool>> {};
INSTANTIATE_TEST_SUITE_P(Displays, EntryOnEveryDisplay,
                         ::testing::Values(std::tuple{800, 600, false}, std::tuple{800, 600, true},
                                           std::tuple{1366, 768, false},
                                           std::tuple{1920, 1080, false}));

TEST_P(EntryOnEveryDisplay, FitsWithoutScrollingOrOverlap) {
    const auto [width, height, metric] = GetParam();
    state.MetricFlag = metric ? 1 : 0;
    Open(width, height);
    for (const QScrollBar* bar : form->findChildren<QScrollBar*>()) {
        EXPECT_EQ(bar->maximum(), 0) << FromQt(bar->objectName());
    }
    auto& frame = Find(*form, "Frame1");
    QWidget& body = *frame.parentWidget();
    const int centre = (body.height() - frame.height()) / 2;
    EXPECT_EQ(frame.y(), centre);
    EXPECT_EQ(frame.x(), (width - frame.width()) / 2);
    EXPECT_EQ(Find(*form, "PTitle").y(), frame.y() - 113);
    EXPECT_EQ(Find(*form, "FTitle").y(), frame.y() - 53);
    for (const char* name : {"Back", SaveButton}) {
        const QPoint top = Find(*form, name).mapTo(&body, QPoint());
        EXPECT_GT(top.y(), frame.geometry().bottom());
        EXPECT_LE(top.y() + Find(*form, name).height(), body.height());
    }
    for (const QPushButton* button : frame.findChildren<QPushButton*>()) {
        EXPECT_GE(button->width(), button->sizeHint().width()) << FromQt(button->objectName());
    }
    for (const QLabel* label : frame.findChildren<QLabel*>()) {
        EXPECT_GE(label->width(), label->sizeHint().width()) << FromQt(label->objectName());
    }
    EXPECT_GE(Text(0).width(),
              Text(0).fontMetrics().horizontalAdvance(QStringLiteral("32767")) + 16);
}

TEST_F(EntryControls, ShortenAProjectNameThatDoesNotFit) {
    state.CurProjName = std::string(64, 'w');
    const QString caption = ToQt("PROJECT: " + std::string(64, 'W'));
    Open();
    auto& frame = Find<QGroupBox>(*form, "Frame1");
    EXPECT_LE(frame.width(), 800);
    EXPECT_LE(frame.fontMetrics().horizontalAdvance(frame.title()), frame.width() - 32);
    EXPECT_TRUE(frame.title().startsWith(QStringLiteral("PROJECT: WWW")));
    EXPECT_EQ(frame.toolTip(), caption);
    EXPECT_EQ(frame.accessibleName(), caption);
    EXPECT_EQ(TipAt(frame, QPoint(40, 20)), caption);
    EXPECT_EQ(TipAt(frame, QPoint(40, frame.height() - 4)), QString());
    EXPECT_EQ(TipAt(Text(0), Text(0).rect().center()), QString());
    EXPECT_EQ(TipAt(Text(4), Text(4).rect().center()), QStringLiteral("EXAMPLE: W2L1"));
    form->close();
    state.CurProjName = std::string(20, 'w');
    Open();
    EXPECT_EQ(Find<QGroupBox>(*form, "Frame1").title(), ToQt("PROJECT: " + std::string(20, 'W')));
    EXPECT_EQ(Find(*form, "Frame1").toolTip(), QString());
}

TEST_F(EntryControls, ShowAProjectNameLikeRichTextAsItIsWritten) {
    state.CurProjName = "<B>SMITH</B> & SONS " + std::string(40, 'W');
    Open();
    EXPECT_EQ(ShownToolTip(Find(*form, "Frame1")), "PROJECT: " + state.CurProjName);
}

TEST_F(EntryControls, FitTheProjectsNameAgainWhenTheTypeChanges) {
    state.CurProjName = std::string(30, 'w');
    Open(1366, 768);
    auto& frame = Find<QGroupBox>(*form, "Frame1");
    const QString whole = frame.title();
    EXPECT_EQ(whole, frame.accessibleName());
    QFont font = frame.font();
    font.setPixelSize(3 * frame.fontMetrics().height());
    frame.setFont(font);
    EXPECT_NE(frame.title(), whole);
    EXPECT_LE(frame.fontMetrics().horizontalAdvance(frame.title()), frame.width() - 32);
    EXPECT_EQ(frame.toolTip(), whole);
    frame.setStyleSheet(QStringLiteral("QGroupBox { font-size: 4px; }"));
    EXPECT_EQ(frame.title(), whole);
    EXPECT_EQ(frame.toolTip(), QString());
}

} // namespace
} // namespace tarn
