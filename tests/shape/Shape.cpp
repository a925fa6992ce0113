// The rules of the house: which folder may use which, and what each may use from outside.

#include "shape/Shape.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <span>
#include <stdexcept>

namespace tarn::testing {

namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string, std::less<>>;

/// What stands outside of the folders: a link line's library, and the headers that it brings.
struct Outside {
    std::string Library;
    std::string Headers; ///< a regular expression for what stands between < and >
};

const std::vector<Outside> Outsides{
    {"Qt6::Sql", "(QtSql/.*|QSql.*)"},
    {"Qt6::Core", "([Qq][A-Z].*|Qt.*)"}, // a module that is not linked to has no headers to offer
    {"Cups::Cups", "cups/.*"},
    {"Xlsxwriter::Xlsxwriter", "xlsxwriter\\.h"},
    {"CLI11::CLI11", "CLI/.*"},
};

struct Layer {
    std::string Folder;
    Names MayUse; ///< besides itself
    Names Libraries;
};

/// The lower folders, down to base.
Names Below(std::span<const Layer> layers, const Names& upper) {
    Names all = upper;
    for (const Layer& layer : layers) {
        if (upper.contains(layer.Folder)) {
            all.insert(layer.MayUse.begin(), layer.MayUse.end());
        }
    }
    return all;
}

std::vector<Layer> MakeLayers() {
    std::vector<Layer> layers{{"base", {}, {"tarn_options"}}};
    const auto add = [&layers](const std::string& folder, Names uses, Names libraries) {
        uses.insert("base");
        layers.push_back({folder, std::move(uses), std::move(libraries)});
    };
    add("project", {}, {});
    add("engine", {}, {});
    add("improve", {"engine"}, {"Threads::Threads"});
    add("drawing", {}, {});
    add("estimate", {"project", "engine", "improve", "drawing"}, {});
    add("order", Below(layers, {"estimate"}), {"Threads::Threads"});
    add("files", Below(layers, {"order"}), {"Qt6::Core", "Xlsxwriter::Xlsxwriter"});
    add("store", {"project", "files"}, {"Qt6::Core", "Qt6::Sql"});
    add("text", {}, {"Qt6::Core", "Qt6::Gui"});
    add("paper", Below(layers, {"files", "text"}), {"Qt6::Core", "Qt6::Gui", "Cups::Cups"});
    add("screens", Below(layers, {"store", "paper"}), {"Qt6::Core", "Qt6::Gui", "Qt6::Widgets"});
    add("tools", Below(layers, {"screens"}),
        {"Qt6::Core", "Qt6::Gui", "Qt6::Widgets", "CLI11::CLI11"});
    return layers;
}

const std::vector<Layer>& Layers() {
    static const std::vector<Layer> layers = MakeLayers();
    return layers;
}

const Layer* LayerOf(std::string_view folder) {
    const auto found = std::find_if(Layers().begin(), Layers().end(),
                                    [&](const Layer& each) { return each.Folder == folder; });
    return found == Layers().end() ? nullptr : &*found;
}

std::string ReadText(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (!in) {
        throw std::runtime_error("cannot read " + file.string());
    }
    return text;
}

/// The part of a path before its first slash; nothing without one.
std::string FirstPart(std::string_view path) {
    const std::size_t slash = path.find('/');
    return slash == std::string_view::npos ? std::string() : std::string(path.substr(0, slash));
}

/// The folder of screens that is no screen: parts of the screens that several of them share.
constexpr std::string_view SharedParts = "roll";

/// Which screen a path from src belongs to: "rooms" for screens/rooms/RoomScreen.h; nothing for
/// what the screens share.
std::string ScreenOf(std::string_view path) {
    constexpr std::string_view Screens = "screens/";
    const std::string folder =
        path.starts_with(Screens) ? FirstPart(path.substr(Screens.size())) : std::string();
    return folder == SharedParts ? std::string() : folder;
}

bool IsStandardOrSystem(const std::string& header) {
    // The standard's headers have no ending; the rest are the operating system's.
    static const std::regex names(R"([a-z_0-9]+|(sys|netinet|arpa)/[a-z_0-9]+\.h)"
                                  R"(|(unistd|fcntl|iconv|poll|pwd|signal)\.h)");
    return std::regex_match(header, names);
}

/// Whether a literal is a statement of the store's language, or the beginning of one.
bool IsQueryText(const std::string& text) {
    static const std::regex statements(
        R"(^\s*(select\s+(\*|\d|distinct\b|max\(|count\().*|select\s[^]*\sfrom\s[^]*|insert\s+(or\s+\w+\s+)?into\b[^]*)"
        R"(|delete\s+from\b[^]*|update\s+\S+\s+set\b[^]*|pragma\s[^]*|alter\s+table\b[^]*)"
        R"(|(create|drop)\s+(unique\s+)?(table|index|view|trigger)\b[^]*|vacuum(\s+into\b[^]*)?)"
        R"(|begin\s+(immediate|exclusive|deferred|transaction)\b[^]*|savepoint\s[^]*)"
        R"(|(select|insert|update|pragma)\s+)$)",
        std::regex::icase);
    return std::regex_match(text, statements);
}

class FolderCheck {
  public:
    FolderCheck(const fs::path& src, const Layer& layer, std::vector<std::string>& faults)
        : src_(src)
        , layer_(layer)
        , faults_(faults) {}

    void Check(const fs::path& file) {
        path_ = fs::relative(file, src_).generic_string();
        const std::string extension = file.extension().string();
        if (file.filename() == "CMakeLists.txt") {
            for (const auto& library : ScanLinkLines(ReadText(file))) {
                CheckLibrary(library);
            }
        } else if (extension == ".h" || extension == ".cpp" || extension == ".in") {
            const ScannedSource source = ScanSource(ReadText(file));
            for (const auto& include : source.Includes) {
                CheckInclude(include);
            }
            for (const auto& text : source.Texts) {
                if (layer_.Folder != "store" && IsQueryText(text.Text)) {
                    Add(text.Line, "a query outside of store: \"" + text.Text + '"');
                }
            }
        }
    }

  private:
    void Add(int line, const std::string& what) {
        faults_.push_back(path_ + ':' + std::to_string(line) + ": " + what);
    }

    bool MayUse(const std::string& folder) const {
        return folder == layer_.Folder || layer_.MayUse.contains(folder);
    }

    void CheckLibrary(const ScannedSource::Item& library) {
        constexpr std::string_view Own = "tarn_";
        const bool isAllowed =
            library.Text == "tarn_warnings" || library.Text == "tarn_computes_little" ||
            layer_.Libraries.contains(library.Text) ||
            (library.Text.starts_with(Own) && MayUse(library.Text.substr(Own.size())));
        if (!isAllowed) {
            Add(library.Line, layer_.Folder + " may not link to " + library.Text);
        }
    }

    void CheckInclude(const ScannedSource::Item& include) {
        const std::string name = include.Text.substr(1, include.Text.size() - 2);
        if (include.Text.front() == '<') {
            CheckOutside(include.Line, name);
            return;
        }
        const std::string folder = FirstPart(name);
        if (!LayerOf(folder)) {
            Add(include.Line, "no path from src: \"" + name + '"');
        } else if (!MayUse(folder)) {
            Add(include.Line, layer_.Folder + " may not include \"" + name + '"');
        } else {
            CheckScreen(include.Line, name);
        }
    }

    void CheckScreen(int line, const std::string& name) {
        const std::string screen = ScreenOf(name);
        if (screen.empty() || layer_.Folder != "screens" || screen == ScreenOf(path_)) {
            return;
        }
        if (!ScreenOf(path_).empty()) {
            Add(line, "a screen may not include another: \"" + name + '"');
        } else if (!path_.ends_with(".cpp") ||
                   path_.starts_with("screens/" + std::string(SharedParts))) {
            Add(line, "what the screens share may not include one: \"" + name + '"');
        }
    }

    void CheckOutside(int line, const std::string& name) {
        if (IsStandardOrSystem(name)) {
            return;
        }
        for (const Outside& each : Outsides) {
            if (std::regex_match(name, std::regex(each.Headers))) {
                if (!layer_.Libraries.contains(each.Library)) {
                    Add(line, layer_.Folder + " may not include <" + name + '>');
                }
                return;
            }
        }
        Add(line, "no folder may include <" + name + '>');
    }

    const fs::path& src_;
    const Layer& layer_;
    std::vector<std::string>& faults_;
    std::string path_;
};

std::vector<fs::path> SortedEntries(const fs::path& folder) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace

std::vector<std::string> FindShapeFaults(const fs::path& src) {
    std::vector<std::string> faults;
    for (const fs::path& file : SortedEntries(src)) {
        const std::string path = fs::relative(file, src).generic_string();
        const std::string folder = FirstPart(path);
        if (const Layer* layer = LayerOf(folder)) {
            FolderCheck(src, *layer, faults).Check(file);
        } else if (path != "CMakeLists.txt") {
            faults.push_back(path + ":1: no rule knows its folder");
        }
    }
    return faults;
}

std::vector<std::string> KnownFolders() {
    std::vector<std::string> folders;
    for (const Layer& layer : Layers()) {
        folders.push_back(layer.Folder);
    }
    return folders;
}

} // namespace tarn::testing
