// Random keys, clicks and pastes through the whole program, and what has to hold after each.

#pragma once

#include "screens/MessageBoxes.h"
#include "screens/Program.h"
#include "screens/ScreenTesting.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include <deque>
#include <memory>
#include <random>
#include <string>
#include <vector>

class QInputDialog;
class QMessageBox;

namespace tarn::testing {

/// A user who presses and types anything, on a program with its real boxes and a printer that is
/// only recorded. The same seed does the same, as far as no search is cut off by the clock.
class Monkey : public QObject {
  public:
    /// `configuration` is the folder of a configuration file that names a data folder with the
    /// database at `database`.
    Monkey(unsigned seed, std::string configuration, std::string database);
    ~Monkey() override;

    /// One action, and all that comes of it until nothing waits any more.
    void Step();
    /// What does not hold now, in words; empty when all is well.
    std::vector<std::string> Faults();
    /// The same of the database file.
    std::vector<std::string> DatabaseFaults() const;

    /// What was done last.
    std::string LastActions() const;
    /// How often "Data is saved" was shown, and which screens were in front so far.
    int Saves() const { return saves_; }
    const std::vector<std::string>& ScreensSeen() const { return screensSeen_; }

  private:
    void StartProgram();
    void Note(const std::string& action);
    std::size_t Below(std::size_t count) { return random_() % count; }
    template <class T>
    const T& OneOf(const std::vector<T>& choices) {
        return choices[Below(choices.size())];
    }
    QString AnyText();

    QWidget* Focused() const;
    QWidget* AnyControl();
    void Click(QWidget* widget, bool twice);
    void FollowRoad();
    void PressKey();
    void TypeText();
    void PasteText();
    void FillField();

    /// Look after boxes and menus that wait for an answer inside a step, and after long searches.
    void AttendLater();
    void Attend();
    void Answer(QWidget& box);
    void AnswerMessage(QMessageBox& box);
    void AnswerInput(QInputDialog& box);
    void CheckSaved();
    void Settle();

    std::mt19937 random_;
    std::string configuration_;
    std::string database_;
    MessageBoxes boxes_;
    FakePrinter printer_;
    std::unique_ptr<Program> program_;
    QElapsedTimer sinceAction_;
    std::deque<std::string> actions_;
    std::vector<std::string> faults_; ///< found in the middle of a step
    std::vector<std::string> screensSeen_;
    int saves_ = 0;
};

} // namespace tarn::testing
