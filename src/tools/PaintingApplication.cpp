#include "tools/PaintingApplication.h"

#include <QGuiApplication>
#include <QTemporaryDir>

namespace tarn {

namespace {

/// An application that can paint pages: that takes a platform, but no display.
std::unique_ptr<QCoreApplication> NewPaintingApplication(int& argc, char** argv) {
    constexpr const char* RuntimeDirectory = "XDG_RUNTIME_DIR";
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsEmpty(RuntimeDirectory)) {
        return std::make_unique<QGuiApplication>(argc, argv);
    }
    // Without a session the toolkit would warn and make a directory of its own, which stays.
    const QTemporaryDir runtime;
    qputenv(RuntimeDirectory, runtime.path().toLocal8Bit());
    auto application = std::make_unique<QGuiApplication>(argc, argv);
    qunsetenv(RuntimeDirectory);
    return application;
}

} // namespace

std::unique_ptr<QCoreApplication> NewApplication(int& argc, char** argv, bool paints) {
    return paints ? NewPaintingApplication(argc, argv)
                  : std::make_unique<QCoreApplication>(argc, argv);
}

} // namespace tarn
