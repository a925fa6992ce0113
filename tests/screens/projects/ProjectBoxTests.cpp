// The box for a project's name on the project selection.

#include "screens/Theme.h"
#include "screens/projects/ProjectScreenTesting.h"
#include "store/ProjectNames.h"

#include <QClipboard>
#include <QDragEnterEvent>
#include <QMenu>
#include <QMimeData>

namespace tarn {
namespace {

using namespace tarn::testing;

struct ProjectBoxes : ProjectScreenTest {
    void Paste(const std::string& text) {
        QGuiApplication::clipboard()->setText(ToQt(text));
        QTest::keyClick(&Box(), Qt::Key_V, Qt::ControlModifier);
    }
    void Drop(const std::string& text) {
        QMimeData data;
        data.setText(ToQt(text));
        QDragEnterEvent enter(Box().rect().center(), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&Box(), &enter);
        QDropEvent drop(Box().rect().center(), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&Box(), &drop);
    }
    void ExpectOneMessage() {
        EXPECT_EQ(boxes.Messages, Lines{std::string(ForbiddenCharactersMessage)});
        boxes.Messages.clear();
    }
};

TEST_F(ProjectBoxes, AreUnlockedByNewProject) {
    Open();
    ClickEntry(Directories(), "HOUSES");
    file.AddProject("HOUSES", "HALL", 9);
    Click(Button(Controls::newProject));
    EXPECT_FALSE(Box().isReadOnly());
    EXPECT_TRUE(Box().hasFocus());
    EXPECT_EQ(Entries(Projects()), (Lines{"VILLA", "TOWER", "HALL"})) << "listed anew";
    Type(Box(), "abc xyz 12");
    EXPECT_EQ(BoxText(), "ABC XYZ 12");
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(ProjectBoxes, AreUnlockedByAClick) {
    Open();
    file.AddProject("MARCH", "SHED", 9);
    Focus(Box());
    EXPECT_FALSE(Box().isReadOnly());
    EXPECT_EQ(Entries(Projects()), (Lines{"ANNEX", "BARN", "SHED"})) << "listed anew";
}

TEST_F(ProjectBoxes, SelectTheOldNameWhenAClickUnlocksThem) {
    Open();
    ClickEntry(Projects(), "BARN");
    const QPoint place(8, Box().height() / 2);
    QTest::mousePress(&Box(), Qt::LeftButton, {}, place);
    QTest::mouseMove(&Box(), place + QPoint(12, 0)); // a hand is not quite still
    QMouseEvent move(QEvent::MouseMove, place + QPoint(12, 0), Box().mapToGlobal(place),
                     Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&Box(), &move);
    QTest::mouseRelease(&Box(), Qt::LeftButton, {}, place + QPoint(12, 0));
    EXPECT_EQ(Box().selectedText(), QStringLiteral("BARN"));
    Type(Box(), "shed");
    EXPECT_EQ(BoxText(), "SHED") << "typing replaces the name chosen";
    QTest::mouseClick(&Box(), Qt::LeftButton, {}, place);
    EXPECT_EQ(Box().selectedText(), QString()) << "a click in an unlocked box only moves";
}

TEST_F(ProjectBoxes, AreUnlockedByAClickThatFindsThemFocused) {
    Open();
    ClickEntry(Projects(), "BARN");
    Box().setFocus(Qt::ActiveWindowFocusReason);
    ASSERT_TRUE(Box().hasFocus());
    ASSERT_TRUE(Box().isReadOnly());
    Click(Box());
    EXPECT_FALSE(Box().isReadOnly());
    EXPECT_EQ(Box().selectedText(), QStringLiteral("BARN"));
}

TEST_F(ProjectBoxes, LookLockedWhileTheyAre) {
    Open();
    const auto colour = [this] {
        const QImage image = Box().grab().toImage();
        return image.pixelColor(image.width() - 8, image.height() / 2);
    };
    EXPECT_EQ(colour(), LightColours().Window);
    Click(Button(Controls::newProject));
    EXPECT_EQ(colour(), LightColours().Field);
}

TEST_F(ProjectBoxes, AreNotReachedByTheKeyboard) {
    EXPECT_NO_FATAL_FAILURE(Open());
    EXPECT_EQ(Box().focusPolicy(), Qt::ClickFocus);
    for (const auto reason : {Qt::TabFocusReason, Qt::BacktabFocusReason,
                              Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
        Box().setFocus(reason);
        EXPECT_TRUE(Box().isReadOnly()) << reason;
        Months().setFocus();
    }
}

TEST_F(ProjectBoxes, DoNotListAnewWhenAMessageCloses) {
    Open();
    TypeNew("A");
    ClickEntry(Projects(), "BARN");
    Focus(Box());
    ClickEntry(Projects(), "BARN");
    ASSERT_EQ(Selected(Projects()), "BARN");
    Box().setFocus(Qt::ActiveWindowFocusReason);
    EXPECT_EQ(Selected(Projects()), "BARN") << "a fresh list has no selection";
}

TEST_F(ProjectBoxes, KeepTheTextWhenNewProjectUnlocksThem) {
    Open();
    ClickEntry(Projects(), "BARN");
    Click(Button(Controls::newProject));
    EXPECT_EQ(BoxText(), "BARN");
    Type(Box(), "shed");
    EXPECT_EQ(BoxText(), "SHED") << "typing replaces the name chosen";
    Click(Button(Controls::newProject));
    Type(Box(), "s");
    EXPECT_EQ(BoxText(), "SHEDS") << "but not one that was typed";
}

TEST_F(ProjectBoxes, AreLockedAgainByAProjectOnlyWhileEmpty) {
    Open();
    TypeNew("H");
    ClickEntry(Projects(), "BARN");
    EXPECT_EQ(BoxText(), "H");
    EXPECT_FALSE(Box().isReadOnly());
    ClickEntry(Months(), "MAY");
    EXPECT_FALSE(Box().isReadOnly()) << "months leave the lock alone";
    ClickEntry(Months(), "MARCH");
    ClickEntry(Projects(), "BARN");
    Focus(Box());
    Press(*form, Qt::Key_Backspace);
    ASSERT_EQ(BoxText(), "");
    ClickEntry(Projects(), "BARN");
    EXPECT_EQ(BoxText(), "BARN");
    EXPECT_TRUE(Box().isReadOnly());
    Click(Button(Controls::acceptProject));
    EXPECT_EQ(screens.Calls, Lines{"menu existing"});
}

TEST_F(ProjectBoxes, TakeAnotherProjectWhileTheyHoldTheOneThatAClickPutThere) {
    Open();
    ClickEntry(Projects(), "BARN");
    Focus(Box());
    ASSERT_FALSE(Box().isReadOnly());
    ClickEntry(Projects(), "ANNEX");
    EXPECT_TRUE(Box().isReadOnly());
    EXPECT_EQ(BoxText(), "ANNEX");
    Click(Button(Controls::acceptProject));
    EXPECT_TRUE(boxes.Messages.empty());
    EXPECT_EQ(screens.Calls, Lines{"menu existing"});
    EXPECT_EQ(open.Now.Name, "ANNEX");
}

TEST_F(ProjectBoxes, KeepWhatIsTypedBehindTheNameThatAClickPutThere) {
    Open();
    ClickEntry(Projects(), "BARN");
    Focus(Box());
    Press(*form, Qt::Key_End);
    Type(Box(), "s");
    ClickEntry(Projects(), "ANNEX");
    EXPECT_EQ(BoxText(), "BARNS");
    EXPECT_FALSE(Box().isReadOnly());
}

TEST_F(ProjectBoxes, TakeNothingOfAnEarlierChoiceWhenTheSelectionOpensAgain) {
    Open();
    ClickEntry(Projects(), "BARN");
    Click(Button(Controls::closeSelection));
    Click(Button(Controls::selectProject));
    TypeNew("barn");
    ClickEntry(Projects(), "ANNEX");
    EXPECT_EQ(BoxText(), "BARN") << "this one was typed";
}

TEST_F(ProjectBoxes, TakeNothingWhileLocked) {
    Open();
    ClickEntry(Projects(), "BARN");
    QTest::keyClicks(&Box(), QStringLiteral("x:y"));
    QGuiApplication::clipboard()->setText(QStringLiteral("pasted:"));
    QTest::keyClick(&Box(), Qt::Key_V, Qt::ControlModifier);
    Drop("dropped:");
    EXPECT_EQ(BoxText(), "BARN");
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(ProjectBoxes, RefuseEachForbiddenKeyWithAMessage) {
    Open();
    TypeNew("a");
    for (const char c : std::string("\\/:*?\"<>|")) {
        Type(Box(), std::string(1, c));
        SCOPED_TRACE(c);
        ExpectOneMessage();
        EXPECT_EQ(BoxText(), "A");
    }
    Type(Box(), "b'%;&");
    QTest::sendKeyEvent(QTest::Click, &Box(), Qt::Key_Eacute, ToQt("é"), Qt::NoModifier);
    EXPECT_EQ(BoxText(), "AB'%;&é") << "a to z alone become upper case while typing";
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(ProjectBoxes, TypeOverWhatIsSelectedAndUndoIt) {
    Open();
    TypeNew("abc");
    Box().selectAll();
    Type(Box(), "x");
    EXPECT_EQ(BoxText(), "X");
    QTest::keyClick(&Box(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(BoxText(), "ABC");
}

TEST_F(ProjectBoxes, CleanWhatIsPastedWithOneMessage) {
    Open();
    TypeNew("ab");
    Box().setCursorPosition(1);
    Paste("mü:l*l\te/r\n");
    EXPECT_EQ(BoxText(), "AMÜLLERB");
    ExpectOneMessage();
    Paste(" x ");
    EXPECT_EQ(BoxText(), "AMÜLLER X B");
    EXPECT_TRUE(boxes.Messages.empty());
    Paste("::");
    EXPECT_EQ(BoxText(), "AMÜLLER X B");
    ExpectOneMessage();
}

TEST_F(ProjectBoxes, LoseTheLineBreaksAtTheEndOfAPasteSilently) {
    Open();
    TypeNew("ab");
    for (const char* end : {"\n", "\r\n", "\r\n\r\n", "\u2028", "\u2029"}) {
        Box().clear();
        Paste(std::string("mill") + end);
        EXPECT_EQ(BoxText(), "MILL");
        EXPECT_TRUE(boxes.Messages.empty());
    }
    Box().clear();
    Drop("barn\n");
    EXPECT_EQ(BoxText(), "BARN");
    EXPECT_TRUE(boxes.Messages.empty());
}

TEST_F(ProjectBoxes, TakeNoCharacterThatNoTextKeeps) {
    Open();
    TypeNew("");
    for (const char16_t bad : {u'\xFFFE', u'\xFFFF', u'\xD83D', u'\xDEC1', u'\x9F'}) {
        Box().clear();
        QGuiApplication::clipboard()->setText(QStringLiteral("a") + QChar(bad) +
                                              QStringLiteral("b"));
        QTest::keyClick(&Box(), Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(BoxText(), "AB") << int{bad};
        ExpectOneMessage();
        QInputMethodEvent commit;
        commit.setCommitString(QStringLiteral("c") + QChar(bad));
        QApplication::sendEvent(&Box(), &commit);
        EXPECT_EQ(BoxText(), "ABC") << int{bad};
        ExpectOneMessage();
    }
}

TEST_F(ProjectBoxes, KeepTheirTextWhenNothingOfAPasteIsLeft) {
    Open();
    TypeNew("abc");
    Box().selectAll();
    Paste("::");
    EXPECT_EQ(BoxText(), "ABC");
    ExpectOneMessage();
}

TEST_F(ProjectBoxes, CleanWhatIsDroppedWithOneMessage) {
    Open();
    TypeNew("z");
    Drop("a|b<c");
    EXPECT_EQ(Box().text().size(), 4);
    EXPECT_TRUE(BoxText() == "ABCZ" || BoxText() == "ZABC") << BoxText();
    ExpectOneMessage();
}

TEST_F(ProjectBoxes, CleanWhatTheirMenuPastes) {
    Open();
    TypeNew("z");
    QGuiApplication::clipboard()->setText(QStringLiteral("a:b"));
    QContextMenuEvent request(QContextMenuEvent::Mouse, QPoint(3, 3),
                              form->mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&Box(), &request);
    auto* menu = Box().findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    const auto actions = menu->actions();
    const auto paste = std::find_if(actions.begin(), actions.end(), [](const QAction* action) {
        return action->text().startsWith(QStringLiteral("&Paste"));
    });
    ASSERT_NE(paste, actions.end());
    (*paste)->trigger();
    EXPECT_EQ(BoxText(), "ZAB");
    ExpectOneMessage();
    menu->close();
}

TEST_F(ProjectBoxes, CleanWhatAnInputMethodPutsIn) {
    Open();
    TypeNew("z");
    QInputMethodEvent commit;
    commit.setCommitString(QStringLiteral("a?b"));
    QApplication::sendEvent(&Box(), &commit);
    EXPECT_EQ(BoxText(), "ZAB");
    ExpectOneMessage();
}

TEST_F(ProjectBoxes, Hold64Characters) {
    Open();
    TypeNew(std::string(62, 'a'));
    Paste("üöä");
    EXPECT_EQ(BoxText(), std::string(62, 'A') + "ÜÖ");
    Type(Box(), "b");
    EXPECT_EQ(Box().text().size(), 64);
    Box().setSelection(0, 2);
    Paste("xyz");
    EXPECT_EQ(BoxText(), "XY" + std::string(60, 'A') + "ÜÖ");
    EXPECT_TRUE(boxes.Messages.empty());
    Click(Button(Controls::acceptProject));
    EXPECT_EQ(screens.Calls, Lines{"menu new"});
}

} // namespace
} // namespace tarn
