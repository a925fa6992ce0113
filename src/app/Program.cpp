#include "app/Program.h"

#include "app/Display.h"
#include "app/StartModule.h"
#include "print/PrinterPage.h"

#include <QTimer>

namespace tarn {

Program::Program(Dialogs& boxes, Printer& printer)
    : boxes_(boxes)
    , printer_(printer) {
    screens_.SetSession(session_);
}

bool Program::Main(const std::vector<std::filesystem::path>& configurationDirectories,
                   QSize displayPixels, const QDate& today, const QLocale& locale) {
    if (!IsDisplayLargeEnough(displayPixels)) {
        boxes_.Message(std::string(DisplayTooSmallMessage));
        return false;
    }
    if (!InitSharedState(state_, engine_, configurationDirectories, today, locale)) {
        boxes_.Message(std::string(ConfigurationMissingMessage));
        return false;
    }
    screens_.ShowProjects();
    window_.show();
    // A print server that is slow to answer must not keep the first screen from being drawn.
    QTimer::singleShot(0, &window_, [this] { ReadPrinterPage(state_, printer_); });
    return true;
}

} // namespace tarn
