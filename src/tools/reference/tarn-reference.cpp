// Writes what is made of the programs' own options: their reference, man pages and completions.

#include "base/Version.h"
#include "tools/DataOptions.h"
#include "tools/EstimateOptions.h"
#include "tools/OrderOptions.h"
#include "tools/ProgramOptions.h"
#include "tools/reference/Completion.h"
#include "tools/reference/ManPage.h"
#include "tools/reference/ReferencePage.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>

namespace {

template <class Options>
tarn::ProgramTable TableBy(void (*describe)(CLI::App&, Options&)) {
    CLI::App app;
    Options options;
    describe(app, options);
    return tarn::TableOf(app);
}

std::vector<tarn::ProgramTable> AllPrograms() {
    return {TableBy(&tarn::DescribeProgram), TableBy(&tarn::DescribeEstimate),
            TableBy(&tarn::DescribeOrder), TableBy(&tarn::DescribeData)};
}

std::string ReadText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    if (!file) {
        throw std::runtime_error("cannot read " + path);
    }
    return text.str();
}

void WriteText(const std::filesystem::path& path, const std::string& text) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << text << std::flush;
    if (!file) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

/// Below `folder`: man/ and, for each shell, a folder of its own with its files named as the shell
/// looks for them.
void WriteAll(const std::filesystem::path& folder, const std::string& formats,
              const tarn::ManFoot& foot) {
    const auto programs = AllPrograms();
    for (const tarn::ProgramTable& program : programs) {
        WriteText(folder / "man" / (program.Name + ".1"), ManPage(program, programs, foot));
        WriteText(folder / "bash" / program.Name, BashCompletion(program));
        WriteText(folder / "zsh" / ("_" + program.Name), ZshCompletion(program));
        WriteText(folder / "fish" / (program.Name + ".fish"), FishCompletion(program));
    }
    WriteText(folder / "man" / "tarn-formats.5",
              tarn::ManPageOfText("tarn-formats", formats, foot));
}

int Run(int argc, char* argv[]) {
    CLI::App options{"Write what is made of the programs' own options.", "tarn-reference"};
    std::string formats;
    std::string page;
    std::string folder;
    tarn::ManFoot foot{std::string(tarn::Version), {}};
    options.add_option("--formats", formats, "The text of the file formats")->required();
    auto* toPage = options.add_option("--page", page, "Write the reference to that file");
    auto* toFolder =
        options.add_option("--folder", folder, "Write man pages and completions below it");
    auto* day = options.add_option("--day", foot.Day, "The day of this version");
    toFolder->needs(day);
    try {
        options.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return options.exit(error);
    }
    const std::string text = ReadText(formats);
    if (toPage->count() > 0) {
        WriteText(page, ReferencePage(AllPrograms(), text));
    }
    if (toFolder->count() > 0) {
        WriteAll(folder, text, foot);
    }
    return 0;
}

} // namespace

int main(int argc, char* argv[]) {
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "tarn-reference: " << error.what() << '\n';
        return 1;
    }
}
