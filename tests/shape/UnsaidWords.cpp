#include "shape/Shape.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <regex>

namespace tarn::testing {

namespace {

namespace fs = std::filesystem;

/// What looks like words and is for programs.
struct Exception {
    const char* File; ///< regular expression for the path below src
    const char* Text; ///< regular expression for the literal
};
constexpr std::array Exceptions{
    // the database's language, and what stands in the database whatever the language
    Exception{"store/.*",
              "[^a-z]*(SELECT|PRAGMA|VACUUM|BEGIN|SAVEPOINT|RELEASE|ROLLBACK|CREATE|"
              "INSERT|DELETE|UPDATE|ALTER|CASE|WHERE|WHEN|AS BLOB|NOT|IS NOT|IS NULL|ORDER|ADD|"
              "GLOB|OR|TEXT|LIMIT)\\b[^]*"},
    Exception{"store/.*", "[^]* (WHERE rowid|NOT IN|ORDER BY) [^]*"},
    Exception{"store/RepairedData.cpp", "ROOMS (OF SHEET |WITHOUT A SHEET)|WITHOUT A NAME"},
    Exception{"store/Backups.cpp", " before restoring"}, // in the name of a file
    Exception{"store/Configuration.h", "\\[TarnWin Directory\\]"},
    // marks of file formats, and what drawings are written in
    Exception{"files/DatabaseFormat.cpp", "(SQLite format|Standard (Jet|ACE)).*"},
    Exception{"files/(ReportSvg|Svg|SvgElements).cpp", "[^]*[<=][^]*"},
    Exception{"screens/(Theme|projects/ProjectPanels).cpp", "[^]*: [^]*;[^]*"},
    Exception{"files/Dxf.cpp", "Solid line|Lengths are (inches|centimetres)"},
    // heads of columns, which programs read
    Exception{"files/(RoomHeadings|ProjectTables).cpp", "[a-z ]+"},
    // fonts
    Exception{"paper/FixedPitchFont.cpp", "[A-Z][A-Za-z ]+"},
    // pages about the programs that are made when they are built, in English, and marks of builds
    Exception{"tools/(reference/.*|ProgramVersion.cpp)", "[^]*"},
    // names of an order's options
    Exception{"(project|screens/order|tools)/.*",
              "(trim|pattern) (along|across)|shortest part|half drop|pattern drift"},
    // how a time is written
    Exception{".*", "[dMyH' :-]*(MMM|mm|dd)[dMyHms' :-]*"},
    // what is not said: it is measured, never leaves the engine, or begins a line of a log
    Exception{"screens/rooms/RoomTable.cpp", "The second room on the left behind the hall.*"},
    Exception{"engine/Search.h", "The search was stopped."},
    Exception{".*", "tarn: "},
};

bool LooksLikeWords(const std::string& text) {
    static const std::regex words(
        "[^]*([A-Za-z]{2,}[,;:.]? +[A-Za-z]{2,}[^]*|[A-Za-z]{3,}[:!?.] *)");
    return std::regex_match(text, words);
}

bool IsForPrograms(const std::string& file, const std::string& text) {
    return std::any_of(Exceptions.begin(), Exceptions.end(), [&](const Exception& each) {
        return std::regex_match(file, std::regex(each.File)) &&
               std::regex_match(text, std::regex(each.Text));
    });
}

} // namespace

std::vector<std::string> FindUnsaidWords(const fs::path& src) {
    std::vector<std::string> found;
    for (const auto& entry : fs::recursive_directory_iterator(src)) {
        const fs::path& path = entry.path();
        if (path.extension() != ".h" && path.extension() != ".cpp") {
            continue;
        }
        std::ifstream file(path);
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        const std::string name = path.lexically_relative(src).generic_string();
        for (const auto& each : ScanSource(text).Texts) {
            if (!each.IsSaid && LooksLikeWords(each.Text) && !IsForPrograms(name, each.Text)) {
                found.push_back(name + ":" + std::to_string(each.Line) + ": " + each.Text);
            }
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace tarn::testing
