// The room entry screen: the list of the rooms as a file.

#include "files/ProjectTables.h"
#include "files/RoomCsv.h"
#include "files/Spreadsheet.h"
#include "screens/rooms/RoomScreenTesting.h"
#include "store/TestDatabase.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QTableView>

#include <gmock/gmock.h>

namespace tarn {
namespace {

using namespace tarn::testing;
using ::testing::HasSubstr;

struct ListAsFile : RoomScreenTest {
    ListAsFile() {
        AddRooms(2);
        Open(1366, 768);
    }
    /// Choose from the menu of the list by its letter.
    void Save(Qt::Key letter) const {
        auto& table = Find<QTableView>(*form, Controls::roomTable);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5),
                                table.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&table, &event);
        QWidget* menu = QApplication::activePopupWidget();
        ASSERT_NE(menu, nullptr);
        QTest::keyClick(menu, letter);
    }

    TestFolder folder;
};

TEST_F(ListAsFile, IsACsvFileThatCanBeReadAgain) {
    boxes.Files = {folder.Path("list.csv")};
    Save(Qt::Key_C);
    EXPECT_EQ(boxes.SuggestedFiles, Lines{"Mill house ROOMS.csv"});
    const std::string csv = ReadFile(folder.Path("list.csv"));
    EXPECT_EQ(csv, WriteRoomCsv(open.Now.Rooms));
    EXPECT_EQ(ReadRoomCsv(csv, Units::Imperial).Rooms, open.Now.Rooms);
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(ListAsFile, IsASpreadsheet) {
    boxes.Files = {folder.Path("list.xlsx")};
    Save(Qt::Key_X);
    EXPECT_EQ(boxes.SuggestedFiles, Lines{"Mill house ROOMS.xlsx"});
    EXPECT_EQ(ReadFile(folder.Path("list.xlsx")), XlsxOf(RoomTables(open.Now, Units::Imperial)));
}

TEST_F(ListAsFile, HasTheRoomThatIsBeingTyped) {
    TypeSizes({"5", "", "6", ""});
    boxes.Files = {folder.Path("list.csv")};
    Save(Qt::Key_C);
    EXPECT_THAT(ReadFile(folder.Path("list.csv")), HasSubstr("\r\n60,72,"));
}

TEST_F(ListAsFile, IsNotWrittenWithoutAFileAndTellsWhyItCouldNotBe) {
    boxes.Files = {std::nullopt, folder.Path("missing/list.csv")};
    Save(Qt::Key_C);
    EXPECT_TRUE(boxes.Messages.empty());
    Save(Qt::Key_C);
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_THAT(boxes.Messages[0], HasSubstr("The list of the rooms could not be saved."));
    EXPECT_THAT(boxes.Messages[0], HasSubstr("missing/list.csv"));
}

} // namespace
} // namespace tarn
