// The whole program in one process: its start, and the road through its screens.

#include "screens/ControlNames.h"
#include "screens/Display.h"
#include "screens/Program.h"
#include "screens/ScreenTesting.h"
#include "store/Backups.h"
#include "store/EnvironmentSetting.h"
#include "store/Schema.h"
#include "store/TestDatabase.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QThread>
#include <QTimer>

#include <array>
#include <atomic>
#include <utility>

namespace tarn {
namespace {

using namespace tarn::testing;

/// Calls back when it is asked for its page, on the thread that asks.
struct WatchingPrinter : HeldPrinter {
    std::function<void()> OnPage;

    PageSize Page() override {
        if (OnPage) {
            OnPage();
        }
        return HeldPrinter::Page();
    }
};

/// Whether an object was sent a paint event.
struct PaintWatch : QObject {
    std::atomic<bool> Painted = false;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            Painted = true;
        }
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
        return program_.Start({folder_.Path()}, display, today,
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
        Click(Control(Controls::selectProject));
        Click(Control(Controls::newProject));
        Type(Control<QLineEdit>(Controls::projectBox), name);
        Click(Control(Controls::acceptProject));
    }
    void TypeRoom(const char* feetWide, const char* feetLong) {
        Type(Control<QLineEdit>(Controls::roomWidthMajor), feetWide);
        Type(Control<QLineEdit>(Controls::roomLengthMajor), feetLong);
    }
    QLabel& Note() { return Find<QLabel>(program_.Window(), Controls::printingNote); }
    /// Press PRINT on the estimate's screen and wait for the page.
    void PressPrint() {
        Click(Control(Controls::printEstimate));
        EXPECT_TRUE(QTest::qWaitFor([this] { return !Note().isVisible(); }));
    }
    /// From the estimate's open choices to the options screen and through it.
    void ChooseAndSearch() {
        Click(Control(Controls::acceptChoices));
        ExpectFront(Controls::optionsScreen, 2);
        Click(Control<QRadioButton>(Controls::piecesPerFill[0]));
        Click(Control(Controls::layOutFills));
    }

    TestFolder folder_;
    FakeBoxes boxes_;
    WatchingPrinter printer_;
    Program program_{boxes_, printer_};
};

TEST_F(ProgramTest, MakesAProjectOfRoomsThatItIsStartedWith) {
    Room room;
    room.Width = 120;
    room.Length = 96;
    program_.OfferRooms({"house.csv", "house", [&](Units) { return std::vector{room}; }});
    boxes_.Choices = {"Feet and inches"};
    boxes_.Inputs = {"HOUSE"};
    ASSERT_TRUE(Start());
    EXPECT_TRUE(QTest::qWaitFor([this] { return Front() == Controls::menuScreen; }));
    EXPECT_EQ(program_.Project().Now.Name, "HOUSE");
    EXPECT_EQ(program_.Project().Now.Directory, "MARCH");
    EXPECT_EQ(program_.Project().Now.Rooms, std::vector{room});
}

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
    EXPECT_TRUE(boxes_.Questions.empty()) << "an empty one is a configuration";
    EXPECT_FALSE(program_.Window().isVisible());
}

TEST_F(ProgramTest, NotesWhatWasSavedUntilAnotherScreenIsInFront) {
    ASSERT_TRUE(Start());
    MakeProject("A");
    Click(Control(Controls::enterRooms));
    TypeRoom("10", "12");
    Click(Control(Controls::showReport));
    const std::string name = "a report with a name that is longer than what the line has room for";
    boxes_.Files = {folder_.Path(name + ".svg"), std::nullopt};
    auto* save = program_.Window().findChild<QAction*>(QString::fromLatin1(Controls::reportAsSvg));
    ASSERT_NE(save, nullptr);
    save->trigger();
    EXPECT_TRUE(Note().isVisible());
    EXPECT_EQ(FromQt(Note().accessibleName()), "Saved: " + name + ".svg");
    EXPECT_LE(Note().width(), program_.Window().width() / 2);
    EXPECT_TRUE(program_.Window().rect().contains(Note().geometry()));
    Click(Control(Controls::closeReport));
    EXPECT_TRUE(Note().isVisible());
    Click(Control(Controls::leaveRooms));
    EXPECT_FALSE(Note().isVisible());
}

/// The program in an empty home.
class FirstStartTest : public ::testing::Test {
  protected:
    bool Start() {
        return program_.Start(
            {home_.Path("config")}, {800, 600}, [] { return QDate(2026, 3, 14); }, QLocale::c());
    }

    TestFolder home_;
    EnvironmentSetting data_{"XDG_DATA_HOME", home_.Path("share").c_str()};
    FakeBoxes boxes_;
    FakePrinter printer_;
    Program program_{boxes_, printer_};
};

TEST_F(FirstStartTest, OffersADataFolderAfterTheMessageAndGoesOnWithIt) {
    boxes_.YesNo = {true};
    ASSERT_TRUE(Start());
    EXPECT_EQ(boxes_.Messages, std::vector<std::string>{"Couldn't find TarnWin.ini"});
    ASSERT_EQ(boxes_.Questions.size(), 1U);
    EXPECT_NE(boxes_.Questions[0].find(home_.Path("share/tarn")), std::string::npos);
    EXPECT_NE(boxes_.Questions[0].find(home_.Path("config/TarnWin.INI")), std::string::npos);
    EXPECT_TRUE(program_.Window().isVisible());
    QWidget& front = *program_.Window().Front();
    EXPECT_EQ(FromQt(front.objectName()), Controls::projectScreen);
    Click(Find(front, Controls::selectProject));
    EXPECT_EQ(boxes_.Messages.size(), 1U) << "its database can be used";
    Program next(boxes_, printer_);
    EXPECT_TRUE(next.Start(
        {home_.Path("config")}, {800, 600}, [] { return QDate(2026, 3, 14); }, QLocale::c()));
    EXPECT_EQ(boxes_.Questions.size(), 1U) << "it is asked once";
}

TEST_F(FirstStartTest, MakesNothingWithoutAYes) {
    boxes_.YesNo = {false};
    EXPECT_FALSE(Start());
    EXPECT_EQ(boxes_.Messages, std::vector<std::string>{"Couldn't find TarnWin.ini"});
    EXPECT_TRUE(home_.Content().empty());
    EXPECT_FALSE(program_.Window().isVisible());
}

TEST_F(FirstStartTest, SaysWhyNothingCouldBeMade) {
    WriteFile(home_.Path("share"), "in the way");
    boxes_.YesNo = {true};
    EXPECT_FALSE(Start());
    ASSERT_EQ(boxes_.Messages.size(), 2U);
    EXPECT_EQ(boxes_.Messages[1].find("Nothing was made. The folder " +
                                      home_.Path("share/tarn/DATA") + " cannot be made:"),
              0U)
        << boxes_.Messages[1];
    EXPECT_EQ(home_.Content(), std::vector<std::string>{"share"});
    EXPECT_FALSE(program_.Window().isVisible());
}

TEST_F(FirstStartTest, ChecksTheDisplayBeforeItOffersAnything) {
    EXPECT_FALSE(program_.Start(
        {home_.Path("config")}, {799, 600}, [] { return QDate(2026, 3, 14); }, QLocale::c()));
    EXPECT_TRUE(boxes_.Questions.empty());
}

TEST_F(ProgramTest, ShowsTheProjectSelectionAndThenReadsThePrintersPage) {
    ASSERT_TRUE(Start());
    ExpectFront(Controls::projectScreen, 1);
    EXPECT_EQ(program_.Page().Width, 0) << "the first screen does not wait for the printer";
    EXPECT_TRUE(QTest::qWaitFor([&] { return program_.Page().Width == 16838; }));
    EXPECT_EQ(program_.Page().Height, 11906);
    EXPECT_EQ(program_.Project().Now.Directory, "MARCH");
    EXPECT_TRUE(boxes_.Messages.empty());
}

TEST_F(ProgramTest, PaintsTheFirstScreenBeforeItAsksThePrinter) {
    PaintWatch watch;
    std::atomic<int> asked = 0;
    std::atomic<bool> early = false;
    printer_.OnPage = [&] {
        ++asked;
        early = !watch.Painted;
    };
    ASSERT_TRUE(Start());
    Control(Controls::selectProject).installEventFilter(&watch);
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked > 0; }));
    program_.Window().update();
    QCoreApplication::processEvents();
    EXPECT_EQ(asked, 1);
    EXPECT_FALSE(early);
}

TEST_F(ProgramTest, GoesOnWhileAPrintServerKeepsSilent) {
    printer_.Hold();
    ASSERT_TRUE(Start());
    MakeProject("HOUSE");
    Click(Control(Controls::enterRooms));
    TypeRoom("10", "14");
    Click(Control(Controls::estimateFromRooms));
    Click(Control(Controls::cancelChoices));
    EXPECT_FALSE(Note().isVisible()) << "nothing is printed yet";
    Click(Control(Controls::printEstimate));
    EXPECT_TRUE(Note().isVisible());
    EXPECT_EQ(Note().text(), QStringLiteral("Printing ..."));
    EXPECT_TRUE(program_.Window().rect().contains(Note().geometry()));
    Click(Control(Controls::leaveEstimate));
    ExpectFront(Controls::roomScreen, 1);
    EXPECT_TRUE(Note().isVisible()) << "on every screen";
    Click(Control(Controls::nextRoom));
    TypeRoom("12", "9");
    Click(Control(Controls::nextRoom));
    EXPECT_EQ(program_.Project().Now.Rooms.size(), 2U);
    EXPECT_EQ(program_.Page(), PageTwips()) << "the printer has not answered";
    printer_.Failure = "It is off.";
    printer_.Release();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Note().isVisible(); }));
    EXPECT_EQ(boxes_.Messages, std::vector<std::string>{PrinterNotReadyMessage});
    ExpectFront(Controls::roomScreen, 1);
}

TEST_F(ProgramTest, EndsOnceItHasPrintedWhatItWasToldTo) {
    ASSERT_TRUE(Start());
    MakeProject("HOUSE");
    Click(Control(Controls::enterRooms));
    TypeRoom("10", "14");
    Click(Control(Controls::showReport));
    printer_.Hold();
    Click(Control(Controls::printReport));
    Click(Control(Controls::closeReport));
    Click(Control(Controls::leaveRooms));
    Click(Control(Controls::backToProjects));
    bool printed = false;
    const auto release = [this] { printer_.Release(); };
    QTimer::singleShot(0, &program_.Window(), [&] {
        Click(Control(Controls::exitProgram));
        EXPECT_FALSE(program_.Window().isVisible());
        printed = printer_.Reports.size() == 1;
    });
    const std::unique_ptr<QThread> server(QThread::create(release));
    server->start();
    QCoreApplication::exec();
    server->wait();
    EXPECT_TRUE(printed);
    EXPECT_TRUE(boxes_.Messages.empty());
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
    EXPECT_EQ(program_.Project().Now.Directory, "MARCH");
    today = QDate(2026, 4, 1);
    Click(Control(Controls::selectProject));
    EXPECT_EQ(Control<QListWidget>(Controls::months).currentItem()->text(),
              QStringLiteral("APRIL"));
}

TEST_F(ProgramTest, UnloadsItsScreensBeforeWhatTheyWorkOn) {
    auto program = std::make_unique<Program>(boxes_, printer_);
    auto token = std::make_shared<int>();
    const std::weak_ptr<int> session = token;
    ASSERT_TRUE(program->Start(
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
    std::atomic<bool> asked = false;
    printer_.OnPage = [&] { asked = true; };
    ASSERT_TRUE(Start());
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked.load(); }));
    EXPECT_EQ(program_.Page().Width, 0);
    EXPECT_TRUE(boxes_.Messages.empty());
}

TEST_F(ProgramTest, WalksFromTheMenuToTheLayoutAndBack) {
    ASSERT_TRUE(Start());
    MakeProject("HOUSE");
    ExpectFront(Controls::menuScreen, 1);
    Click(Control(Controls::enterRooms));
    ExpectFront(Controls::roomScreen, 1);
    TypeRoom("10", "14");
    Click(Control(Controls::saveRooms));
    EXPECT_EQ(boxes_.Messages, std::vector<std::string>{"Data is saved"});
    Click(Control(Controls::leaveRooms));
    ExpectFront(Controls::menuScreen, 1);
    Click(Control(Controls::estimateFromMenu));
    ExpectFront(Controls::estimateScreen, 1);
    ChooseAndSearch();
    ExpectFront(Controls::estimateScreen, 1);
    EXPECT_TRUE(program_.Window().Front()->isEnabled());
    boxes_.Messages.clear();
    Click(Control(Controls::improveFills));
    EXPECT_EQ(boxes_.Messages, std::vector<std::string>{"No better layout was found: this one is "
                                                        "the least possible."});
    Click(Control(Controls::leaveEstimate));
    ExpectFront(Controls::menuScreen, 1);
    Click(Control(Controls::backToProjects));
    ExpectFront(Controls::projectScreen, 1);
}

TEST_F(ProgramTest, ReturnsFromTheEstimateToTheRoomsThatOpenedIt) {
    ASSERT_TRUE(Start());
    MakeProject("HOUSE");
    Click(Control(Controls::enterRooms));
    TypeRoom("10", "14");
    Screen* rooms = program_.Window().Front();
    Click(Control(Controls::estimateFromRooms));
    ExpectFront(Controls::estimateScreen, 2);
    EXPECT_FALSE(rooms->isEnabled());
    EXPECT_FALSE(rooms->isVisible());
    Click(Control(Controls::acceptChoices));
    ExpectFront(Controls::optionsScreen, 3);
    program_.Window().close();
    ExpectFront(Controls::estimateScreen, 2);
    Click(Control(Controls::leaveEstimate));
    ExpectFront(Controls::roomScreen, 1);
    EXPECT_EQ(program_.Window().Front(), rooms);
    EXPECT_TRUE(rooms->isEnabled());
    program_.Window().close();
    ExpectFront(Controls::menuScreen, 1);
}

TEST_F(ProgramTest, OffersWhatWasTypedAndNotSavedAgain) {
    ASSERT_TRUE(Start());
    MakeProject("HOUSE");
    Click(Control(Controls::enterRooms));
    TypeRoom("10", "14");
    Click(Control(Controls::nextRoom));
    Type(Control<QLineEdit>(Controls::remark), "hall");
    program_.Window().close(); // a double click on the cross
    program_.Window().close();
    EXPECT_FALSE(program_.Window().isVisible());
    EXPECT_TRUE(boxes_.Questions.empty()) << "nothing is asked";

    Program next(boxes_, printer_);
    ASSERT_TRUE(next.Start(
        {folder_.Path()}, {800, 600}, [] { return QDate(2026, 3, 14); },
        QLocale(QLocale::English, QLocale::UnitedStates)));
    const auto control = [&next](const char* name) -> QPushButton& {
        return Find<QPushButton>(*next.Window().Front(), name);
    };
    Click(control(Controls::selectProject));
    auto& projects = Find<QListWidget>(*next.Window().Front(), Controls::projects);
    QTest::mouseClick(projects.viewport(), Qt::LeftButton, {},
                      projects.visualItemRect(projects.item(0)).center());
    Click(control(Controls::acceptProject));
    EXPECT_TRUE(next.Project().Now.Rooms.empty()) << "what is stored is opened";
    Click(control(Controls::takeBack));
    EXPECT_EQ(next.Project().Now.Rooms.size(), 1U);
    Click(control(Controls::enterRooms));
    EXPECT_EQ(Find<QLineEdit>(*next.Window().Front(), Controls::remark).text(),
              QStringLiteral("hall"));
    Click(control(Controls::saveRooms));
    EXPECT_EQ(boxes_.Messages, std::vector<std::string>{"Data is saved"});
    Click(control(Controls::leaveRooms));
    EXPECT_FALSE(control(Controls::takeBack).isVisible()) << "it is stored";
}

TEST_F(ProgramTest, OffersItAgainAfterGoingBackwardToo) {
    ASSERT_TRUE(Start());
    MakeProject("HOUSE");
    Click(Control(Controls::enterRooms));
    TypeRoom("10", "14");
    Click(Control(Controls::leaveRooms));
    Click(Control(Controls::backToProjects));
    Click(Control(Controls::selectProject));
    auto& projects = Control<QListWidget>(Controls::projects);
    QTest::mouseClick(projects.viewport(), Qt::LeftButton, {},
                      projects.visualItemRect(projects.item(0)).center());
    Click(Control(Controls::acceptProject));
    EXPECT_TRUE(program_.Project().Now.Rooms.empty());
    Click(Control(Controls::takeBack));
    EXPECT_EQ(program_.Project().Now.Rooms.size(), 1U);
}

TEST_F(ProgramTest, KeepsWhatIsTypedWhenItIsUnloaded) {
    auto program = std::make_unique<Program>(boxes_, printer_);
    ASSERT_TRUE(program->Start(
        {folder_.Path()}, {800, 600}, [] { return QDate(2026, 3, 14); }, QLocale::c()));
    const auto control = [&program](const char* name) -> QWidget& {
        return Find<QWidget>(*program->Window().Front(), name);
    };
    Click(control(Controls::selectProject));
    Click(control(Controls::newProject));
    Type(control(Controls::projectBox), "shed");
    Click(control(Controls::acceptProject));
    Click(control(Controls::enterRooms));
    Type(control(Controls::remark), "hall");
    program.reset();
    const Drafts drafts = UserDrafts(folder_.Path("data/DATA/Tarn.mdb"));
    ASSERT_EQ(drafts.Of("SHED").size(), 1U);
    EXPECT_EQ(drafts.Of("SHED")[0].Record.Content.Typed.New->Remark, "hall");
}

/// The program on the options screen above the estimate of some rooms, opened from the room entry.
class SearchTest : public ProgramTest {
  protected:
    void OpenOptions(bool metric, std::initializer_list<std::array<const char*, 4>> rooms) {
        ASSERT_TRUE(Start());
        MakeProject("HOUSE");
        if (metric) {
            Click(Control<QCheckBox>(Controls::metric));
        }
        Click(Control(Controls::enterRooms));
        bool first = true;
        for (const auto& room : rooms) {
            if (!std::exchange(first, false)) {
                Click(Control(Controls::nextRoom));
            }
            constexpr std::array sizes{Controls::roomWidthMajor, Controls::roomWidthMinor,
                                       Controls::roomLengthMajor, Controls::roomLengthMinor};
            for (int i = 0; i < 4; ++i) {
                Type(Control<QLineEdit>(sizes[static_cast<std::size_t>(i)]),
                     room[static_cast<std::size_t>(i)]);
            }
        }
        Click(Control(Controls::estimateFromRooms));
        ExpectFront(Controls::estimateScreen, 2);
        estimate_ = program_.Window().Front();
        Click(Control(Controls::acceptChoices));
        ExpectFront(Controls::optionsScreen, 3);
        EXPECT_FALSE(estimate_->isEnabled());
        EXPECT_FALSE(estimate_->isVisible());
    }
    void SearchToTheEnd() {
        Click(Control<QRadioButton>(Controls::piecesPerFill[0]));
        Click(Control(Controls::layOutFills));
        QCoreApplication::processEvents();
    }
    /// The estimate is back, can be used and is empty: what is printed carries no carpet, and
    /// drawing anew finds nothing.
    void ExpectEmptyEstimateInFront() {
        ExpectFront(Controls::estimateScreen, 2);
        ASSERT_EQ(program_.Window().Front(), estimate_);
        EXPECT_TRUE(estimate_->isEnabled());
        PressPrint();
        ASSERT_EQ(printer_.Estimates.size(), 1U);
        EXPECT_TRUE(printer_.Estimates[0].CarpetLines.empty());
        EXPECT_TRUE(printer_.Estimates[0].Picture.Steps().empty());
        Click(Control(Controls::redrawLayout));
        PressPrint();
        const Drawing& redrawn = printer_.Estimates.back().Picture;
        ASSERT_EQ(redrawn.Steps().size(), 1U);
        EXPECT_EQ(redrawn.Steps()[0].Text, "NO FILLS TO DISPLAY");
    }

    Screen* estimate_ = nullptr;
};

TEST_F(SearchTest, IsStoppedByClosingTheWindow) {
    OpenOptions(false, {{"16", "8", "10", "0"}, {"10", "0", "14", "0"}});
    Click(Control<QRadioButton>(Controls::piecesPerFill[3]));
    bool looked = false;
    QTimer::singleShot(0, &program_.Window(), [&] { // the first chance that the search gives
        looked = true;
        EXPECT_EQ(Front(), Controls::optionsScreen);
        EXPECT_FALSE(estimate_->isEnabled()) << "the search is still running";
        program_.Window().close();
    });
    Click(Control(Controls::layOutFills));
    QCoreApplication::processEvents();
    EXPECT_TRUE(looked);
    EXPECT_TRUE(boxes_.Messages.empty());
    ExpectEmptyEstimateInFront();
}

TEST_F(SearchTest, KeepsAClosingAtItsVeryEndFromTheEstimate) {
    OpenOptions(false, {{"16", "8", "10", "0"}, {"10", "0", "14", "0"}});
    const auto& bar = Control<QProgressBar>(Controls::searchProgress);
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
    Click(Control(Controls::enterRooms));
    TypeRoom("10", "14");
    Click(Control(Controls::leaveRooms));
    ExpectFront(Controls::menuScreen, 1);
    ASSERT_EQ(program_.Project().Now.Rooms.size(), 1U);
    EXPECT_EQ(program_.Project().Now.Rooms[0].Width, 120);
    Click(Control(Controls::backToProjects));
    ExpectFront(Controls::projectScreen, 1);
    EXPECT_TRUE(program_.Project().Now.Rooms.empty());
    EXPECT_TRUE(
        RawDatabase(folder_.Path("data/DATA/Tarn.mdb")).Rows("SELECT * FROM InputData").empty());
}

TEST_F(ProgramTest, BacksUpTheDataBeforeTheFirstChangeOfARun) {
    const std::string database = folder_.Path("data/DATA/Tarn.mdb");
    RawDatabase(database).Run("INSERT INTO DirTab VALUES ('OLD')");
    ASSERT_TRUE(Start());
    EXPECT_TRUE(BackupsOf(database).empty()) << "nothing was changed yet";
    MakeProject("HOUSE");
    ASSERT_EQ(BackupsOf(database).size(), 1U);
    RawDatabase backup(BackupsOf(database).front().Path);
    EXPECT_EQ(backup.Rows("SELECT Directory FROM DirTab"), std::vector<std::string>{"OLD"});
    EXPECT_TRUE(backup.Rows("SELECT * FROM ProjTab").empty());

    Click(Control(Controls::enterRooms));
    TypeRoom("10", "14");
    Click(Control(Controls::saveRooms));
    EXPECT_EQ(BackupsOf(database).size(), 1U) << "one for each run";
    EXPECT_EQ(boxes_.Messages, std::vector<std::string>{"Data is saved"});
}

TEST_F(ProgramTest, ChangesDataAlsoWhereNoBackupCanBeMadeAndSaysSoOnce) {
    WriteFile(folder_.Path("data/BACKUP"), "in the way");
    ASSERT_TRUE(Start());
    MakeProject("HOUSE");
    ExpectFront(Controls::menuScreen, 1);
    ASSERT_EQ(boxes_.Messages.size(), 1U);
    EXPECT_EQ(boxes_.Messages[0].find("There is no backup of the data as it was before this "
                                      "change. The file " +
                                      folder_.Path("data/BACKUP")),
              0U)
        << boxes_.Messages[0];
    Click(Control(Controls::enterRooms));
    TypeRoom("10", "14");
    Click(Control(Controls::saveRooms));
    EXPECT_EQ(boxes_.Messages.size(), 2U);
    EXPECT_EQ(boxes_.Messages.back(), "Data is saved");
    EXPECT_EQ(RawDatabase(folder_.Path("data/DATA/Tarn.mdb")).Rows("SELECT ProjName FROM ProjTab"),
              std::vector<std::string>{"HOUSE"});
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
    Click(Control(Controls::enterRooms));
    EXPECT_TRUE(fits());
    TypeRoom("10", "14");
    disturb();
    Click(Control(Controls::estimateFromRooms));
    ExpectFront(Controls::estimateScreen, 2);
    EXPECT_TRUE(fits());
    disturb();
    Click(Control(Controls::acceptChoices));
    ExpectFront(Controls::optionsScreen, 3);
    EXPECT_TRUE(fits());
}

} // namespace
} // namespace tarn
