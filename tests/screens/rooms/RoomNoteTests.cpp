// The line below the sizes of the room entry.

#include "screens/rooms/RoomEntryFrame.h"
#include "screens/rooms/RoomScreenTesting.h"

namespace tarn {
namespace {

using namespace tarn::testing;

struct RoomNote : RoomScreenTest {
    std::string Note() const {
        const auto& note = Find<QLabel>(*form, Controls::roomNote);
        EXPECT_EQ(note.accessibleName(), note.text());
        return FromQt(note.text());
    }
    RoomEntryFrame& Entry() const {
        return dynamic_cast<RoomEntryFrame&>(Find<QGroupBox>(*form, Controls::roomPanel));
    }
};

TEST_F(RoomNote, IsEmptyAtFirst) {
    AddRooms(1);
    Open();
    EXPECT_EQ(Note(), "");
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Note(), "");
}

TEST_F(RoomNote, HoldsAHintUntilTheNextChangeOfAField) {
    Open();
    for (int field = 4; field < 7; ++field) {
        Entry().SetHint(QStringLiteral("Mind the step."));
        EXPECT_EQ(Note(), "Mind the step.");
        Focus(Text(field));
        EXPECT_EQ(Note(), "Mind the step.");
        Type(Text(field), "W");
        EXPECT_EQ(Note(), "") << field;
    }
    Entry().SetHint(QStringLiteral("Mind the step."));
    Focus(Covering());
    Press(*form, Qt::Key_Down);
    EXPECT_EQ(Note(), "");
}

TEST_F(RoomNote, HoldsAHintUntilAnotherRoomIsShown) {
    AddRooms(2);
    open.Now.Rooms.at(1) = open.Now.Rooms.at(0);
    Open();
    ClickOn(Controls::previousRoom);
    Entry().SetHint(QStringLiteral("Mind the step."));
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Item(), "1");
    EXPECT_EQ(Note(), "");
}

TEST_F(RoomNote, HoldsAWarningBeforeTheHintUntilItIsTakenBack) {
    AddRooms(1);
    Open();
    Entry().SetHint(QStringLiteral("Mind the step."));
    Entry().SetWarning(QStringLiteral("NOT KEPT: the disk is full."));
    EXPECT_EQ(Note(), "NOT KEPT: the disk is full.\nMind the step.");
    TypeInto(6, "hall");
    EXPECT_EQ(Note(), "NOT KEPT: the disk is full.");
    ClickOn(Controls::previousRoom);
    EXPECT_EQ(Note(), "NOT KEPT: the disk is full.");
    Entry().SetWarning({});
    EXPECT_EQ(Note(), "");
}

TEST_F(RoomNote, MovesNothingWhenItComes) {
    for (const auto& [width, height] : {std::pair{800, 600}, {1920, 1080}}) {
        Open(width, height);
        std::vector<QRect> before;
        for (const char* name : TextNames) {
            before.push_back(Find(*form, name).geometry());
        }
        const QRect next = Find(*form, Controls::nextRoom).geometry();
        Entry().SetWarning(QStringLiteral("NOT KEPT: the disk is full."));
        Entry().SetHint(QStringLiteral("Kept as 12'6\" (typed 12'6.5\")"));
        QCoreApplication::processEvents();
        for (std::size_t i = 0; i < TextNames.size(); ++i) {
            EXPECT_EQ(Find(*form, TextNames.at(i)).geometry(), before[i]) << i;
        }
        EXPECT_EQ(Find(*form, Controls::nextRoom).geometry(), next);
        const auto& note = Find<QLabel>(*form, Controls::roomNote);
        EXPECT_GE(note.height(), note.heightForWidth(note.width())) << "it is seen whole";
    }
}

TEST_F(RoomNote, GrowsForALongTextInPlaceOfBecomingWider) {
    Open();
    const int width = Find(*form, Controls::roomSizes).width();
    Entry().SetWarning(QString(20, QLatin1Char('w')).append(QLatin1Char(' ')).repeated(12));
    QCoreApplication::processEvents();
    const auto& note = Find<QLabel>(*form, Controls::roomNote);
    EXPECT_EQ(Find(*form, Controls::roomSizes).width(), width);
    EXPECT_GE(note.height(), note.heightForWidth(note.width())) << "it is seen whole";
}

} // namespace
} // namespace tarn
