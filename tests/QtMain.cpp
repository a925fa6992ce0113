// The main function of test programs that use Qt: it needs an application object for its plugins.

#include <QCoreApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    const QTemporaryDir state; // never the user's own
    qputenv("XDG_STATE_HOME", state.path().toLocal8Bit());
    const QCoreApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
