// tarn-estimate: one carpet's estimate without a display.

#include "tools/EstimateTool.h"
#include "tools/PaintingApplication.h"
#include "tools/StandardStreams.h"
#include "tools/ToolMain.h"

int main(int argc, char* argv[]) {
    tarn::HoldStandardStreams();
    int status = 0;
    const auto options = tarn::ReadEstimateOptions(argc, argv, status);
    if (!options) {
        return status;
    }
    const auto application = tarn::NewApplication(argc, argv, !options->Pdf.empty());
    return tarn::RunTool("tarn-estimate", [&] { tarn::EstimateFor(*options); });
}
