#include "screens/EveryScreen.h"

#include "screens/ControlNames.h"
#include "screens/Program.h"
#include "screens/ScreenTesting.h"
#include "store/Schema.h"
#include "store/TestDatabase.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTimer>

#include <array>

namespace tarn::testing {

namespace {

/// The program, and what is done in it on the way.
class Walk {
  public:
    Walk(Units units, const VisitScreen& visit)
        : units_(units)
        , visit_(visit) {
        CreateDatabaseFile(folder_.Path("data/DATA/Tarn.mdb"));
        WriteFile(folder_.Path("TarnWin.INI"),
                  "[TarnWin Directory]\n" + folder_.Path("data") + "\n");
    }

    void Go() {
        if (!program_.Start(
                {folder_.Path()}, {800, 600}, [] { return QDate(2026, 3, 14); }, QLocale::c())) {
            throw std::runtime_error("the program does not start");
        }
        Visit("start");
        MakeProject("A HOUSE WITH A RATHER LONG NAME IN THE STREET OF THE OLD OAK, 12");
        Visit("menu of a new project");
        EnterRooms();
        Visit("report");
        Press(Controls::closeReport);
        Press(Controls::leaveRooms);
        Visit("menu of unsaved rooms");
        Press(Controls::backToProjects);
        OpenProject();
        Visit("menu with a draft");
        Press(Controls::takeBack);
        TickMetric();
        Press(Controls::enterRooms);
        Press(Controls::saveRooms);
        Estimate();
    }

  private:
    template <class W = QWidget>
    W& Control(const char* name) {
        return Find<W>(*program_.Window().Front(), name);
    }
    void Press(const char* button) { Control<QPushButton>(button).click(); }
    void Visit(const std::string& state) {
        program_.Window().activateWindow();
        if (!QTest::qWaitForWindowActive(&program_.Window())) {
            throw std::runtime_error("the program's window is not active");
        }
        visit_(state, program_.Window());
    }

    void MakeProject(const char* name) {
        Press(Controls::selectProject);
        Visit("projects");
        Press(Controls::newProject);
        Type(Control(Controls::projectBox), name);
        Press(Controls::acceptProject);
    }
    void OpenProject() {
        Press(Controls::selectProject);
        Control<QListWidget>(Controls::projects).setCurrentRow(0);
        Visit("projects with one chosen");
        Press(Controls::acceptProject);
    }
    void TickMetric() {
        if (units_ == Units::Metric) {
            Control<QCheckBox>(Controls::metric).setChecked(true);
        }
    }
    void TypeRoom(const char* width, const char* length, const char* remark, int covering) {
        Type(Control(Controls::roomWidthMajor), width);
        Type(Control(Controls::roomLengthMajor), length);
        Control<QComboBox>(Controls::covering).setCurrentIndex(covering);
        Type(Control(Controls::wallBase), "W2L1");
        Type(Control(Controls::roomNumber), "101");
        Type(Control(Controls::remark), remark);
        Press(Controls::nextRoom);
    }
    void EnterRooms() {
        TickMetric();
        Press(Controls::enterRooms);
        Visit("rooms");
        const bool metric = units_ == Units::Metric;
        TypeRoom(metric ? "4.5" : "14.5", metric ? "5" : "18", "living", 0);
        TypeRoom(metric ? "3" : "10", metric ? "4" : "14", "bedroom with a bay window", 0);
        TypeRoom(metric ? "2" : "8", "6", "bath", 8);
        Type(Control(Controls::roomWidthMajor), "3,45");
        Visit("rooms with a note");
        Control<QLineEdit>(Controls::roomWidthMajor).clear();
        Press(Controls::showReport);
    }
    void Estimate() {
        Press(Controls::estimateFromRooms);
        Visit("choices");
        Control<QRadioButton>(Controls::otherWidth).click();
        Control<QCheckBox>(Controls::matchPattern).click();
        Visit("choices with boxes");
        Control<QRadioButton>(Controls::standardWidths[1]).click();
        Control<QCheckBox>(Controls::matchPattern).click();
        Press(Controls::acceptChoices);
        Visit("options");
        Control<QRadioButton>(Controls::piecesPerFill[2]).click();
        Visit("options chosen");
        Press(Controls::layOutFills);
        Visit("result");
        Improve();
        Press(Controls::pasteCuts);
        Visit("result while cuts are pasted");
        Press(Controls::openOrder);
        Order();
    }
    /// The first press may only take what was found meanwhile.
    void Improve() {
        constexpr int Presses = 3;
        bool visited = false;
        for (int press = 0; press < Presses && !visited; ++press) {
            QTimer::singleShot(0, &program_.Window(), [this, &visited] {
                if (Control(Controls::improvePanel).isVisible()) {
                    visited = true;
                    Visit("improving");
                    Press(Controls::stopImproving);
                }
            });
            Press(Controls::improveFills);
            QCoreApplication::processEvents();
        }
        if (!visited) {
            throw std::runtime_error("there is nothing to improve");
        }
    }
    void Order() {
        const auto& stop = Control<QPushButton>(Controls::stopComparing);
        if (!QTest::qWaitFor([&stop] { return !stop.isEnabled(); }, 20000)) {
            throw std::runtime_error("the comparison does not end");
        }
        auto& parts = Control<QTabBar>(Controls::orderParts);
        for (int part = 0; part < parts.count(); ++part) {
            parts.setCurrentIndex(part);
            Visit("order, part " + std::to_string(part + 1));
        }
        Control<QLineEdit>(Controls::orderPatternAcross).setText(QStringLiteral("7"));
        Control<QLineEdit>(Controls::orderStep).setText(QStringLiteral("9,5"));
        Press(Controls::compare);
        Visit("order, refused");
    }

    Units units_;
    VisitScreen visit_;
    TestFolder folder_;
    FakeBoxes boxes_;
    FakePrinter printer_;
    Program program_{boxes_, printer_};
};

} // namespace

void VisitEveryScreen(Units units, const VisitScreen& visit) {
    Walk(units, visit).Go();
}

} // namespace tarn::testing
