// The main function of the tests of paper. They see neither a display nor the user's printers.

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    const QTemporaryDir home;
    for (const char* directory : {"HOME", "XDG_RUNTIME_DIR", "XDG_STATE_HOME"}) {
        qputenv(directory, home.path().toLocal8Bit());
    }
    for (const char* choice :
         {"CUPS_SERVER", "CUPS_USER", "CUPS_ENCRYPTION", "LPDEST", "PRINTER"}) {
        qunsetenv(choice);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
