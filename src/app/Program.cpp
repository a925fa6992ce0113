#include "app/Program.h"

#include "app/Display.h"
#include "app/Guard.h"
#include "app/StartModule.h"
#include "app/WaitCursor.h"
#include "print/PrinterPage.h"

namespace tarn {

Program::Program(Dialogs& boxes, Printer& printer)
    : boxes_(boxes)
    , printer_(printer) {
    screens_.SetSession(session_);
}

bool Program::Main(const std::vector<std::filesystem::path>& configurationDirectories,
                   QSize displayPixels, const std::function<QDate()>& today,
                   const QLocale& locale) {
    bool started = false;
    Guarded(boxes_, "The program could not be started.", [&] {
        session_.Today = today;
        started = Start(configurationDirectories, displayPixels, locale);
    });
    return started;
}

bool Program::Start(const std::vector<std::filesystem::path>& configurationDirectories,
                    QSize displayPixels, const QLocale& locale) {
    if (!IsDisplayLargeEnough(displayPixels)) {
        boxes_.Message(std::string(DisplayTooSmallMessage));
        return false;
    }
    if (!InitSharedState(state_, engine_, configurationDirectories, session_.Today(), locale)) {
        boxes_.Message(std::string(ConfigurationMissingMessage));
        return false;
    }
    screens_.ShowProjects();
    // A print server that is slow to answer must not keep the first screen from being drawn.
    window_.AfterFirstPaint([this] {
        const WaitCursor waiting;
        ReadPrinterPage(state_, printer_);
    });
    window_.show();
    return true;
}

} // namespace tarn
