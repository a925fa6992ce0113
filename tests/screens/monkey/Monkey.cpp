#include "screens/monkey/Monkey.h"

#include "Sanitized.h"
#include "base/Text.h"
#include "project/Coverings.h"
#include "screens/ControlNames.h"
#include "screens/OpenProject.h"
#include "store/Check.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <map>
#include <utility>

namespace tarn::testing {

namespace {

/// Milliseconds, before the user gives it up.
constexpr qint64 LongestSearch = UnlessSanitized(300, 1500);
constexpr std::size_t ActionsKept = 40;

/// Sizes and other texts that fields are meant for.
const std::vector<QString>& GoodTexts() {
    static const std::vector<QString> texts = {
        QStringLiteral("12"),    QStringLiteral("6"),   QStringLiteral("3.5"),
        QStringLiteral("20"),    QStringLiteral("9"),   QStringLiteral("W2L1"),
        QStringLiteral("L2"),    QStringLiteral("101"), QStringLiteral("bay window"),
        QStringLiteral("SMITH"), QStringLiteral("366"), QStringLiteral("18")};
    return texts;
}

/// What nobody should have to type, but somebody pastes.
const std::vector<QString>& OddTexts() {
    static const std::vector<QString> texts = {QString(),
                                               QString(QChar(0xFFFE)),
                                               QStringLiteral("a") + QChar(0xFFFF) +
                                                   QStringLiteral("b"),
                                               QString(QChar(0xD800)),
                                               QString(QChar(0xDC00)) + QChar(0xD800),
                                               QString(QChar(0)) + QStringLiteral("x"),
                                               QStringLiteral("a\tb\nc\r\nd\n"),
                                               QStringLiteral("\x1b[31m\x07\x7f\u0085"),
                                               QStringLiteral("\u2028\u2029\u200f\u202e"),
                                               QStringLiteral("e\u0301\U0001F600\u00df\u0131"),
                                               QStringLiteral("12'6\""),
                                               QStringLiteral("\"\"\"'''"),
                                               QStringLiteral("<b>R&D</b>"),
                                               QStringLiteral("=1+1"),
                                               QStringLiteral("-5"),
                                               QStringLiteral("0,5"),
                                               QStringLiteral("1e308"),
                                               QStringLiteral("99999999999999999999"),
                                               QStringLiteral("32767"),
                                               QStringLiteral("40000"),
                                               QStringLiteral("\\/:*?\"<>|"),
                                               QString(300, QLatin1Char('7')),
                                               QString(5000, QLatin1Char('x'))};
    return texts;
}

const std::vector<Qt::Key>& Keys() {
    static const std::vector<Qt::Key> keys = {
        Qt::Key_Tab,      Qt::Key_Backtab,   Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape,
        Qt::Key_Space,    Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Up,    Qt::Key_Down,
        Qt::Key_Left,     Qt::Key_Right,     Qt::Key_Home,   Qt::Key_End,   Qt::Key_PageUp,
        Qt::Key_PageDown, Qt::Key_F1,        Qt::Key_F2,     Qt::Key_F10,   Qt::Key_Menu,
        Qt::Key_Alt};
    return keys;
}

/// Letters with Ctrl that fields and screens may know.
const std::vector<Qt::Key>& Commands() {
    static const std::vector<Qt::Key> keys = {Qt::Key_A, Qt::Key_C, Qt::Key_X, Qt::Key_V,
                                              Qt::Key_Z, Qt::Key_Y, Qt::Key_S, Qt::Key_P};
    return keys;
}

bool HoldsNoCharacter(const std::string& text) {
    const QString shown = ToQt(text);
    return std::any_of(shown.begin(), shown.end(), [](QChar c) {
        return c.unicode() < 0x20 || c.unicode() >= 0xFFFE || c == QChar(0x7F);
    });
}

std::vector<std::string> RoomFaults(const Project& project) {
    std::vector<std::string> faults;
    if (project.Rooms.size() > RoomCapacity) {
        faults.emplace_back("there are more rooms than a project holds");
    }
    for (const Room& room : project.Rooms) {
        if (room.Width < 0 || room.Length < 0 || room.Covering > LastTileCode || room.Base > 8) {
            faults.emplace_back("a room has a number out of range");
        }
        if (Len(room.Number) > MaxRoomNumberLength || Len(room.Remark) > MaxRemarkLength) {
            faults.emplace_back("a room has a text that is too long");
        }
        if (HoldsNoCharacter(room.Number) || HoldsNoCharacter(room.Remark)) {
            faults.emplace_back("a room has a text with what is no character");
        }
    }
    return faults;
}

/// The key on which a character stands, where it has one of its own.
Qt::Key KeyOf(QChar c) {
    const bool hasKey = c.unicode() < 0x80 && c.isPrint();
    return hasKey ? static_cast<Qt::Key>(c.toUpper().unicode()) : Qt::Key_unknown;
}

/// The controls that lead from screen to screen and do what each is for, by screens.
const std::map<std::string, std::vector<const char*>>& Road() {
    using namespace Controls;
    static const std::map<std::string, std::vector<const char*>> road = {
        {projectScreen, {selectProject, projects, projects, acceptProject, newProject}},
        {menuScreen, {enterRooms, estimateFromMenu, metric}},
        {roomScreen,
         {nextRoom, saveRooms, saveRooms, previousRoom, estimateFromRooms, showReport, leaveRooms}},
        {estimateScreen,
         {acceptChoices, openChoices, lastChoices, improveFills, undoImprovement, pasteCuts,
          redrawLayout, printEstimate, saveFromEstimate, leaveEstimate}},
        {optionsScreen, {piecesPerFill[0], layOutFills}}};
    return road;
}

/// What ends the program is pressed seldom, or nothing else would ever come of it.
bool EndsProgram(const QWidget& widget) {
    const std::string name = FromQt(widget.objectName());
    return name == Controls::exitProgram || name == Controls::exitFromMenu;
}

/// The toolkit opens no box any more once the program was ended, until its main loop has run.
void ForgetEnd() {
    QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
    QCoreApplication::exec();
}

/// On other screens it is the machine that is slow.
bool MaySearch(const ScreenWindow& window) {
    const Screen* front = window.Front();
    const std::string name = front == nullptr ? "" : FromQt(front->objectName());
    return name == Controls::estimateScreen || name == Controls::optionsScreen;
}

/// As QTest::mouseClick does, which releases the button over a widget that is gone, too: pressing a
/// button with a menu returns when the menu is closed, and its screen may have been left by then.
void PressAndRelease(QWidget* widget, QPoint place) {
    const QPointer<QWidget> pressed(widget);
    QTest::mousePress(widget, Qt::LeftButton, {}, place);
    if (pressed != nullptr) {
        QTest::mouseRelease(widget, Qt::LeftButton, {}, place);
    }
}

bool TakesClicks(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && !widget.size().isEmpty();
}

} // namespace

Monkey::Monkey(unsigned seed, std::string configuration, std::string database)
    : random_(seed)
    , configuration_(std::move(configuration))
    , database_(std::move(database)) {
    AttendLater();
    StartProgram();
}

Monkey::~Monkey() {
    program_.reset();
}

void Monkey::StartProgram() {
    program_.reset();
    program_ = std::make_unique<Program>(boxes_, printer_);
    boxes_.SetParent(&program_->Window());
    sinceAction_.start();
    if (!program_->Start(
            {configuration_}, QSize(800, 600), [] { return QDate(2026, 3, 14); },
            QLocale(QLocale::English, QLocale::UnitedStates))) {
        faults_.emplace_back("the program does not start");
    }
    program_->Window().activateWindow();
    Settle();
}

void Monkey::Note(const std::string& action) {
    actions_.push_back(action);
    if (actions_.size() > ActionsKept) {
        actions_.pop_front();
    }
}

std::string Monkey::LastActions() const {
    std::string list;
    for (const std::string& action : actions_) {
        list += action + "\n";
    }
    return list;
}

QString Monkey::AnyText() {
    return Below(3) == 0 ? OneOf(OddTexts()) : OneOf(GoodTexts());
}

QWidget* Monkey::Focused() const {
    QWidget* focused = QApplication::focusWidget();
    return focused != nullptr ? focused : &program_->Window();
}

QWidget* Monkey::AnyControl() {
    std::vector<QWidget*> controls;
    for (QWidget* widget : program_->Window().Front()->findChildren<QWidget*>()) {
        const bool isControl = qobject_cast<QAbstractButton*>(widget) != nullptr ||
                               qobject_cast<QLineEdit*>(widget) != nullptr ||
                               qobject_cast<QComboBox*>(widget) != nullptr ||
                               qobject_cast<QAbstractItemView*>(widget) != nullptr ||
                               qobject_cast<QPlainTextEdit*>(widget) != nullptr || Below(8) == 0;
        if (isControl && TakesClicks(*widget) && (!EndsProgram(*widget) || Below(10) == 0)) {
            controls.push_back(widget);
        }
    }
    return controls.empty() ? program_->Window().Front() : OneOf(controls);
}

void Monkey::Click(QWidget* widget, bool twice) {
    if (auto* view = qobject_cast<QAbstractItemView*>(widget)) {
        widget = view->viewport();
    }
    QPoint place(static_cast<int>(Below(static_cast<std::size_t>(widget->width()))),
                 static_cast<int>(Below(static_cast<std::size_t>(widget->height()))));
    const QWidget* parent = widget->parentWidget();
    if (qobject_cast<const QAbstractItemView*>(parent) != nullptr) {
        place.setY(place.y() % 60); // where the first entries stand
    }
    Note((twice ? "double click on " : "click on ") + FromQt(widget->objectName()) + " of " +
         (parent != nullptr ? FromQt(parent->objectName()) : "") + " at " +
         std::to_string(place.x()) + ", " + std::to_string(place.y()));
    const QPoint onDisplay = widget->mapToGlobal(place);
    PressAndRelease(widget, place);
    // The second click lands on whatever is there by then.
    QWidget* now = twice ? QApplication::widgetAt(onDisplay) : nullptr;
    if (now != nullptr) {
        QTest::mouseDClick(now, Qt::LeftButton, {}, now->mapFromGlobal(onDisplay));
    }
}

/// What a user who knows the program would press next.
void Monkey::FollowRoad() {
    const auto road = Road().find(FromQt(program_->Window().Front()->objectName()));
    if (road == Road().end()) {
        return;
    }
    auto* control =
        program_->Window().Front()->findChild<QWidget*>(QString::fromLatin1(OneOf(road->second)));
    if (control != nullptr && TakesClicks(*control)) {
        Click(control, false);
    }
}

void Monkey::PressKey() {
    const std::size_t kind = Below(8);
    Qt::Key key = OneOf(Keys());
    Qt::KeyboardModifiers modifiers;
    if (kind == 0) {
        key = OneOf(Commands());
        modifiers = Qt::ControlModifier;
    } else if (kind <= 2) {
        key = static_cast<Qt::Key>(Qt::Key_A + Below(26));
        modifiers = Qt::AltModifier;
    } else if (kind == 3) {
        key = static_cast<Qt::Key>(Qt::Key_0 + Below(10));
    } else if (kind == 4) {
        key = static_cast<Qt::Key>(Qt::Key_A + Below(26));
    }
    Note("key " + std::to_string(key) + " with " + std::to_string(modifiers.toInt()));
    QTest::keyClick(Focused(), key, modifiers);
}

void Monkey::TypeText() {
    const QString text = AnyText().left(40);
    Note("type " + FromQt(text.toHtmlEscaped()));
    for (const QChar& c : text) {
        QTest::sendKeyEvent(QTest::Click, Focused(), KeyOf(c), QString(c), Qt::NoModifier);
    }
}

void Monkey::PasteText() {
    const QString text = AnyText();
    Note("paste " + FromQt(text.left(40).toHtmlEscaped()));
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(Focused(), Qt::Key_V, Qt::ControlModifier);
}

/// What brings the program on: a number into a field.
void Monkey::FillField() {
    std::vector<QLineEdit*> fields;
    for (QLineEdit* field : program_->Window().Front()->findChildren<QLineEdit*>()) {
        if (TakesClicks(*field)) {
            fields.push_back(field);
        }
    }
    if (fields.empty()) {
        return;
    }
    QLineEdit* field = OneOf(fields);
    const QString text = OneOf(GoodTexts());
    Note("fill " + FromQt(field->objectName()) + " with " + FromQt(text));
    PressAndRelease(field, field->rect().center());
    QTest::keyClick(Focused(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(Focused(), text);
}

void Monkey::Step() {
    sinceAction_.start();
    printer_.Failure = Below(6) == 0 ? "There is no printer." : "";
    const std::size_t kind = Below(100);
    if (kind < 25) {
        FollowRoad();
    } else if (kind < 50) {
        Click(AnyControl(), false);
    } else if (kind < 65) {
        PressKey();
    } else if (kind < 72) {
        TypeText();
    } else if (kind < 79) {
        PasteText();
    } else if (kind < 94) {
        FillField();
    } else if (kind < 99) {
        Click(AnyControl(), true);
    } else {
        Note("close the window");
        program_->Window().close();
    }
    Settle();
    if (!program_->Window().isVisible()) {
        Note("start again");
        ForgetEnd();
        StartProgram();
    }
    if (program_->Window().Front() == nullptr) {
        faults_.emplace_back("no screen stands");
        return;
    }
    const std::string front = FromQt(program_->Window().Front()->objectName());
    if (std::find(screensSeen_.begin(), screensSeen_.end(), front) == screensSeen_.end()) {
        screensSeen_.push_back(front);
    }
}

void Monkey::Settle() {
    for (int turn = 0; turn < 3; ++turn) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    while (QApplication::activePopupWidget() != nullptr) {
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    }
}

void Monkey::AttendLater() {
    QTimer::singleShot(1, this, [this] {
        AttendLater(); // before anything here waits itself
        Attend();
    });
}

void Monkey::Attend() {
    if (QWidget* popup = QApplication::activePopupWidget()) {
        const std::size_t entries = Below(4);
        for (std::size_t i = 0; i < entries; ++i) {
            QTest::keyClick(popup, Qt::Key_Down);
        }
        QTest::keyClick(popup, entries == 0 ? Qt::Key_Escape : Qt::Key_Return);
    } else if (QWidget* box = QApplication::activeModalWidget()) {
        Answer(*box);
        sinceAction_.start();
    } else if (sinceAction_.elapsed() > LongestSearch && program_ &&
               MaySearch(program_->Window())) {
        Note("give a search up");
        sinceAction_.start();
        program_->Window().close();
    }
}

void Monkey::Answer(QWidget& box) {
    if (auto* message = qobject_cast<QMessageBox*>(&box)) {
        AnswerMessage(*message);
    } else if (auto* input = qobject_cast<QInputDialog*>(&box)) {
        AnswerInput(*input);
    } else if (auto* files = qobject_cast<QFileDialog*>(&box); files != nullptr && Below(2) == 0) {
        // By its suggested name, in the home folder: no other place is ever written to.
        Note("accept " + FromQt(files->selectedFiles().value(0)));
        QTest::keyClick(files, Qt::Key_Return);
    } else {
        Note("leave a box");
        QTest::keyClick(&box, Qt::Key_Escape);
    }
}

void Monkey::AnswerMessage(QMessageBox& box) {
    const std::string text = FromQt(box.text());
    Note("answer: " + text);
    if (text == SavedMessage) {
        ++saves_;
        CheckSaved();
    }
    const auto buttons = box.buttons();
    if (Below(4) == 0 || buttons.isEmpty()) {
        QTest::keyClick(&box, Qt::Key_Escape);
    } else {
        QTest::mouseClick(
            buttons.at(static_cast<qsizetype>(Below(static_cast<std::size_t>(buttons.size())))),
            Qt::LeftButton);
    }
}

void Monkey::AnswerInput(QInputDialog& box) {
    const QString text = AnyText();
    Note("answer with " + FromQt(text.left(40).toHtmlEscaped()));
    box.setTextValue(text);
    QTest::keyClick(&box, Below(4) == 0 ? Qt::Key_Escape : Qt::Key_Return);
}

/// "Data is saved" stands on the screen: what is open is what another program reads.
void Monkey::CheckSaved() {
    try {
        const Project& open = program_->Project().Now;
        const LoadedProject stored =
            ProjectStore(database_, DatabaseAccess::ReadOnly).Load(open.Name);
        if (stored.Value.Rooms != open.Rooms) {
            faults_.emplace_back("what is stored are not the rooms that are told to be saved");
        }
    } catch (const std::exception& error) {
        faults_.push_back(std::string("what was saved cannot be loaded: ") + error.what());
    }
}

std::vector<std::string> Monkey::Faults() {
    std::vector<std::string> faults = std::exchange(faults_, {});
    if (QApplication::activeModalWidget() != nullptr ||
        QApplication::activePopupWidget() != nullptr) {
        faults.emplace_back("a box is left standing");
    }
    if (ShowsWaiting()) {
        faults.emplace_back("the program shows that it waits");
    }
    const ScreenWindow& window = program_->Window();
    int shown = 0;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        shown += dynamic_cast<const Screen*>(widget) != nullptr && widget->isVisible() ? 1 : 0;
    }
    if (shown != 1 || !window.Front()->isVisible() || !window.Front()->isEnabled()) {
        faults.push_back("there are " + std::to_string(shown) + " screens in front");
    }
    for (const std::string& fault : RoomFaults(program_->Project().Now)) {
        faults.push_back(fault);
    }
    return faults;
}

std::vector<std::string> Monkey::DatabaseFaults() const {
    std::vector<std::string> faults = CheckDatabaseFile(database_);
    try {
        ProjectStore store(database_, DatabaseAccess::ReadOnly);
        for (const auto& [directory, name] : store.AllProjects()) {
            const LoadedProject loaded = store.Load(name);
            std::vector<std::string> found = RoomFaults(loaded.Value);
            found.insert(found.end(), loaded.Findings.begin(), loaded.Findings.end());
            for (const std::string& fault : found) {
                faults.emplace_back(name).append(": ").append(fault);
            }
        }
    } catch (const std::exception& error) {
        faults.emplace_back(error.what());
    }
    return faults;
}

} // namespace tarn::testing
