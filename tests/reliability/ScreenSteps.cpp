// The whole program on its screens, driven by mouse and key events until it is killed: it types a
// version into every room of a project, leaves the rooms and comes back, and saves. Lines on
// standard output tell what is done: "left 7" when the room screen with version 7 typed in was left
// without saving, "saved 7" when the program said that it is saved.

#include "screens/ControlNames.h"
#include "screens/OpenProject.h"
#include "screens/Program.h"
#include "screens/ScreenTesting.h"
#include "screens/Theme.h"
#include "tools/ExitStatus.h"
#include "tools/ToolMain.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <string>
#include <unistd.h>

namespace {

using namespace tarn;
using namespace tarn::testing;

constexpr int RoomsOfProject = 3;

/// In one call, so that it is known when that was.
void Say(const std::string& text) {
    const std::string line = text + '\n';
    if (write(STDOUT_FILENO, line.data(), line.size()) != static_cast<ssize_t>(line.size())) {
        throw std::runtime_error("Standard output cannot be written.");
    }
}

/// Nobody is asked anything; every message but the one awaited ends the program.
struct Boxes : FakeBoxes {
    bool IsSaved = false;

    void Message(const std::string& text, const std::string& informative) override {
        if (text != SavedMessage) {
            std::cerr << "tarn_screen_steps: " << text << ' ' << informative << '\n';
            std::_Exit(Refused); // an exception does not pass the toolkit
        }
        IsSaved = true;
    }
};

class User {
  public:
    explicit User(const std::string& configuration) {
        const bool started = program_.Start(
            {configuration}, {800, 600}, [] { return QDate(2026, 3, 14); },
            QLocale(QLocale::English, QLocale::UnitedStates));
        if (!started) {
            throw std::runtime_error("The program does not start.");
        }
    }

    void OpenProject(const char* name) {
        Press(Controls::selectProject);
        auto& list = Control<QListWidget>(Controls::projects);
        const auto found = list.findItems(QString::fromLatin1(name), Qt::MatchExactly);
        if (found.size() != 1) {
            throw std::runtime_error("The project is not in the list.");
        }
        const QPoint place = list.visualItemRect(found.front()).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
        Press(Controls::acceptProject);
    }
    /// From the menu and back to it.
    void TypeAndSave(int version) {
        Press(Controls::enterRooms);
        TypeVersion(version);
        const bool leavesFirst = version % 2 == 1;
        if (leavesFirst) {
            Press(Controls::leaveRooms);
            Say("left " + std::to_string(version));
            Press(Controls::enterRooms);
        }
        boxes_.IsSaved = false;
        Press(Controls::saveRooms);
        if (!boxes_.IsSaved) {
            throw std::runtime_error("Nothing was saved.");
        }
        Say("saved " + std::to_string(version));
        Press(Controls::leaveRooms);
    }

  private:
    template <class W>
    W& Control(const char* name) {
        return Find<W>(*program_.Window().Front(), name);
    }
    void Press(const char* button) {
        Click(Control<QPushButton>(button));
        QCoreApplication::processEvents();
    }
    void TypeInto(const char* name, const std::string& text) {
        auto& field = Control<QLineEdit>(name);
        field.setFocus(Qt::MouseFocusReason);
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        Type(field, text);
    }
    void TypeVersion(int version) {
        for (int room = 0; room < RoomsOfProject; ++room) {
            Press(Controls::previousRoom);
            TypeInto(Controls::roomWidthMinor, std::to_string(version % 12));
            TypeInto(Controls::remark, "version " + std::to_string(version));
        }
    }

    Boxes boxes_;
    FakePrinter printer_;
    Program program_{boxes_, printer_};
};

} // namespace

/// tarn_screen_steps CONFIGURATION-DIRECTORY FIRST-VERSION
int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const Theme theme(application);
    return RunTool("tarn_screen_steps", [&] {
        const std::vector<std::string> arguments(argv + 1, argv + argc);
        User user(arguments.at(0));
        user.OpenProject("WORK");
        for (int version = std::stoi(arguments.at(1));; ++version) {
            user.TypeAndSave(version);
        }
    });
}
