#include "base/Words.h"
#include "paper/SystemPrinter.h"
#include "screens/Display.h"
#include "screens/EndSignals.h"
#include "screens/MessageBoxes.h"
#include "screens/Program.h"
#include "screens/Theme.h"
#include "screens/ToolkitWords.h"
#include "store/Configuration.h"
#include "tools/ExitStatus.h"
#include "tools/ProgramOptions.h"
#include "tools/ProgramVersion.h"
#include "tools/ProjectFile.h"
#include "tools/SharedOptions.h"
#include "tools/StandardStreams.h"

#include <QApplication>
#include <QScreen>

#include <exception>
#include <filesystem>
#include <iostream>

namespace {

tarn::RoomSource RoomsOfFile(const tarn::RoomFile& rooms) {
    const std::filesystem::path file(rooms.Path);
    return {file.filename().string(), file.stem().string(),
            [rooms](tarn::Units units) { return tarn::ReadRoomFile(rooms, units); }};
}

int Run(int argc, char* argv[]) {
    tarn::SpeakAsAsked(argc, argv, tarn::Preferences(tarn::UserPreferencesFile()).Language());
    int status = 0;
    const auto options = tarn::ReadProgramOptions(argc, argv, status);
    if (!options) {
        return status;
    }

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tarn"));
    QApplication::setApplicationVersion(QString::fromStdString(tarn::FullVersion()));
    QApplication::setDesktopFileName(QStringLiteral("tarn"));
    QApplication::setQuitOnLastWindowClosed(false);
    const tarn::EndSignals ending;
    const QScreen* display = QGuiApplication::primaryScreen();
    if (display == nullptr) {
        std::cerr << "tarn: " << tarn::Words("There is no display to show the program on.").Text()
                  << '\n';
        return tarn::Refused;
    }
    const tarn::ToolkitWords toolkit;
    const tarn::Theme theme(application);
    tarn::MessageBoxes boxes;
    tarn::SystemPrinter printer;
    tarn::Program program(boxes, printer);
    boxes.SetParent(&program.Window());

    if (!options->Rooms.Path.empty()) {
        program.OfferRooms(RoomsOfFile(options->Rooms));
    }
    auto directories = tarn::ConfigurationDirectories();
    if (options->ConfigDirectory) {
        directories = {*options->ConfigDirectory};
    }
    if (!program.Start(directories, tarn::PhysicalSize(*display), &QDate::currentDate,
                       QLocale::system())) {
        return tarn::Refused;
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[]) {
    tarn::HoldStandardStreams();
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "tarn: " << error.what() << '\n';
        return tarn::Refused;
    }
}
