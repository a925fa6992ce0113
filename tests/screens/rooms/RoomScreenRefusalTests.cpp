// The room entry screen: where the focus goes and what stays when something is refused, and what no
// key or click may do by the way.

#include "screens/rooms/RoomScreenTesting.h"

namespace tarn {
namespace {

using namespace tarn::testing;

using RefusedRooms = RoomScreenTest;
using KeptKeys = RoomScreenTest;

TEST_F(RefusedRooms, StopTheStepBackToo) {
    AddRooms(2);
    Open();
    ClickOn(Controls::previousRoom);
    ASSERT_EQ(Item(), "2");
    for (const auto& [field, text] : {std::pair{0, "12'6"}, {1, "6 1/2"}, {2, "-2731"}}) {
        Paste(field, text);
        boxes.Messages.clear();
        ClickOn(Controls::previousRoom);
        EXPECT_EQ(boxes.Messages, Lines{WrongSize}) << text;
        EXPECT_EQ(Item(), "2");
        EXPECT_TRUE(Text(field).hasFocus()) << text;
        EXPECT_EQ(FromQt(Text(field).text()), text);
        Paste(field, "1");
    }
    EXPECT_EQ(open.Now.Rooms, open.Saved.Rooms);
}

TEST_F(RefusedRooms, AreSaidWrongBesideANumberTooLarge) {
    Open();
    Paste(0, "12'6");
    Paste(1, "1e400");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(boxes.Messages, Lines{WrongSize});
    EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
}

TEST_F(RefusedRooms, TakeTheFocusToTheSizesWhenTheProjectIsFull) {
    AddRooms(501);
    Open();
    TypeSizes({"12", "", "10", ""});
    for (const char* button : {Controls::nextRoom, Controls::previousRoom, Controls::saveRooms}) {
        Focus(Text(6));
        boxes.Messages.clear();
        ClickOn(button);
        EXPECT_EQ(boxes.Messages.size(), 1U);
        EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    }
}

TEST_F(RefusedRooms, TakeTheFocusToTheSizesAfterAnOverflow) {
    Open();
    Paste(0, "2731");
    TypeInto(2, "10");
    for (const char* button : {Controls::nextRoom, Controls::saveRooms}) {
        Focus(Text(6));
        boxes.Messages.clear();
        ClickOn(button);
        EXPECT_EQ(boxes.Messages.size(), 1U);
        EXPECT_TRUE(HasFocus(Controls::roomWidthMajor));
    }
}

TEST_F(RefusedRooms, AreToldInCentimetresInMetric) {
    open.Shown = Units::Metric;
    Open();
    TypeSizes({"3", "50", "4", "20"});
    Paste(0, "328");
    ClickOn(Controls::nextRoom);
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_TRUE(
        boxes.Messages[0].ends_with("The width of a room can be 32767 centimetres at most."))
        << boxes.Messages[0];
    boxes.Messages.clear();
    Paste(0, "3,50");
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(boxes.Messages, Lines{WrongSize});
    Paste(0, "3.5");
    Paste(1, "");
    Focus(Text(1));
    Press(*form, Qt::Key_A, Qt::ControlModifier);
    Press(*form, Qt::Key_Delete);
    ClickOn(Controls::nextRoom);
    EXPECT_EQ(open.Now.Rooms.at(0).Width, 350);
    ClickOn(Controls::previousRoom);
    boxes.YesNo = {true};
    ClickOn(Controls::deleteRoom);
    EXPECT_TRUE(open.Now.Rooms.empty());
    EXPECT_EQ(Texts(), Lines(7));
}

TEST_F(RefusedRooms, TakeTheFocusToABadBaseFromAnotherField) {
    Open();
    Focus(Text(0));
    Text(4).insert(QStringLiteral("x"));
    EXPECT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(Texts()[4], "");
    EXPECT_TRUE(HasFocus(Controls::wallBase));
}

TEST_F(KeptKeys, DoNotPressAButtonAgainWhileEnterIsHeld) {
    AddRooms(1);
    Open();
    QWidget& previous = Find(*form, Controls::previousRoom);
    previous.setFocus();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        QKeyEvent repeated(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(&previous, &repeated);
        EXPECT_EQ(Item(), "2");
    }
    QKeyEvent first(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), false);
    QApplication::sendEvent(&previous, &first);
    EXPECT_EQ(Item(), "1");
}

TEST_F(KeptKeys, LeaveNoPointInAFieldWhenABoxTakesTheFocus) {
    Open();
    TypeInto(0, ".");
    ASSERT_EQ(Texts()[0], ".");
    std::string standing = "none";
    boxes.OnMessage = [&] {
        QWidget box;
        ShowOnDisplay(box, 100, 100);
        standing = Texts()[0];
    };
    Press(*form, Qt::Key_E, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return boxes.Messages.size() == 1; }));
    EXPECT_EQ(standing, "");
}

} // namespace
} // namespace tarn
