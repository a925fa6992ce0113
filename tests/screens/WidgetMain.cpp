// The main function of test programs with screens. They run on the offscreen platform, whatever
// display there is.

#include "screens/Theme.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir runtime;
    qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    qputenv("XDG_STATE_HOME", runtime.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", runtime.path().toLocal8Bit());
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const tarn::Theme theme(application);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
