// The room entry screen: the report as a PDF file.

#include "print/PdfTesting.h"
#include "rooms/Report.h"
#include "rooms/RoomScreenTesting.h"

#include <QContextMenuEvent>
#include <QFile>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTemporaryDir>

namespace tarn {
namespace {

using namespace tarn::testing;

struct ReportAsPdf : RoomScreen {
    ReportAsPdf() {
        AddRooms(2);
        Open();
        ClickOn("RepMnu");
    }
    QPlainTextEdit& View() const { return Find<QPlainTextEdit>(*form, "Text2"); }
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
    void Save(QContextMenuEvent::Reason reason) const {
        QTest::keyClick(&OpenMenu(reason), Qt::Key_P);
    }
    std::string Path(const char* name) const {
        return FromQt(directory.filePath(QString::fromLatin1(name)));
    }

    QTemporaryDir directory;
};

TEST_F(ReportAsPdf, IsInTheMenuBesideTheUsualItems) {
    QMenu& menu = OpenMenu(QContextMenuEvent::Mouse);
    const QList<QAction*> actions = menu.actions();
    ASSERT_GE(actions.size(), 4);
    EXPECT_EQ(actions.back()->objectName(), QStringLiteral("SaveAsPdf"));
    EXPECT_EQ(actions.back()->text(), QStringLiteral("Save as &PDF ..."));
    EXPECT_TRUE(actions[actions.size() - 2]->isSeparator());
    EXPECT_TRUE(std::any_of(actions.begin(), actions.end(), [](const QAction* action) {
        return action->objectName() == QStringLiteral("edit-copy");
    }));
    QTest::keyClick(&menu, Qt::Key_Escape);
    EXPECT_TRUE(boxes.SuggestedFiles.empty());
}

TEST_F(ReportAsPdf, HoldsTheReport) {
    for (const auto reason : {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard}) {
        const std::string path = Path(reason == QContextMenuEvent::Mouse ? "mouse.pdf" : "key.pdf");
        boxes.Files = {path};
        Save(reason);
        EXPECT_EQ(boxes.SuggestedFiles.back(), "Mill house.pdf");
        QFile file(ToQt(path));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const Pdf pdf(file.readAll().toStdString());
        EXPECT_EQ(pdf.Text(), Words(LoadReport(state, ShortDate(2026, 3, 14))));
        EXPECT_EQ(pdf.InfoOf("Title"), QStringLiteral("ENTERED DATA REPORT"));
    }
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_TRUE(View().isVisible()) << "the report stays open";
    EXPECT_TRUE(printer.Reports.empty());
}

TEST_F(ReportAsPdf, IsNotWrittenWithoutAFile) {
    boxes.Files = {std::nullopt};
    Save(QContextMenuEvent::Mouse);
    EXPECT_EQ(boxes.SuggestedFiles.size(), 1U);
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(ReportAsPdf, NamesTheFileThatCannotBeWritten) {
    const std::string path = Path("nowhere/report.pdf");
    boxes.Files = {path};
    Save(QContextMenuEvent::Mouse);
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_TRUE(boxes.Messages[0].starts_with("The report could not be saved. "))
        << boxes.Messages[0];
    EXPECT_NE(boxes.Messages[0].find(path), std::string::npos) << boxes.Messages[0];
    EXPECT_TRUE(View().isVisible());
}

} // namespace
} // namespace tarn
