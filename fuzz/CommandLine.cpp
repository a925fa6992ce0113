#include "Fuzzing.h"
#include "estimate/RollWidth.h"
#include "tools/DataOptions.h"
#include "tools/EstimateOptions.h"
#include "tools/ExitStatus.h"
#include "tools/Refusal.h"

#include <sstream>
#include <vector>

namespace tarn {
namespace {

/// What the programs print is looked at by nobody.
class Silence {
  public:
    Silence()
        : out_(std::cout.rdbuf(sink_.rdbuf()))
        , error_(std::cerr.rdbuf(sink_.rdbuf())) {}
    ~Silence() {
        std::cout.rdbuf(out_);
        std::cerr.rdbuf(error_);
    }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

  private:
    std::ostringstream sink_;
    std::streambuf* out_;
    std::streambuf* error_;
};

void CheckRequest(const EstimateOptions& options) {
    Require(options.Carpet >= 1 && options.Carpet <= 8, "the carpet is one of eight");
    Require(options.MaxPieces >= 1 && options.MaxPieces <= MostPiecesPerFill,
            "a fill has one to six pieces");
    Require(IsAnyAskedFor(OutputsOf(options)), "something is put out");
    try {
        Require(IsUsableRollWidth(RequestOf(options).RollWidth), "the width can be estimated");
        RepeatOf(options);
    } catch (const Refusal& refusal) {
        Require(*refusal.what() != '\0', "a refusal has a text");
    }
}

/// Each line is one argument, as the shell gives them: without a zero byte.
void CheckCommandLine(std::string_view text) {
    FuzzInput input(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
    std::vector<std::string> lines{"tarn"};
    while (!input.IsAtEnd() && lines.size() < 40) {
        lines.push_back(input.Line());
    }
    std::vector<const char*> arguments;
    for (const std::string& line : lines) {
        arguments.push_back(line.c_str());
    }
    const int count = static_cast<int>(arguments.size());
    constexpr int None = -1;
    int status = None;
    std::optional<EstimateOptions> options;
    bool command = false;
    int commandStatus = None;
    {
        const Silence silence;
        options = ReadEstimateOptions(count, arguments.data(), status);
        command = static_cast<bool>(ReadDataCommand(count, arguments.data(), commandStatus));
    }
    Require(options || status == Done || status == WrongUsage,
            "arguments are understood or have a status");
    Require(command || commandStatus == Done || commandStatus == WrongUsage,
            "a command is understood or has a status");
    if (options) {
        CheckRequest(*options);
    }
}

} // namespace
} // namespace tarn

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tarn::CheckCommandLine(tarn::TextOf(data, size));
    return 0;
}
