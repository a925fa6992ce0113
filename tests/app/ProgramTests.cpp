#include "app/Controls.h"
#include "app/Display.h"
#include "app/Program.h"
#include "screens/ScreenTesting.h"
#include "store/Schema.h"
#include "store/TestDatabase.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <array>
#include <utility>

namespace tarn {
namespace {

using namespace tarn::testing;

/// Calls back when it is asked for its page.
struct WatchingPrinter : FakePrinter {
    std::function<void()> OnPage;

    PageSize Page() override {
        if (OnPage) {
            OnPage();
        }
        return FakePrinter::Page();
    }
};

/// Whether an object was sent a paint event.
struct PaintWatch : QObject {
    bool Painted = false;

    bool eventFilter(QObject* watched, QEvent* event) override {
        Painted = Painted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
};

/// The whole program on a data folder of its own, with recorded boxes and a recorded printer.
class ProgramTest : public ::testing::Test {
  protected:
    ProgramTest() {
        CreateDatabaseFile(folder_.Path("data/DATA/Tarn.mdb"));
        WriteFile(folder_.Path("TarnWin.INI"),
                  "[TarnWin Directory]\n" + folder_.Path("data") + "\n");
    }

    bool Start(QSize display = {800, 600}) {
        return StartOn([] { return QDate(2026, 3, 14); }, display);
    }
    bool StartOn(const std::function<QDate()>& today, QSize display = {800, 600}) {
        return program_.Main({folder_.Path()}, display, today,
                             QLocale(QLocale::English, QLocale::UnitedStates));
    }
    template <class W = QPushButton>
    W& Control(const char* name) {
        return Find<W>(*program_.Window().Front(), name);
    }
    std::string Front() { return FromQt(program_.Window().Front()->objectName()); }
    void ExpectFront(const char* screen, int loaded) {
        EXPECT_EQ(Front(), screen);
        EXPECT_EQ(program_.Window().Loaded(), loaded);
        EXPECT_TRUE(program_.Window().Front()->isVisible());
    }

    void MakeProject(const char* name) {
        Click(Control("Command3"));
        Click(Control("Command1"));
        Type(Control<QLineEdit>("Text1"), name);
        Click(Control("Command5"));
    }
    void TypeRoom(const char* feetWide, const char* feetLong) {
        Type(Control<QLineEdit>("Text1(0)"), feetWide);
        Type(Control<QLineEdit>("Text1(2)"), feetLong);
    }
    /// From the estimate's open choices to the options screen and through it.
    void ChooseAndSearch() {
        Click(Control("Command1(0)"));
        ExpectFront("ESTFORM", 2);
        Click(Control<QRadioButton>("Option1(0)"));
        Click(Control("Command1"));
    }

    TestFolder folder_;
    FakeBoxes boxes_;
    WatchingPrinter printer_;
    Program program_{boxes_, printer_};
};

TEST_F(ProgramTest, RefusesADisplayThatIsTooSmall) {
    EXPECT_FALSE(Start({799, 600}));
    EXPECT_FALSE(Start({800, 599}));
    EXPECT_EQ(boxes_.Messages,
              (std::vector<std::string>(
                  2, "Sorry, the program must run under display resolution 800 X 600 or higher\r\n"
                     "Please change the display resolution!")));
    EXPECT_FALSE(program_.Window().isVisible());
    EXPECT_TRUE(Start({800, 600}));
    EXPECT_TRUE(program_.Window().isVisible());
}

TEST_F(ProgramTest, RefusesToRunWithoutAConfigurationFile) {
    WriteFile(folder_.Path("TarnWin.INI"), "");
    EXPECT_FALSE(Start());
    EXPECT_EQ(boxes_.Messages, std::vector<std::string>{"Couldn't find TarnWin.ini"});
    EXPECT_FALSE(program_.Window().isVisible());
}

TEST_F(ProgramTest, ShowsTheProjectSelectionAndThenReadsThePrintersPage) {
    ASSERT_TRUE(Start());
    ExpectFront("ProjectForm", 1);
    EXPECT_EQ(program_.State().PrnWidth, 0) << "the first screen does not wait for the printer";
    EXPECT_TRUE(QTest::qWaitFor([&] { return program_.State().PrnWidth == 16838; }));
    EXPECT_EQ(program_.State().PrnHeight, 11906);
    EXPECT_EQ(program_.State().CurDirName, "MARCH");
    EXPECT_TRUE(boxes_.Messages.empty());
}

TEST_F(ProgramTest, PaintsTheFirstScreenBeforeItAsksThePrinter) {
    PaintWatch watch;
    int asked = 0;
    printer_.OnPage = [&] {
        ++asked;
        EXPECT_TRUE(watch.Painted);
        EXPECT_TRUE(ShowsWaiting());
    };
    ASSERT_TRUE(Start());
    Control("Command3").installEventFilter(&watch);
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked > 0; }));
    program_.Window().update();
    QCoreApplication::processEvents();
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ProgramTest, ChecksTheDisplayBeforeTheConfiguration) {
    WriteFile(folder_.Path("TarnWin.INI"), "");
    EXPECT_FALSE(Start({799, 600}));
    ASSERT_EQ(boxes_.Messages.size(), 1U);
    EXPECT_EQ(boxes_.Messages[0], DisplayTooSmallMessage);
}

TEST_F(ProgramTest, TellsWhatKeepsItFromStarting) {
    EXPECT_FALSE(StartOn([]() -> QDate { throw std::runtime_error("There is no clock."); }));
    EXPECT_EQ(boxes_.Messages,
              std::vector<std::string>{"The program could not be started. There is no clock."});
    EXPECT_FALSE(program_.Window().isVisible());
}

TEST_F(ProgramTest, AsksForTheDayWheneverAScreenNeedsIt) {
    QDate today(2026, 3, 31);
    ASSERT_TRUE(StartOn([&] { return today; }));
    EXPECT_EQ(program_.State().CurDirName, "MARCH");
    today = QDate(2026, 4, 1);
    Click(Control("Command3"));
    EXPECT_EQ(Control<QListWidget>("List1(0)").currentItem()->text(), QStringLiteral("APRIL"));
}

TEST_F(ProgramTest, UnloadsItsScreensBeforeWhatTheyWorkOn) {
    auto program = std::make_unique<Program>(boxes_, printer_);
    auto token = std::make_shared<int>();
    const std::weak_ptr<int> session = token;
    ASSERT_TRUE(program->Main(
        {folder_.Path()}, {800, 600}, [token] { return QDate(2026, 3, 14); }, QLocale::c()));
    token.reset();
    bool unloaded = false;
    QObject::connect(program->Window().Front(), &QObject::destroyed, [&] {
        unloaded = true;
        EXPECT_FALSE(session.expired()) << "a screen outlived the session";
    });
    program.reset();
    EXPECT_TRUE(unloaded);
    EXPECT_TRUE(session.expired());
}

TEST_F(ProgramTest, StartsWithoutAPrinterAndSaysNothing) {
    printer_.Failure = "no queue";
    bool asked = false;
    printer_.OnPage = [&] { asked = true; };
    ASSERT_TRUE(Start());
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked; }));
    EXPECT_EQ(program_.State().PrnWidth, 0);
    EXPECT_TRUE(boxes_.Messages.empty());
}

TEST_F(ProgramTest, WalksFromTheMenuToTheLayoutAndBack) {
    ASSERT_TRUE(Start());
    MakeProject("HOUSE");
    ExpectFront("MenuForm", 1);
    Click(Control("Command1(0)"));
    ExpectFront("TarnForm", 1);
    TypeRoom("10", "14");
    Click(Control("Command1(3)"));
    EXPECT_EQ(boxes_.Messages, std::vector<std::string>{"Data is saved"});
    Click(Control("Back"));
    ExpectFront("MenuForm", 1);
    Click(Control("Command1(2)"));
    ExpectFront("ESCarpForm", 1);
    ChooseAndSearch();
    ExpectFront("ESCarpForm", 1);
    EXPECT_TRUE(program_.Window().Front()->isEnabled());
    boxes_.Messages.clear();
    Click(Control("Command8"));
    EXPECT_EQ(boxes_.Messages, std::vector<std::string>{"No better layout was found: this one is "
                                                        "the least possible."});
    Click(Control("Command2"));
    ExpectFront("MenuForm", 1);
    Click(Control("Command1(1)"));
    ExpectFront("ProjectForm", 1);
}

TEST_F(ProgramTest, ReturnsFromTheEstimateToTheRoomsThatOpenedIt) {
    ASSERT_TRUE(Start());
    MakeProject("HOUSE");
    Click(Control("Command1(0)"));
    TypeRoom("10", "14");
    Screen* rooms = program_.Window().Front();
    Click(Control("Command3"));
    ExpectFront("ESCarpForm", 2);
    EXPECT_FALSE(rooms->isEnabled());
    EXPECT_FALSE(rooms->isVisible());
    Click(Control("Command1(0)"));
    ExpectFront("ESTFORM", 3);
    program_.Window().close();
    ExpectFront("ESCarpForm", 2);
    Click(Control("Command2"));
    ExpectFront("TarnForm", 1);
    EXPECT_EQ(program_.Window().Front(), rooms);
    EXPECT_TRUE(rooms->isEnabled());
    program_.Window().close();
    ExpectFront("MenuForm", 1);
}

/// The program on the options screen above the estimate of some rooms, opened from the room entry.
class SearchTest : public ProgramTest {
  protected:
    void OpenOptions(bool metric, std::initializer_list<std::array<const char*, 4>> rooms) {
        ASSERT_TRUE(Start());
        MakeProject("HOUSE");
        if (metric) {
            Click(Control<QCheckBox>("Check1"));
        }
        Click(Control("Command1(0)"));
        bool first = true;
        for (const auto& room : rooms) {
            if (!std::exchange(first, false)) {
                Click(Control("Command1(0)"));
            }
            for (int i = 0; i < 4; ++i) {
                Type(Control<QLineEdit>(FromQt(IndexedName("Text1", i)).c_str()),
                     room[static_cast<std::size_t>(i)]);
            }
        }
        Click(Control("Command3"));
        ExpectFront("ESCarpForm", 2);
        estimate_ = program_.Window().Front();
        Click(Control("Command1(0)"));
        ExpectFront("ESTFORM", 3);
        EXPECT_FALSE(estimate_->isEnabled());
        EXPECT_FALSE(estimate_->isVisible());
    }
    void SearchToTheEnd() {
        Click(Control<QRadioButton>("Option1(0)"));
        Click(Control("Command1"));
        QCoreApplication::processEvents();
    }
    /// The estimate is back, can be used and is empty: what is printed carries no carpet, and
    /// drawing anew finds nothing.
    void ExpectEmptyEstimateInFront() {
        ExpectFront("ESCarpForm", 2);
        ASSERT_EQ(program_.Window().Front(), estimate_);
        EXPECT_TRUE(estimate_->isEnabled());
        EXPECT_EQ(program_.State().ECutCount, 0);
        Click(Control("Command5"));
        ASSERT_EQ(printer_.Estimates.size(), 1U);
        EXPECT_TRUE(printer_.Estimates[0].CarpetLines.empty());
        EXPECT_TRUE(printer_.Estimates[0].Drawing->Steps().empty());
        Click(Control("Command7"));
        ASSERT_EQ(printer_.Estimates[0].Drawing->Steps().size(), 1U);
        EXPECT_EQ(printer_.Estimates[0].Drawing->Steps()[0].Text, "NO FILLS TO DISPLAY");
    }

    Screen* estimate_ = nullptr;
};

TEST_F(SearchTest, IsStoppedByClosingTheWindow) {
    OpenOptions(false, {{"16", "8", "10", "0"}, {"10", "0", "14", "0"}});
    Click(Control<QRadioButton>("Option1(3)"));
    bool looked = false;
    QTimer::singleShot(0, &program_.Window(), [&] { // the first chance that the search gives
        looked = true;
        EXPECT_EQ(Front(), "ESTFORM");
        EXPECT_FALSE(estimate_->isEnabled()) << "the search is still running";
        program_.Window().close();
    });
    Click(Control("Command1"));
    QCoreApplication::processEvents();
    EXPECT_TRUE(looked);
    EXPECT_TRUE(boxes_.Messages.empty());
    ExpectEmptyEstimateInFront();
}

TEST_F(SearchTest, KeepsAClosingAtItsVeryEndFromTheEstimate) {
    OpenOptions(false, {{"16", "8", "10", "0"}, {"10", "0", "14", "0"}});
    const auto& bar = Control<QProgressBar>("ProgressBar1");
    QObject::connect(&bar, &QProgressBar::valueChanged, &program_.Window(), [&](int value) {
        if (value == bar.maximum()) {
            QCoreApplication::postEvent(&program_.Window(), new QCloseEvent);
        }
    });
    SearchToTheEnd();
    ExpectEmptyEstimateInFront();
}

TEST_F(SearchTest, LeavesAnEmptyEstimateAfterAnError) {
    OpenOptions(false, {{"11", "0", "2500", "0"}, {"11", "0", "2500", "0"}});
    SearchToTheEnd();
    ASSERT_EQ(boxes_.Messages.size(), 1U);
    EXPECT_EQ(boxes_.Messages[0].find("Run-time error '6':"), 0U);
    ExpectEmptyEstimateInFront();
}

TEST_F(SearchTest, LeavesAnEmptyEstimateWhenTheLayoutCannotBeDrawn) {
    OpenOptions(true, {{"4", "0", "0", "1"}}); // 1 cm: less than an inch of roll
    SearchToTheEnd();
    ASSERT_EQ(boxes_.Messages.size(), 1U);
    EXPECT_EQ(boxes_.Messages[0],
              "Run-time error '11':\r\n\r\nDivision by zero\r\nThe fills could not be laid out. "
              "The fills are shorter than 1 inch: check the sizes of this carpet's rooms.");
    ExpectEmptyEstimateInFront();
}

TEST_F(ProgramTest, KeepsUnsavedRoomsAcrossTheMenuAndDropsThemWithTheProject) {
    ASSERT_TRUE(Start());
    MakeProject("HOUSE");
    Click(Control("Command1(0)"));
    TypeRoom("10", "14");
    Click(Control("Back"));
    ExpectFront("MenuForm", 1);
    EXPECT_EQ(program_.State().ObjNum, 1);
    EXPECT_EQ(program_.State().RoomWidth[0], 120);
    Click(Control("Command1(1)"));
    ExpectFront("ProjectForm", 1);
    EXPECT_EQ(program_.State().ObjNum, 0);
    EXPECT_TRUE(
        RawDatabase(folder_.Path("data/DATA/Tarn.mdb")).Rows("SELECT * FROM InputData").empty());
}

TEST_F(ProgramTest, FillsTheDisplayWithEveryScreen) {
    ASSERT_TRUE(Start());
    const QRect display = program_.Window().screen()->geometry();
    const auto fits = [&] {
        return program_.Window().frameGeometry() ==
               QRect(display.topLeft(), QSize(display.width(), display.height() - Pixels(240)));
    };
    EXPECT_TRUE(QTest::qWaitFor(fits));
    const auto disturb = [&] {
        program_.Window().resize(500, 400);
        program_.Window().move(30, 40);
        QCoreApplication::processEvents();
        EXPECT_FALSE(fits()) << "the user's own doing stays";
    };
    disturb();
    MakeProject("HOUSE");
    EXPECT_TRUE(fits());
    disturb();
    Click(Control("Command1(0)"));
    EXPECT_TRUE(fits());
    TypeRoom("10", "14");
    disturb();
    Click(Control("Command3"));
    ExpectFront("ESCarpForm", 2);
    EXPECT_TRUE(fits());
    disturb();
    Click(Control("Command1(0)"));
    ExpectFront("ESTFORM", 3);
    EXPECT_TRUE(fits());
}

} // namespace
} // namespace tarn
