// The room entry screen: where the focus goes and what stays when something is refused, and what no
// key or click may do by the way.

#include "rooms/RoomScreenTesting.h"

namespace tarn {
namespace {

using namespace tarn::testing;

using RefusedRooms = RoomScreen;
using KeptKeys = RoomScreen;

TEST_F(RefusedRooms, StopTheStepBackToo) {
    AddRooms(2);
    Open();
    ClickOn(PreviousButton);
    ASSERT_EQ(Item(), "2");
    for (const auto& [field, text] : {std::pair{0, "12'6"}, {1, "6 1/2"}, {2, "-2731"}}) {
        Paste(field, text);
        boxes.Messages.clear();
        ClickOn(PreviousButton);
        EXPECT_EQ(boxes.Messages, Lines{WrongSize}) << text;
        EXPECT_EQ(Item(), "2");
        EXPECT_TRUE(Text(field).hasFocus()) << text;
        EXPECT_EQ(FromQt(Text(field).text()), text);
        Paste(field, "1");
    }
    EXPECT_EQ(TakeRooms(state), project.StoredRooms);
}

TEST_F(RefusedRooms, AreSaidWrongBesideANumberTooLarge) {
    Open();
    Paste(0, "12'6");
    Paste(1, "1e400");
    ClickOn(NextButton);
    EXPECT_EQ(boxes.Messages, Lines{WrongSize});
    EXPECT_TRUE(HasFocus("Text1(0)"));
}

TEST_F(RefusedRooms, TakeTheFocusToTheSizesWhenTheProjectIsFull) {
    AddRooms(501);
    Open();
    TypeSizes({"12", "", "10", ""});
    for (const char* button : {NextButton, PreviousButton, SaveButton}) {
        Focus(Text(6));
        boxes.Messages.clear();
        ClickOn(button);
        EXPECT_EQ(boxes.Messages.size(), 1U);
        EXPECT_TRUE(HasFocus("Text1(0)"));
    }
}

TEST_F(RefusedRooms, TakeTheFocusToTheSizesAfterAnOverflow) {
    Open();
    Paste(0, "2731");
    TypeInto(2, "10");
    for (const char* button : {NextButton, SaveButton}) {
        Focus(Text(6));
        boxes.Messages.clear();
        ClickOn(button);
        EXPECT_EQ(boxes.Messages.size(), 1U);
        EXPECT_TRUE(HasFocus("Text1(0)"));
    }
}

TEST_F(RefusedRooms, AreToldInCentimetresInMetric) {
    state.MetricFlag = 1;
    Open();
    TypeSizes({"3", "50", "4", "20"});
    Paste(0, "328");
    ClickOn(NextButton);
    ASSERT_EQ(boxes.Messages.size(), 1U);
    EXPECT_TRUE(
        boxes.Messages[0].ends_with("The width of a room can be 32767 centimetres at most."))
        << boxes.Messages[0];
    boxes.Messages.clear();
    Paste(0, "3,50");
    ClickOn(NextButton);
    EXPECT_EQ(boxes.Messages, Lines{WrongSize});
    Paste(0, "3.5");
    Paste(1, "");
    Focus(Text(1));
    Press(*form, Qt::Key_A, Qt::ControlModifier);
    Press(*form, Qt::Key_Delete);
    ClickOn(NextButton);
    EXPECT_EQ(state.RoomWidth[0], 350);
    ClickOn(PreviousButton);
    boxes.YesNo = {true};
    ClickOn(DeleteButton);
    EXPECT_EQ(state.ObjNum, 0);
    EXPECT_EQ(Texts(), Lines(7));
}

TEST_F(RefusedRooms, TakeTheFocusToABadBaseFromAnotherField) {
    Open();
    Focus(Text(0));
    Text(4).insert(QStringLiteral("x"));
    EXPECT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(Texts()[4], "");
    EXPECT_TRUE(HasFocus("Text1(4)"));
}

TEST_F(RefusedRooms, StayOnTheScreenWithTheRoomThatIsShown) {
    AddRooms(501);
    Open();
    ClickOn(PreviousButton);
    ASSERT_EQ(Item(), "501");
    state.ObjNum = 502; // no such room can be shown
    ClickOn(NextButton);
    EXPECT_EQ(boxes.Messages.size(), 1U);
    EXPECT_EQ(Item(), "501");
    state.ObjNum = 501;
    boxes.Messages.clear();
    TypeInto(6, "!");
    ClickOn(PreviousButton);
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(state.RoomRemark[500], "remark 500!");
    EXPECT_EQ(Item(), "500");
}

TEST_F(KeptKeys, DoNotPressAButtonAgainWhileEnterIsHeld) {
    AddRooms(1);
    Open();
    QWidget& previous = Find(*form, PreviousButton);
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
