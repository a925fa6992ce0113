// The room entry screen: the report as a file.

#include "files/OutputFile.h"
#include "files/ProjectTables.h"
#include "files/ReportSvg.h"
#include "files/ShortDate.h"
#include "files/Spreadsheet.h"
#include "paper/PdfTesting.h"
#include "project/Report.h"
#include "screens/SaveAs.h"
#include "screens/rooms/RoomScreenTesting.h"
#include "store/TestDatabase.h"

#include <QContextMenuEvent>
#include <QFile>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTemporaryDir>

namespace tarn {
namespace {

using namespace tarn::testing;

struct ReportAsFile : RoomScreenTest {
    ReportAsFile() {
        AddRooms(2);
        Open();
        ClickOn(Controls::showReport);
    }
    QPlainTextEdit& View() const { return Find<QPlainTextEdit>(*form, Controls::reportText); }
    /// Open the menu of the view as its window system asks for it.
    QMenu& OpenMenu(QContextMenuEvent::Reason reason) const {
        QWidget& viewport = *View().viewport();
        QWidget& target = reason == QContextMenuEvent::Mouse ? viewport : View();
        QContextMenuEvent event(reason, QPoint(5, 5), target.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&target, &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr) {
            throw std::runtime_error("there is no menu");
        }
        return *menu;
    }
    void Save(QContextMenuEvent::Reason reason, Qt::Key letter = Qt::Key_P) const {
        QTest::keyClick(&OpenMenu(reason), letter);
    }
    std::string Path(const char* name) const {
        return FromQt(directory.filePath(QString::fromLatin1(name)));
    }

    QTemporaryDir directory;
};

TEST_F(ReportAsFile, IsInTheMenuBesideTheUsualItems) {
    QMenu& menu = OpenMenu(QContextMenuEvent::Mouse);
    const QList<QAction*> actions = menu.actions();
    ASSERT_GE(actions.size(), 5);
    EXPECT_EQ(actions.back()->objectName(), QLatin1String(Controls::reportAsSvg));
    EXPECT_EQ(actions.back()->text(), QStringLiteral("Save as &SVG"));
    EXPECT_EQ(actions[actions.size() - 2]->objectName(), QLatin1String(Controls::reportAsPdf));
    EXPECT_EQ(actions[actions.size() - 2]->text(), QStringLiteral("Save as &PDF"));
    EXPECT_TRUE(actions[actions.size() - 3]->isSeparator());
    EXPECT_TRUE(std::any_of(actions.begin(), actions.end(), [](const QAction* action) {
        return action->objectName() == QStringLiteral("edit-copy");
    }));
    QTest::keyClick(&menu, Qt::Key_Escape);
    EXPECT_TRUE(boxes.SuggestedFiles.empty());
}

TEST_F(ReportAsFile, HoldsTheReportAsSvg) {
    const std::string path = Path("report.svg");
    boxes.Files = {path};
    Save(QContextMenuEvent::Mouse, Qt::Key_S);
    EXPECT_EQ(boxes.SuggestedFiles, Lines{"Mill house.svg"});
    QFile file(ToQt(path));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().toStdString(),
              ReportSvg(MakeReport(open.Now, open.Shown, ShortDate(2026, 3, 14))));
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_TRUE(View().isVisible()) << "the report stays open";
}

TEST_F(ReportAsFile, OffersItsFiguresBeforeThePages) {
    QMenu& menu = OpenMenu(QContextMenuEvent::Mouse);
    const QList<QAction*> actions = menu.actions();
    ASSERT_GE(actions.size(), 6);
    EXPECT_EQ(actions[actions.size() - 5]->objectName(), QLatin1String(Controls::reportAsXlsx));
    EXPECT_EQ(actions[actions.size() - 4]->objectName(), QLatin1String(Controls::reportAsCsv));
    EXPECT_TRUE(actions[actions.size() - 6]->isSeparator());
    QTest::keyClick(&menu, Qt::Key_Escape);
}

TEST_F(ReportAsFile, HoldsItsFiguresAsCsvAndAsASpreadsheet) {
    boxes.Files = {Path("report.csv"), Path("report.xlsx")};
    Save(QContextMenuEvent::Keyboard, Qt::Key_V);
    Save(QContextMenuEvent::Keyboard, Qt::Key_X);
    EXPECT_EQ(boxes.SuggestedFiles, (Lines{"Mill house.csv", "Mill house.xlsx"}));
    EXPECT_EQ(ReadFile(Path("report.csv")), CsvOf({ReportTable(open.Now, open.Shown)}));
    EXPECT_EQ(ReadFile(Path("report.xlsx")), XlsxOf({ReportTable(open.Now, open.Shown)}));
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(ReportAsFile, HoldsTheReport) {
    for (const auto reason : {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard}) {
        const std::string path = Path(reason == QContextMenuEvent::Mouse ? "mouse.pdf" : "key.pdf");
        boxes.Files = {path};
        Save(reason);
        EXPECT_EQ(boxes.SuggestedFiles.back(), "Mill house.pdf");
        QFile file(ToQt(path));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const Pdf pdf(file.readAll().toStdString());
        EXPECT_EQ(pdf.Text(),
                  Words(MakeReport(open.Now, open.Shown, ShortDate(2026, 3, 14)).Text()));
        EXPECT_EQ(pdf.InfoOf("Title"), QStringLiteral("ENTERED DATA REPORT"));
    }
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_TRUE(View().isVisible()) << "the report stays open";
    EXPECT_TRUE(printer.Reports.empty());
}

TEST_F(ReportAsFile, IsOnThePrintersPageAsFarAsItIsKnown) {
    const auto sizeWith = [this](Integer width, Integer height) {
        page = {width, height};
        const std::string path = Path("sized.pdf");
        boxes.Files = {path};
        Save(QContextMenuEvent::Mouse);
        QFile file(ToQt(path));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return Pdf(file.readAll().toStdString()).PageSize();
    };
    const QSizeF a4(842, 595);
    EXPECT_EQ(sizeWith(15840, 12240), QSizeF(792, 612));
    EXPECT_EQ(sizeWith(0, 0), a4);
    EXPECT_EQ(sizeWith(15840, 0), a4);
    EXPECT_EQ(sizeWith(0, 12240), a4);
}

TEST_F(ReportAsFile, IsNotWrittenWithoutAFile) {
    boxes.Files = {std::nullopt, std::nullopt};
    Save(QContextMenuEvent::Mouse);
    Save(QContextMenuEvent::Mouse, Qt::Key_S);
    EXPECT_EQ(boxes.SuggestedFiles, (Lines{"Mill house.pdf", "Mill house.svg"}));
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(ReportAsFile, NamesTheFileThatCannotBeWritten) {
    for (const auto letter : {Qt::Key_P, Qt::Key_S, Qt::Key_X, Qt::Key_V}) {
        const std::string path = Path("nowhere/report");
        boxes.Files = {path};
        boxes.Messages.clear();
        Save(QContextMenuEvent::Mouse, letter);
        ASSERT_EQ(boxes.Messages.size(), 1U);
        EXPECT_TRUE(boxes.Messages[0].starts_with("The report could not be saved. "))
            << boxes.Messages[0];
        EXPECT_NE(boxes.Messages[0].find(path), std::string::npos) << boxes.Messages[0];
        EXPECT_TRUE(View().isVisible());
    }
}

TEST_F(ReportAsFile, NamesTheFileWhateverFails) {
    boxes.Files = {"report.pdf", "report.pdf"};
    const auto told = [this](const std::function<void()>& failure) -> std::string {
        try {
            SaveAs(session, "report", "pdf", [&](const std::string& /*path*/) { failure(); });
        } catch (const OutputFileError& error) {
            return error.what();
        }
        return {};
    };
    EXPECT_EQ(told([] { throw PrinterError("There is no page."); }),
              "The file report.pdf cannot be written: There is no page.");
    EXPECT_EQ(told([] { throw OutputFileError("report.pdf is a folder."); }),
              "report.pdf is a folder.");
}

} // namespace
} // namespace tarn
