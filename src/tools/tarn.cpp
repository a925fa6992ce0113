#include "base/Version.h"
#include "paper/SystemPrinter.h"
#include "screens/Display.h"
#include "screens/EndSignals.h"
#include "screens/MessageBoxes.h"
#include "screens/Program.h"
#include "screens/Theme.h"
#include "store/Configuration.h"
#include "tools/ExitStatus.h"
#include "tools/StandardStreams.h"
#include "tools/ToolMain.h"

#include <QApplication>
#include <QScreen>

#include <CLI/CLI.hpp>

#include <exception>
#include <iostream>

namespace {

int Run(int argc, char* argv[]) {
    CLI::App options{"Estimate how carpets are cut from the roll.", "tarn"};
    std::string configDirectory;
    options.set_version_flag("--version", tarn::VersionText("tarn"));
    const CLI::Option* givenDirectory =
        options
            .add_option("--config-dir", configDirectory,
                        "Directory of the configuration file TarnWin.INI")
            ->type_name("DIR");
    try {
        options.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return tarn::ExplainArguments(options, error);
    }

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tarn"));
    QApplication::setQuitOnLastWindowClosed(false);
    const tarn::EndSignals ending;
    const QScreen* display = QGuiApplication::primaryScreen();
    if (display == nullptr) {
        std::cerr << "tarn: There is no display to show the program on.\n";
        return tarn::Refused;
    }
    const tarn::Theme theme(application);
    tarn::MessageBoxes boxes;
    tarn::SystemPrinter printer;
    tarn::Program program(boxes, printer);
    boxes.SetParent(&program.Window());

    auto directories = tarn::ConfigurationDirectories();
    if (givenDirectory->count() > 0) { // also an empty one: no other place is looked at then
        directories = {configDirectory};
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
