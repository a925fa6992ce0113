// The room entry screen: the entered-data report.

#include "base/RunTimeError.h"
#include "files/ShortDate.h"
#include "paper/FixedPitchFont.h"
#include "project/Report.h"
#include "screens/rooms/RoomScreenTesting.h"

#include <QFontInfo>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScrollBar>

namespace tarn {
namespace {

using namespace tarn::testing;

struct ReportOfRooms : RoomScreenTest {
    QPlainTextEdit& View() const { return Find<QPlainTextEdit>(*form, Controls::reportText); }
    bool IsReportShown() const { return Find(*form, Controls::reportPanel).isVisible(); }
    void ExpectEntryShown() const {
        EXPECT_FALSE(IsReportShown());
        for (const char* name : {Controls::roomPanel, Controls::leaveRooms, Controls::saveRooms}) {
            EXPECT_TRUE(Find(*form, name).isVisible()) << name;
            EXPECT_TRUE(Find(*form, name).isEnabled()) << name;
        }
        EXPECT_TRUE(Find<QMenu>(*form, Controls::fileMenu).menuAction()->isEnabled());
    }
    std::string Expected() const {
        return MakeReport(open.Now, open.Shown, ShortDate(2026, 3, 14)).Text();
    }
};

TEST_F(ReportOfRooms, ListsAllRoomsWithTheOneOnTheScreen) {
    AddRooms(2);
    Open();
    TypeSizes({"12", "6", "14", ""});
    TypeInto(6, "hall");
    ClickOn(Controls::showReport);
    EXPECT_EQ(open.Now.Rooms.size(), 3U);
    EXPECT_TRUE(IsReportShown());
    const QString shown = View().toPlainText();
    EXPECT_EQ(shown, ToQtLines(Expected()));
    EXPECT_TRUE(shown.contains(QStringLiteral("ENTERED DATA REPORT")));
    EXPECT_TRUE(shown.contains(QStringLiteral("hall    \n")));
    EXPECT_TRUE(View().hasFocus());
}

TEST_F(ReportOfRooms, HasNoRowWithoutRooms) {
    Open();
    ClickOn(Controls::showReport);
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_TRUE(View().toPlainText().endsWith(QString(75, QLatin1Char('=')) + QLatin1Char('\n')));
}

TEST_F(ReportOfRooms, LeavesNothingElseToUse) {
    AddRooms(1);
    Open();
    ClickOn(Controls::showReport);
    EXPECT_FALSE(Find(*form, Controls::leaveRooms).isVisible());
    EXPECT_FALSE(Find(*form, Controls::saveRooms).isVisible());
    EXPECT_FALSE(Find(*form, Controls::roomPanel).isEnabled());
    EXPECT_FALSE(Find<QMenu>(*form, Controls::fileMenu).menuAction()->isEnabled());
    Press(*form, Qt::Key_F, Qt::AltModifier);
    Press(*form, Qt::Key_S, Qt::AltModifier);
    Press(*form, Qt::Key_B, Qt::AltModifier);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_TRUE(screens.Calls.empty());
    for (const char* name : {Controls::reportText, Controls::printReport, Controls::closeReport,
                             Controls::reportText}) {
        EXPECT_TRUE(HasFocus(name)) << name;
        Press(*form, Qt::Key_Tab);
    }
}

TEST_F(ReportOfRooms, IsReadOnlyInFixedPitchAndScrollsBothWays) {
    AddRooms(60);
    open.Now.Rooms.at(0).Remark = std::string(200, 'r');
    Open();
    ClickOn(Controls::showReport);
    EXPECT_TRUE(View().isReadOnly());
    EXPECT_TRUE(View().textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard));
    const QString before = View().toPlainText();
    Type(View(), "x");
    EXPECT_EQ(View().toPlainText(), before);
    EXPECT_EQ(View().font().family(), CourierNew(10).family()) << "the face of the paper";
    EXPECT_TRUE(QFontInfo(View().font()).fixedPitch());
    EXPECT_EQ(View().lineWrapMode(), QPlainTextEdit::NoWrap);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return View().verticalScrollBar()->maximum() > 0 &&
               View().horizontalScrollBar()->maximum() > 0;
    }));
    Press(*form, Qt::Key_End, Qt::ControlModifier);
    EXPECT_GT(View().verticalScrollBar()->value(), 0);
}

TEST_F(ReportOfRooms, FillsTheScreenBelowTheTitles) {
    AddRooms(1);
    for (const auto& [width, height] : {std::pair{800, 600}, std::pair{1920, 1080}}) {
        Open(width, height);
        ClickOn(Controls::showReport);
        const QWidget& frame = Find(*form, Controls::reportPanel);
        const QWidget& body = *frame.parentWidget();
        EXPECT_EQ(frame.y(), 113);
        EXPECT_GT(frame.width(), width - 40);
        EXPECT_GT(frame.geometry().bottom(), body.height() - 24);
        EXPECT_LT(frame.geometry().bottom(), body.height());
        EXPECT_EQ(Find(*form, Controls::productTitle).y(), 0);
        form->close();
    }
}

TEST_F(ReportOfRooms, HasNoButtonWhereTheEntryHasOne) {
    const auto areas = [this] {
        std::vector<std::pair<std::string, QRect>> found;
        for (const QPushButton* button : form->findChildren<QPushButton*>()) {
            // The guide's is the same one on both.
            if (button->isVisible() && FromQt(button->objectName()) != Controls::showGuide) {
                found.emplace_back(FromQt(button->objectName()),
                                   QRect(button->mapTo(form.get(), QPoint()), button->size()));
            }
        }
        return found;
    };
    AddRooms(1);
    Open();
    std::vector<QSize> sizes{{960, 524}};
    for (int width = 800; width <= 1920; width += 160) {
        for (int height = 584; height <= 1064; height += 48) {
            sizes.emplace_back(width, height);
        }
    }
    for (const QSize& size : sizes) {
        form->resize(size);
        const auto entry = areas();
        // The list of the rooms is beside the form, or a button leads to it.
        ASSERT_EQ(entry.size(), Find(*form, Controls::roomList).isVisible() ? 7U : 8U);
        ClickOn(Controls::showReport);
        const auto report = areas();
        ASSERT_EQ(report.size(), 2U);
        for (const auto& [name, area] : report) {
            for (const auto& [other, otherArea] : entry) {
                EXPECT_FALSE(area.intersects(otherArea))
                    << name << " " << other << " " << size.width() << " x " << size.height();
            }
        }
        ClickOn(Controls::closeReport);
    }
}

TEST_F(ReportOfRooms, IsClosedByADoubleClickAndNothingMore) {
    AddRooms(1);
    Open(960, 540);
    ClickOn(Controls::showReport);
    QWidget& close = Find(*form, Controls::closeReport);
    const QPoint at = close.mapTo(form.get(), close.rect().center());
    Click(close);
    QWidget* below = form->childAt(at);
    if (below != nullptr) {
        QTest::mouseClick(below, Qt::LeftButton, {}, below->mapFrom(form.get(), at));
    }
    ExpectEntryShown();
    EXPECT_TRUE(screens.Calls.empty());
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(ReportOfRooms, IsPrintedAndClosed) {
    AddRooms(2);
    Open();
    ClickOn(Controls::showReport);
    ClickOn(Controls::printReport);
    AwaitPrinter();
    EXPECT_EQ(printer.Reports, Lines{Expected()}) << "the lines end in CrLf";
    ExpectEntryShown();
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(ReportOfRooms, StaysOpenWhenItCannotBePrinted) {
    AddRooms(1);
    printer.Failure = "There is no printer.";
    Open();
    ClickOn(Controls::showReport);
    ClickOn(Controls::printReport);
    AwaitPrinter();
    EXPECT_EQ(boxes.Messages, Lines{"Warning: Your printer is not ready!\r\n\r\n"
                                    "You couldn't print in the program"});
    EXPECT_TRUE(IsReportShown());
    printer.Failure = "";
    Find(*form, Controls::printReport).setFocus();
    Press(*form, Qt::Key_Return);
    AwaitPrinter();
    EXPECT_EQ(printer.Reports.size(), 1U);
    ExpectEntryShown();
}

TEST_F(ReportOfRooms, StaysOpenWhateverFailsWhileItIsPrinted) {
    struct BrokenPrinter : FakePrinter {
        void PrintReport(const EnteredDataReport& /*report*/) override { RaiseSubscript(); }
    } broken;
    PrintQueue queue(broken, page, boxes);
    Session other{open, store, page, boxes, queue, screens, drafts, kept, history, session.Today};
    AddRooms(1);
    form = std::make_unique<RoomScreen>(other);
    ShowOnDisplay(*form);
    ClickOn(Controls::showReport);
    ClickOn(Controls::printReport);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !queue.IsPrinting(); }));
    EXPECT_EQ(boxes.Messages, Lines{"Warning: Your printer is not ready!\r\n\r\n"
                                    "You couldn't print in the program"});
    EXPECT_TRUE(IsReportShown());
}

TEST_F(ReportOfRooms, IsMadeAnewEachTime) {
    AddRooms(2);
    Open();
    ClickOn(Controls::showReport);
    const QString first = View().toPlainText();
    ClickOn(Controls::closeReport);
    TypeSizes({"12", "", "10", ""});
    ClickOn(Controls::showReport);
    EXPECT_NE(View().toPlainText(), first);
    EXPECT_EQ(View().toPlainText(), ToQtLines(Expected()));
    EXPECT_EQ(open.Now.Rooms.size(), 3U);
    ClickOn(Controls::closeReport);
    ExpectEntryShown();
    EXPECT_EQ(Item(), "3");
}

TEST_F(ReportOfRooms, IsInSquareMetresInMetric) {
    open.Shown = Units::Metric;
    Open();
    TypeSizes({"3", "50", "4", "20"});
    ClickOn(Controls::showReport);
    EXPECT_EQ(View().toPlainText(), ToQtLines(Expected()));
    EXPECT_TRUE(View().toPlainText().contains(QStringLiteral("14.70")));
    EXPECT_TRUE(View().toPlainText().contains(QStringLiteral("METERS")));
}

TEST_F(ReportOfRooms, ClosesOntoTheRoomAsItStood) {
    AddRooms(2);
    Open();
    ClickOn(Controls::previousRoom);
    TypeInto(6, "!");
    const Lines typed = Texts();
    ClickOn(Controls::showReport);
    ClickOn(Controls::closeReport);
    ExpectEntryShown();
    EXPECT_EQ(Texts(), typed);
    EXPECT_EQ(Item(), "2");
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    EXPECT_TRUE(printer.Reports.empty());
    EXPECT_EQ(open.Now.Rooms.at(1).Remark, "remark 1!");
}

TEST_F(ReportOfRooms, IsMadeBesideAHalfTypedRoomWhichStays) {
    AddRooms(1);
    Open();
    TypeSizes({"12"});
    TypeInto(6, "hall");
    const Lines typed = Texts();
    ClickOn(Controls::showReport);
    EXPECT_EQ(boxes.Messages, Lines{WrongSize});
    EXPECT_TRUE(IsReportShown());
    EXPECT_EQ(open.Now.Rooms.size(), 1U);
    ClickOn(Controls::closeReport);
    EXPECT_EQ(Texts(), typed);
}

TEST_F(ReportOfRooms, LeavesByTheFrameWithTheRoomInMemory) {
    Open();
    TypeSizes({"12", "6", "14", ""});
    ClickOn(Controls::showReport);
    form->CloseByFrame();
    EXPECT_EQ(screens.Calls, Lines{"menu returning"});
    EXPECT_EQ(open.Now.Rooms.size(), 1U);
}

TEST_F(ReportOfRooms, IsNotShownWhenABaseLengthOverflows) {
    AddRooms(1);
    Open();
    TypeSizes({"2000", "", "2000", ""});
    TypeInto(4, "W1L1");
    ClickOn(Controls::showReport);
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_TRUE(boxes.Messages[0].starts_with("Run-time error '6':\r\n\r\nOverflow\r\n"
                                              "The report could not be made. "))
        << boxes.Messages[0];
    EXPECT_NE(boxes.Messages[0].find("room 2"), std::string::npos) << boxes.Messages[0];
    ExpectEntryShown();
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms) << "the room was taken back";
    EXPECT_EQ(Texts(), (Lines{"2000", "", "2000", "", "W1L1", "", ""}));
    EXPECT_EQ(Item(), "2");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms.size(), 2U) << "it can still be stored";
    EXPECT_EQ(Item(), "3");
}

} // namespace
} // namespace tarn
