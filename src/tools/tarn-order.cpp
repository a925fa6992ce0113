// tarn-order: what to buy and how to cut it, without a display.

#include "tools/OrderTool.h"
#include "tools/PaintingApplication.h"
#include "tools/StandardStreams.h"
#include "tools/ToolMain.h"

int main(int argc, char* argv[]) {
    tarn::HoldStandardStreams();
    int status = 0;
    const auto options = tarn::ReadOrderOptions(argc, argv, status);
    if (!options) {
        return status;
    }
    const auto application = tarn::NewApplication(argc, argv, !options->Pdf.empty());
    return tarn::RunTool("tarn-order", [&] { tarn::OrderFor(*options); });
}
