#include "app/Configuration.h"
#include "app/Display.h"
#include "app/MessageBoxes.h"
#include "app/Program.h"
#include "app/Theme.h"
#include "app/Version.h"
#include "print/SystemPrinter.h"

#include <QApplication>
#include <QScreen>

#include <CLI/CLI.hpp>

int main(int argc, char* argv[]) {
    CLI::App options{"Estimate how carpets are cut from the roll."};
    std::string configDirectory;
    options.set_version_flag("--version", std::string("tarn ") + std::string(tarn::Version));
    options
        .add_option("--config-dir", configDirectory,
                    "Directory of the configuration file TarnWin.INI")
        ->type_name("DIR");
    try {
        options.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        constexpr int WrongUsage = 2;
        return options.exit(error) == 0 ? 0 : WrongUsage;
    }

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tarn"));
    QApplication::setQuitOnLastWindowClosed(false);
    const tarn::Theme theme(application);
    tarn::MessageBoxes boxes;
    tarn::SystemPrinter printer;
    tarn::Program program(boxes, printer);
    boxes.SetParent(&program.Window());

    auto directories = tarn::ConfigurationDirectories();
    if (!configDirectory.empty()) {
        directories = {configDirectory};
    }
    const QScreen& display = *QGuiApplication::primaryScreen();
    if (!program.Main(directories, tarn::PhysicalSize(display), QDate::currentDate(),
                      QLocale::system())) {
        return 1;
    }
    return QApplication::exec();
}
