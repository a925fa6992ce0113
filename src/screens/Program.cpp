#include "screens/Program.h"

#include "base/Words.h"
#include "screens/Display.h"
#include "screens/Guard.h"
#include "screens/projects/RoomsAsProject.h"
#include "store/Backups.h"
#include "store/Configuration.h"
#include "store/FirstStart.h"
#include "store/Months.h"

#include <QApplication>

namespace tarn {

Program::Program(Dialogs& boxes, Printer& printer)
    : boxes_(boxes)
    , printing_(printer, page_, boxes) {
    screens_.SetSession(session_);
    session_.Note = [this](const std::string& note) { window_.ShowNote(note); };
    printing_.OnPrinting(
        [this] { window_.SetWork(printing_.IsPrinting() ? PrintingNote : std::string_view()); });
    const auto* application = qApp;
    const auto keep = [this] { drafts_.Flush(); };
    QObject::connect(application, &QCoreApplication::aboutToQuit, &window_, keep);
    QObject::connect(application, &QGuiApplication::commitDataRequest, &window_, keep);
}

Program::~Program() {
    drafts_.Flush();
}

bool Program::Start(const std::vector<std::filesystem::path>& configurationDirectories,
                    QSize displayPixels, const std::function<QDate()>& today,
                    const QLocale& locale) {
    bool started = false;
    Guarded(boxes_, Words("The program could not be started."), [&] {
        session_.Today = today;
        if (CanRun(configurationDirectories, displayPixels)) {
            Show(locale);
            started = true;
        }
    });
    return started;
}

bool Program::CanRun(const std::vector<std::filesystem::path>& configurationDirectories,
                     QSize displayPixels) {
    if (!IsDisplayLargeEnough(displayPixels)) {
        boxes_.Message(std::string(DisplayTooSmallMessage));
        return false;
    }
    auto folder = FindDataFolder(configurationDirectories);
    if (!folder) {
        boxes_.Message(std::string(ConfigurationMissingMessage));
        if (!IsFirstStartMade(configurationDirectories)) {
            return false;
        }
        folder = FindDataFolder(configurationDirectories);
    }
    if (!folder) {
        return false;
    }
    folder_ = std::move(*folder);
    return true;
}

bool Program::IsFirstStartMade(const std::vector<std::filesystem::path>& directories) {
    const auto offer = OfferFirstStart(directories);
    return offer && boxes_.AskYesNo(QuestionAbout(*offer)) &&
           Guarded(boxes_, Words("Nothing was made."), [&] { MakeFirstStart(*offer); });
}

void Program::Show(const QLocale& locale) {
    store_ = OpenStore(folder_);
    store_.SetBeforeFirstChange([this] { BackUp(); });
    screens_.SetPlaces(PlacesOf(folder_));
    drafts_.SetDrafts(UserDrafts(WithNativeSeparators(folder_.DatabaseName)));
    project_.Now.Directory = MonthDirectoryName(session_.Today(), locale);
    screens_.ShowProjects();
    // A print server that is slow to answer must not keep the first screen from being drawn.
    window_.AfterFirstPaint([this] {
        printing_.ReadPage();
        if (rooms_) {
            MakeProjectOf(*rooms_, session_);
        }
    });
    window_.show();
}

void Program::BackUp() {
    // The change that it goes before is made all the same.
    Guarded(boxes_, Words("There is no backup of the data as it was before this change."),
            [this] { MakeBackup(WithNativeSeparators(folder_.DatabaseName)); });
}

} // namespace tarn
