// tarn-estimate: one carpet's estimate without a display.

#include "tools/EstimateTool.h"
#include "tools/StandardStreams.h"
#include "tools/ToolMain.h"

#include <QGuiApplication>
#include <QTemporaryDir>

#include <memory>

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

int main(int argc, char* argv[]) {
    tarn::HoldStandardStreams();
    int status = 0;
    const auto options = tarn::ReadEstimateOptions(argc, argv, status);
    if (!options) {
        return status;
    }
    const auto application = options->Pdf.empty() ? std::make_unique<QCoreApplication>(argc, argv)
                                                  : NewPaintingApplication(argc, argv);
    return tarn::RunTool("tarn-estimate", [&] { tarn::EstimateFor(*options); });
}
