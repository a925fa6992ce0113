#include "tools/DataOptions.h"
#include "tools/StandardStreams.h"
#include "tools/ToolMain.h"

#include <QCoreApplication>

int main(int argc, char* argv[]) {
    tarn::HoldStandardStreams();
    const QCoreApplication application(argc, argv);
    int status = 0;
    const auto command = tarn::ReadDataCommand(argc, argv, status);
    return command ? tarn::RunTool("tarn-data", command) : status;
}
