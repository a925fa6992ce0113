// The guide that F1 opens.

#include "screens/ControlNames.h"
#include "screens/EveryScreen.h"
#include "screens/GuidePages.h"
#include "screens/GuideView.h"
#include "screens/GuideWindow.h"
#include "screens/Program.h"
#include "screens/ScreenTesting.h"
#include "screens/Theme.h"
#include "store/Schema.h"
#include "store/TestDatabase.h"

#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTimer>

#include <map>
#include <set>

namespace tarn {
namespace {

using namespace tarn::testing;

/// What is called for each fragment of a text.
void ForEachFragment(const QTextDocument& text, const std::function<void(QTextFragment)>& look) {
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            look(at.fragment());
        }
    }
}

std::vector<QString> LinksOf(const QTextDocument& text) {
    std::vector<QString> links;
    ForEachFragment(text, [&](const QTextFragment& fragment) {
        if (fragment.charFormat().hasProperty(QTextFormat::AnchorHref)) {
            links.push_back(fragment.charFormat().anchorHref());
        }
    });
    return links;
}

/// Whether a window, and not one that it belongs to, becomes the active one.
bool IsActive(const QWidget& window) {
    return QTest::qWaitFor([&window] { return window.isActiveWindow(); });
}

/// The first line that shows.
std::string TopLine(const GuideView& view) {
    const int below = view.fontMetrics().height() / 2;
    return FromQt(view.cursorForPosition(QPoint(below, below)).block().text());
}

struct Guides : ScreenTest {
    Guides() { ShowOnDisplay(below); }

    GuideView& Text() { return Find<GuideView>(guide, Controls::guideText); }
    std::string Note() {
        const auto& note = Find<QLabel>(guide, Controls::guideNote);
        return note.isHidden() ? "" : FromQt(note.text());
    }
    void Click(const QString& link) { Q_EMIT Text().anchorClicked(QUrl(link)); }

    void Open(std::string_view at) {
        guide.ShowPage(at);
        ASSERT_TRUE(IsActive(guide));
    }

    QLineEdit below; ///< in the place of the program's window
    GuideWindow guide{below, boxes};
};

TEST(GuideText, NamesItsHeadingsAsTheWebDoes) {
    EXPECT_EQ(PageName(QStringLiteral("The rooms")), QStringLiteral("the-rooms"));
    EXPECT_EQ(PageName(QStringLiteral("Guide: from an empty project")),
              QStringLiteral("guide-from-an-empty-project"));
    EXPECT_EQ(PageName(QStringLiteral("1. A project, half-made?")),
              QStringLiteral("1-a-project-half-made"));
}

TEST(GuideText, HasAPageForEveryStateOfEveryScreen) {
    GuideView text(nullptr);
    EXPECT_FALSE(text.ShowPage(QStringLiteral("no-such-page")));
    EXPECT_TRUE(text.ShowPage(ToQt(GuidePages::beginning)));
    std::map<std::string, std::string> lines;
    VisitEveryScreen(Units::Imperial, [&](const std::string& state, ScreenWindow& window) {
        Press(window, Qt::Key_F1);
        auto* guide = window.findChild<GuideWindow*>();
        ASSERT_NE(guide, nullptr) << state;
        ASSERT_TRUE(IsActive(*guide)) << state;
        lines[state] = TopLine(Find<GuideView>(*guide, Controls::guideText));
        Press(*guide, Qt::Key_Escape);
        EXPECT_FALSE(guide->isVisible()) << state;
    });
    EXPECT_EQ(lines["start"], "Projects");
    EXPECT_EQ(lines["projects"], "Projects");
    EXPECT_EQ(lines["menu of a new project"], "The menu");
    EXPECT_EQ(lines["rooms"], "The rooms");
    EXPECT_EQ(lines["report"], "The report");
    EXPECT_EQ(lines["choices"], "The choices");
    EXPECT_EQ(lines["options"], "The options");
    EXPECT_EQ(lines["improving"], "A shorter layout");
    EXPECT_EQ(lines["result"], "The result");
    EXPECT_EQ(lines["order, part 1"], "The order");
}

TEST(GuideText, ShowsEveryPictureNoWiderThanTheText) {
    GuideView text(nullptr);
    text.resize(660, 400);
    text.show();
    int pictures = 0;
    ForEachFragment(*text.document(), [&](const QTextFragment& fragment) {
        if (fragment.charFormat().isImageFormat()) {
            ++pictures;
            const QString name = fragment.charFormat().toImageFormat().name();
            const auto picture =
                text.document()->resource(QTextDocument::ImageResource, QUrl(name)).value<QImage>();
            EXPECT_FALSE(picture.isNull()) << FromQt(name);
            EXPECT_LE(picture.deviceIndependentSize().width(), text.viewport()->width());
        }
    });
    EXPECT_GT(pictures, 3);
    EXPECT_EQ(text.horizontalScrollBar()->maximum(), 0);
}

TEST(GuideText, LeadsToItsOwnHeadingsOnly) {
    GuideView text(nullptr);
    for (const QString& link : LinksOf(*text.document())) {
        if (link.startsWith(QLatin1Char('#'))) {
            EXPECT_TRUE(text.ShowPage(link.mid(1))) << FromQt(link);
        }
    }
}

TEST(GuideText, IsInTheColoursOfTheProgram) {
    GuideView text(nullptr);
    const auto colourOfLinks = [&text] {
        std::set<QRgb> colours;
        ForEachFragment(*text.document(), [&](const QTextFragment& fragment) {
            if (fragment.charFormat().hasProperty(QTextFormat::AnchorHref)) {
                colours.insert(fragment.charFormat().foreground().color().rgb());
            }
        });
        return colours;
    };
    text.resize(600, 400);
    text.show();
    ASSERT_FALSE(LinksOf(*text.document()).empty());
    EXPECT_EQ(colourOfLinks(), std::set<QRgb>{LightColours().Accent.rgb()});
    EXPECT_TRUE(text.ShowPage(ToQt(GuidePages::rooms)));
    const QPalette before = QApplication::palette();
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    QApplication::setPalette(dark);
    EXPECT_EQ(colourOfLinks(), std::set<QRgb>{DarkColours().Accent.rgb()});
    EXPECT_EQ(TopLine(text), "The rooms") << "it stays where it is read";
    QApplication::setPalette(before);
    EXPECT_EQ(colourOfLinks(), std::set<QRgb>{LightColours().Accent.rgb()});
}

TEST_F(Guides, FollowLinksInsideAndTellTheOthers) {
    Open(GuidePages::menu);
    Click(QStringLiteral("#the-rooms"));
    EXPECT_EQ(TopLine(Text()), "The rooms");
    EXPECT_EQ(Note(), "");
    for (const char* away : {"order.md", "https://example.org/", "#nowhere"}) {
        Click(QString::fromLatin1(away));
        EXPECT_EQ(TopLine(Text()), "The rooms");
        EXPECT_EQ(Note(), std::string("This is not in the guide, and the program opens nothing "
                                      "else: ") +
                              away);
    }
    Open(GuidePages::menu);
    EXPECT_EQ(Note(), "");
}

TEST_F(Guides, FindWordsFromWhereOneReads) {
    Open(GuidePages::rooms);
    QTest::keyClick(&Text(), Qt::Key_F, Qt::ControlModifier);
    auto& search = Find<QLineEdit>(guide, Controls::guideSearch);
    ASSERT_TRUE(search.hasFocus());
    Type(search, "metric");
    QTest::keyClick(&search, Qt::Key_Return);
    EXPECT_EQ(Text().textCursor().selectedText().toLower(), QStringLiteral("metric"));
    const int first = Text().textCursor().position();
    QTest::keyClick(&search, Qt::Key_F3);
    const int second = Text().textCursor().position();
    EXPECT_GT(second, first);
    for (int i = 0; i < 1000 && Text().textCursor().position() >= second; ++i) {
        tarn::testing::Click(Find<QPushButton>(guide, Controls::findInGuide));
    }
    EXPECT_LT(Text().textCursor().position(), second) << "it begins again at the top";
    EXPECT_EQ(Note(), "");
    Type(search, "xyzzy");
    QTest::keyClick(&search, Qt::Key_Return);
    EXPECT_EQ(Note(), "The guide does not have this word.");
}

TEST_F(Guides, StandAtTheRightOfTheProgramsWindow) {
    Open(GuidePages::rooms);
    EXPECT_EQ(guide.geometry().right(), below.geometry().right());
    EXPECT_LE(guide.width(), below.width());
    guide.move(3, 4);
    guide.close();
    Open(GuidePages::rooms);
    EXPECT_EQ(guide.pos(), QPoint(3, 4)) << "where the user put it";
}

TEST(GuideOfTheProgram, LeavesTheTypingAndGivesTheFocusBack) {
    TestFolder folder;
    CreateDatabaseFile(folder.Path("data/DATA/Tarn.mdb"));
    WriteFile(folder.Path("TarnWin.INI"), "[TarnWin Directory]\n" + folder.Path("data") + "\n");
    FakeBoxes boxes;
    FakePrinter printer;
    Program program(boxes, printer);
    ASSERT_TRUE(program.Start(
        {folder.Path()}, {800, 600}, [] { return QDate(2026, 3, 14); }, QLocale::c()));
    ScreenWindow& window = program.Window();
    const auto control = [&window](const char* name) -> QWidget& {
        return Find<QWidget>(*window.Front(), name);
    };
    Click(control(Controls::selectProject));
    Click(control(Controls::newProject));
    auto& box = static_cast<QLineEdit&>(control(Controls::projectBox));
    Focus(box);
    Type(box, "elm");
    Click(control(Controls::showGuide));
    auto& guide = *window.findChild<GuideWindow*>();
    ASSERT_TRUE(IsActive(guide));
    EXPECT_FALSE(guide.isModal());
    EXPECT_TRUE(Find(guide, Controls::guideText).hasFocus());
    Press(guide, Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(box.hasFocus());
    Type(box, " court");
    EXPECT_EQ(box.text(), QStringLiteral("ELM COURT"));
    Press(window, Qt::Key_F1);
    EXPECT_TRUE(guide.isVisible());
    Click(control(Controls::closeSelection));
    Click(control(Controls::exitProgram));
    EXPECT_FALSE(guide.isVisible()) << "it goes with the program";
    QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
    QCoreApplication::exec(); // as the main loop takes the end
}

} // namespace
} // namespace tarn
