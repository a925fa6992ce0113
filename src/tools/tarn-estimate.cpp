#include "tools/EstimateTool.h"
#include "tools/ToolMain.h"

#include <QCoreApplication>

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    int status = 0;
    const auto options = tarn::ReadEstimateOptions(argc, argv, status);
    return options ? tarn::RunTool("tarn-estimate", [&] { tarn::EstimateFor(*options); }) : status;
}
