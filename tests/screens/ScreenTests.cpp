// What all screens are made of: titles, panels, the window, the guard.

#include "base/RunTimeError.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Guard.h"
#include "screens/Screen.h"
#include "screens/ScreenTesting.h"
#include "screens/ScreenWindow.h"
#include "screens/TitledScreen.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarn {
namespace {

using namespace tarn::testing;

/// A screen with two panels of a given height, a button on the first, and a row below.
struct PlainScreen : TitledScreen {
    explicit PlainScreen(Session& session, int height = 100)
        : TitledScreen(session, QStringLiteral("PlainScreen"), "*A PLAIN SCREEN*") {
        First = new QWidget;
        First->setObjectName(QStringLiteral("First"));
        First->setMinimumSize(200, height);
        Button = NewButton(First, QStringLiteral("Command1"), "GO && &STAY");
        Second = new QWidget;
        Second->setObjectName(QStringLiteral("Second"));
        Second->setMinimumSize(100, 50);
        Below = new QWidget;
        Below->setMinimumSize(80, 30);
        AddPanel(*First);
        AddPanel(*Second, PanelSize::Filling);
        SetBelow(*Below);
        OnClick(*Button, "Nothing was done.", [this] { Body_(); });
    }
    void OnCloseByFrame() override { ++Closed; }
    void OnUncover() override { ++Uncovered; }
    QWidget* FirstFocus() override { return Button; }
    using TitledScreen::Scroller;
    using TitledScreen::ShowPanel;

    QWidget* First;
    QWidget* Second;
    QWidget* Below;
    QPushButton* Button;
    std::function<void()> Body_ = [] {};
    int Closed = 0;
    int Uncovered = 0;
};

using TitledScreens = ScreenTest;
using Guards = ScreenTest;
using ScreenWindows = ScreenTest;

/// Process what is waiting, and what that sets off.
void SettleEvents() {
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
    }
}

int TopInBody(const QWidget& widget) {
    return widget.geometry().top();
}

/// A screen whose second button stands further down than it shows.
struct LongScreen : PlainScreen {
    explicit LongScreen(Session& session)
        : PlainScreen(session, 2000) {
        Far = NewButton(First, QStringLiteral("Far"), "FAR");
        Far->move(0, 1900);
    }
    bool IsSeen(const QWidget& widget) {
        const QRect area(QPoint(), widget.size());
        return widget.visibleRegion().boundingRect() == area;
    }

    QPushButton* Far;
};

TEST_F(TitledScreens, ScrollToWhatTakesTheFocusButNotUnderAMouse) {
    LongScreen screen(session);
    ShowOnDisplay(screen);
    ASSERT_FALSE(screen.IsSeen(*screen.Far));
    screen.Far->setFocus();
    EXPECT_TRUE(QTest::qWaitFor([&] { return screen.IsSeen(*screen.Far); }));
    EXPECT_FALSE(screen.IsSeen(*screen.Button));
    screen.Button->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(QTest::qWaitFor([&] { return screen.IsSeen(*screen.Button); }));
    screen.Far->setFocus(Qt::MouseFocusReason);
    EXPECT_TRUE(screen.IsSeen(*screen.Button));
    EXPECT_TRUE(screen.Far->hasFocus());
}

TEST_F(TitledScreens, CentreThePanelAndPlaceTheTitlesAboveIt) {
    PlainScreen screen(session);
    ShowOnDisplay(screen);
    EXPECT_EQ(screen.First->geometry().center().x(), 400 - 1);
    EXPECT_EQ(TopInBody(*screen.First), (600 - 16 - 100) / 2);
    const auto& product = Find<QLabel>(screen, Controls::productTitle);
    const auto& form = Find<QLabel>(screen, Controls::formTitle);
    EXPECT_EQ(product.text(), QStringLiteral("SOLVANE 2040"));
    EXPECT_EQ(form.text(), QStringLiteral("*A PLAIN SCREEN*"));
    EXPECT_EQ(TopInBody(*screen.First) - TopInBody(product), Pixels(1700));
    EXPECT_EQ(TopInBody(*screen.First) - TopInBody(form), Pixels(800));
    EXPECT_GT(screen.Below->geometry().top(), screen.First->geometry().bottom());
    EXPECT_EQ(screen.Caption(), QStringLiteral("A PLAIN SCREEN"));
}

TEST_F(TitledScreens, FollowThePanelThatShows) {
    PlainScreen screen(session);
    ShowOnDisplay(screen);
    screen.ShowPanel(*screen.Second);
    EXPECT_TRUE(screen.First->isHidden());
    EXPECT_TRUE(screen.Second->isVisible());
    EXPECT_EQ(TopInBody(*screen.Second) - TopInBody(Find<QLabel>(screen, Controls::productTitle)),
              Pixels(1700));
    EXPECT_GT(screen.Second->width(), 700) << "a filling panel";
    EXPECT_LT(screen.Below->geometry().bottom(), 600 - 16);
    EXPECT_GT(screen.Below->geometry().top(), screen.Second->geometry().bottom());
}

TEST_F(TitledScreens, ScrollWhatDoesNotFitAndKeepTheTitlesBelowTheTop) {
    PlainScreen screen(session, 900);
    ShowOnDisplay(screen);
    EXPECT_EQ(TopInBody(Find<QLabel>(screen, Controls::productTitle)), 0);
    EXPECT_EQ(TopInBody(*screen.First), Pixels(1700));
    QWidget& body = *screen.Scroller().widget();
    EXPECT_GE(body.height(), screen.Below->geometry().bottom());
    screen.Scroller().ensureWidgetVisible(screen.Below);
    EXPECT_TRUE(
        screen.rect().contains(screen.Below->mapTo(&screen, screen.Below->rect().center())));
}

TEST_F(TitledScreens, PressAFocusedButtonWithEnter) {
    PlainScreen screen(session);
    int pressed = 0;
    screen.Body_ = [&] { ++pressed; };
    ShowOnDisplay(screen);
    EXPECT_TRUE(screen.Button->hasFocus());
    Press(screen, Qt::Key_Return);
    Press(screen, Qt::Key_Enter);
    Press(screen, Qt::Key_Space);
    Press(screen, Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return pressed == 4; })) << pressed;
    EXPECT_EQ(CaptionOf(*screen.Button), QStringLiteral("GO & STAY"));
    EXPECT_EQ(screen.Button->accessibleName(), QStringLiteral("GO & STAY"));
}

TEST_F(Guards, ShowARunTimeErrorInOneMessage) {
    PlainScreen screen(session);
    screen.Body_ = [] { RaiseOverflow("Use fewer rooms."); };
    ShowOnDisplay(screen);
    Click(*screen.Button);
    EXPECT_EQ(boxes.Messages, std::vector<std::string>{"Run-time error '6':\r\n\r\nOverflow\r\n"
                                                       "Nothing was done. Use fewer rooms."});
}

TEST_F(Guards, ShowTheCauseOfOtherFailures) {
    PlainScreen screen(session);
    screen.Body_ = [] { throw DatabaseError("The file is locked."); };
    ShowOnDisplay(screen);
    Click(*screen.Button);
    EXPECT_EQ(boxes.Messages, std::vector<std::string>{"Nothing was done. The file is locked."});
}

TEST_F(TitledScreens, PressNoButtonAgainWhileEnterIsHeldDown) {
    PlainScreen screen(session);
    int pressed = 0;
    screen.Body_ = [&] { ++pressed; };
    ShowOnDisplay(screen);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        QKeyEvent repeated(QEvent::KeyPress, key, Qt::NoModifier, QStringLiteral("\r"), true);
        QApplication::sendEvent(screen.Button, &repeated);
    }
    EXPECT_EQ(pressed, 0);
    Press(screen, Qt::Key_Return);
    EXPECT_EQ(pressed, 1);
}

TEST_F(Guards, EndARunTimeErrorWithoutMoreToSayWithItsText) {
    EXPECT_FALSE(Guarded(boxes, {}, [] { RaiseOverflow(); }));
    EXPECT_EQ(boxes.Messages, std::vector<std::string>{"Run-time error '6':\r\n\r\nOverflow"});
}

TEST_F(Guards, ShowWhatIsNoErrorOfTheProgramsOwn) {
    EXPECT_FALSE(Guarded(boxes, "Nothing was done.", [] { throw 7; }));
    EXPECT_EQ(boxes.Messages,
              std::vector<std::string>{"Nothing was done. The reason is not known."});
}

TEST_F(Guards, LetNothingOutOfTheMessageItself) {
    boxes.OnMessage = [] { throw std::bad_alloc(); };
    EXPECT_FALSE(Guarded(boxes, "Nothing was done.", [] { throw DatabaseError("Locked."); }));
    EXPECT_EQ(boxes.Messages, std::vector<std::string>{"Nothing was done. Locked."});
}

TEST_F(ScreenWindows, ReplaceCoverAndUncoverScreens) {
    ScreenWindow window;
    auto* first = new PlainScreen(session);
    const QPointer<QWidget> watched = first;
    window.Replace(std::unique_ptr<Screen>(first));
    window.show();
    EXPECT_EQ(window.Front(), first);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("A PLAIN SCREEN"));

    auto* above = new PlainScreen(session);
    window.Cover(std::unique_ptr<Screen>(above));
    EXPECT_EQ(window.Front(), above);
    EXPECT_EQ(window.Loaded(), 2);
    EXPECT_FALSE(first->isEnabled());
    EXPECT_FALSE(first->isVisible());
    EXPECT_TRUE(above->isVisible());

    window.Uncover();
    EXPECT_EQ(window.Front(), first);
    EXPECT_EQ(window.Loaded(), 1);
    EXPECT_TRUE(first->isEnabled());
    EXPECT_TRUE(first->isVisible());
    EXPECT_EQ(first->Uncovered, 1);

    auto* second = new PlainScreen(session);
    window.Replace(std::unique_ptr<Screen>(second));
    EXPECT_EQ(window.Front(), second);
    EXPECT_EQ(window.Loaded(), 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return watched.isNull(); }));
}

TEST_F(ScreenWindows, LeaveClosingByTheFrameToTheScreenInFront) {
    ScreenWindow window;
    auto* screen = new PlainScreen(session);
    window.Replace(std::unique_ptr<Screen>(screen));
    window.show();
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(screen->Closed, 1);
    screen->setEnabled(false);
    window.close();
    EXPECT_EQ(screen->Closed, 1) << "a disabled screen ignores it";
}

TEST_F(ScreenWindows, FillTheDisplayLessAStripAtTheBottom) {
    ScreenWindow window;
    window.Replace(std::make_unique<PlainScreen>(session));
    window.show();
    const QRect display = window.screen()->geometry();
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return window.frameGeometry() ==
               QRect(display.topLeft(), QSize(display.width(), display.height() - Pixels(240)));
    }));
}

TEST_F(ScreenWindows, AreNotFittedAgainWhenTheyComeBackFromTheTaskBar) {
    ScreenWindow window;
    window.Replace(std::make_unique<PlainScreen>(session));
    window.show();
    SettleEvents();
    window.resize(500, 400);
    QShowEvent shown;
    QSpontaneKeyEvent::setSpontaneous(&shown);
    qApp->notify(&window, &shown); // sendEvent would take the mark away
    SettleEvents();
    EXPECT_EQ(window.size(), QSize(500, 400));
}

TEST_F(ScreenWindows, StayAsLargeAsTheUserMakesThem) {
    ScreenWindow window;
    window.Replace(std::make_unique<PlainScreen>(session));
    window.show();
    SettleEvents();
    window.resize(500, 400);
    SettleEvents();
    const QMargins frame = FrameMargins(window);
    window.showFullScreen();
    SettleEvents();
    ASSERT_NE(FrameMargins(window), frame);
    window.showNormal();
    SettleEvents();
    ASSERT_EQ(FrameMargins(window), frame);
    EXPECT_EQ(window.size(), QSize(500, 400));
}

TEST(Displays, AreRefusedBelow800By600) {
    EXPECT_TRUE(IsDisplayLargeEnough({800, 600}));
    EXPECT_FALSE(IsDisplayLargeEnough({799, 600}));
    EXPECT_FALSE(IsDisplayLargeEnough({800, 599}));
    EXPECT_TRUE(IsDisplayLargeEnough({3840, 2160}));
}

} // namespace
} // namespace tarn
