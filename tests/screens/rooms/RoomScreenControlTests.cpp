// The room entry screen: its controls and where they stand.

#include "screens/ControlChecks.h"
#include "screens/rooms/RoomScreenTesting.h"

#include <QGroupBox>
#include <QHelpEvent>
#include <QMenu>
#include <QScrollBar>
#include <QToolTip>

namespace tarn {
namespace {

using namespace tarn::testing;

struct EntryControls : RoomScreenTest {
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
    open.Now.Name = "Mill & Söhne";
    Open();
    EXPECT_EQ(form->Caption(), QStringLiteral("EDIT DATA"));
    EXPECT_EQ(Find<QLabel>(*form, Controls::productTitle).text(), QStringLiteral("SOLVANE 2040"));
    EXPECT_EQ(Find<QLabel>(*form, Controls::formTitle).text(), QStringLiteral("*EDIT DATA*"));
    auto& frame = Find<QGroupBox>(*form, Controls::roomPanel);
    EXPECT_EQ(frame.title(), QStringLiteral("PROJECT: MILL && SÖHNE"));
    EXPECT_EQ(frame.accessibleName(), QStringLiteral("PROJECT: MILL & SÖHNE"));
    EXPECT_EQ(Find<QGroupBox>(*form, Controls::roomSizes).title(), QStringLiteral("ROOM SIZE"));
    EXPECT_EQ(Find<QGroupBox>(*form, Controls::roomItem).title(), QStringLiteral("ITEM INFO"));
    const std::pair<const char*, const char*> labels[] = {
        {Controls::roomWidthCaption, "ROOM   WIDTH"},
        {Controls::roomWidthMajorUnit, "FEET"},
        {Controls::roomWidthMinorUnit, "INCHES"},
        {Controls::roomLengthCaption, "ROOM LENGTH"},
        {Controls::roomLengthMajorUnit, "FEET"},
        {Controls::roomLengthMinorUnit, "INCHES"},
        {Controls::coveringCaption, "CARPET TYPE"},
        {Controls::wallBaseCaption, "BASE"},
        {Controls::roomNumberCaption, "ROOM No."},
        {Controls::remarkCaption, "REMARK"},
        {Controls::itemNumberCaption, "PROJECT ITEM No."},
        {Controls::itemNumber, "1"}};
    for (const auto& [name, caption] : labels) {
        EXPECT_EQ(WithoutMnemonic(Find<QLabel>(*form, name).text()), QLatin1String(caption))
            << name;
    }
    const std::pair<const char*, const char*> buttons[] = {
        {Controls::nextRoom, "NEXT ROOM"},
        {Controls::previousRoom, "PREVIOUS ROOM"},
        {Controls::deleteRoom, "DELETE "},
        {Controls::saveRooms, "SAVE"},
        {Controls::estimateFromRooms, "ESTIMATE"},
        {Controls::showReport, "REPORT"},
        {Controls::leaveRooms, "BACK"},
        {Controls::printReport, "PRINT"},
        {Controls::closeReport, "CLOSE"}};
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
    EXPECT_EQ(Find(*form, Controls::wallBaseCaption).toolTip(), QStringLiteral("EXAMPLE: W2L1"));
}

TEST_F(EntryControls, NameMetresAndCentimetresInMetric) {
    open.Shown = Units::Metric;
    Open();
    EXPECT_EQ(Find<QLabel>(*form, Controls::roomWidthMajorUnit).text(), QStringLiteral("M"));
    EXPECT_EQ(Find<QLabel>(*form, Controls::roomWidthMinorUnit).text(), QStringLiteral("CM"));
    EXPECT_EQ(Find<QLabel>(*form, Controls::roomLengthMajorUnit).text(), QStringLiteral("M"));
    EXPECT_EQ(Find<QLabel>(*form, Controls::roomLengthMinorUnit).text(), QStringLiteral("CM"));
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
    auto& menu = Find<QMenu>(*form, Controls::fileMenu);
    EXPECT_EQ(WithoutMnemonic(menu.title()), QStringLiteral("File"));
    ASSERT_EQ(menu.actions().size(), 3);
    EXPECT_EQ(menu.actions()[0]->objectName(), QLatin1String(Controls::fileSave));
    EXPECT_EQ(WithoutMnemonic(menu.actions()[0]->text()), QStringLiteral("Save"));
    EXPECT_EQ(menu.actions()[1]->objectName(), QLatin1String(Controls::fileSeparator));
    EXPECT_TRUE(menu.actions()[1]->isSeparator());
    EXPECT_EQ(menu.actions()[2]->objectName(), QLatin1String(Controls::fileClose));
    EXPECT_EQ(WithoutMnemonic(menu.actions()[2]->text()), QStringLiteral("Close"));
}

TEST_F(EntryControls, ShareNoNameAndNoMnemonic) {
    Open();
    ExpectNamesAndMnemonicsOnce(*form, 18);
    Press(*form, Qt::Key_K, Qt::AltModifier);
    EXPECT_TRUE(HasFocus(Controls::remark));
}

TEST_F(EntryControls, FollowTheOrderOfTyping) {
    Open();
    const char* order[] = {
        Controls::roomWidthMajor,  Controls::roomWidthMinor, Controls::roomLengthMajor,
        Controls::roomLengthMinor, Controls::covering,       Controls::wallBase,
        Controls::roomNumber,      Controls::remark,         Controls::nextRoom,
        Controls::previousRoom,    Controls::deleteRoom,     Controls::estimateFromRooms,
        Controls::showReport,      Controls::leaveRooms,     Controls::saveRooms,
        Controls::showRoomList,    Controls::roomWidthMajor};
    for (const char* name : order) {
        EXPECT_TRUE(HasFocus(name)) << name;
        Press(*form, Qt::Key_Tab);
    }
}

class EntryOnEveryDisplay : public RoomScreenTest,
                            public ::testing::WithParamInterface<std::tuple<int, int, bool>> {};
INSTANTIATE_TEST_SUITE_P(Displays, EntryOnEveryDisplay,
                         ::testing::Values(std::tuple{800, 600, false}, std::tuple{800, 600, true},
                                           std::tuple{1366, 768, false},
                                           std::tuple{1920, 1080, false}));

TEST_P(EntryOnEveryDisplay, FitsWithoutScrollingOrOverlap) {
    const auto [width, height, metric] = GetParam();
    open.Shown = metric ? Units::Metric : Units::Imperial;
    Open(width, height);
    for (const QScrollBar* bar : form->findChildren<QScrollBar*>()) {
        EXPECT_EQ(bar->maximum(), 0) << FromQt(bar->objectName());
    }
    auto& frame = Find(*form, Controls::roomPanel);
    QWidget& body = *frame.parentWidget();
    const int centre = (body.height() - frame.height()) / 2;
    EXPECT_EQ(frame.y(), centre);
    EXPECT_EQ(frame.x(), (width - frame.width()) / 2);
    EXPECT_EQ(Find(*form, Controls::productTitle).y(), frame.y() - 113);
    EXPECT_EQ(Find(*form, Controls::formTitle).y(), frame.y() - 53);
    for (const char* name : {Controls::leaveRooms, Controls::saveRooms}) {
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
    open.Now.Name = std::string(64, 'w');
    const QString caption = ToQt("PROJECT: " + std::string(64, 'W'));
    Open();
    auto& frame = Find<QGroupBox>(*form, Controls::roomPanel);
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
    open.Now.Name = std::string(20, 'w');
    Open();
    EXPECT_EQ(Find<QGroupBox>(*form, Controls::roomPanel).title(),
              ToQt("PROJECT: " + std::string(20, 'W')));
    EXPECT_EQ(Find(*form, Controls::roomPanel).toolTip(), QString());
}

TEST_F(EntryControls, ShowAProjectNameLikeRichTextAsItIsWritten) {
    open.Now.Name = "<B>SMITH</B> & SONS " + std::string(40, 'W');
    Open();
    EXPECT_EQ(ShownToolTip(Find(*form, Controls::roomPanel)), "PROJECT: " + open.Now.Name);
}

TEST_F(EntryControls, FitTheProjectsNameAgainWhenTheTypeChanges) {
    open.Now.Name = std::string(30, 'w');
    Open(1366, 768);
    auto& frame = Find<QGroupBox>(*form, Controls::roomPanel);
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
