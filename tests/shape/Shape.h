#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tarn::testing {

/// What the folders of `src` do that their place does not allow, each as "FOLDER/FILE:LINE: what":
/// an #include of, or a link line to, a folder, a screen or a library that is not below; the
/// store's language outside of the store; a folder that no rule knows. In the order of the paths.
std::vector<std::string> FindShapeFaults(const std::filesystem::path& src);

/// The literals of `src` that look like words for people, and go past the words that are translated
/// (base/Words.h), each as "FOLDER/FILE:LINE: literal". What is known to be for programs is left
/// out.
std::vector<std::string> FindUnsaidWords(const std::filesystem::path& src);

/// The folders that have a place, from the lowest up.
std::vector<std::string> KnownFolders();

/// A file of C++ as far as the shape is concerned.
struct ScannedSource {
    struct Item {
        int Line;
        std::string Text;
        bool IsSaid = false; ///< a literal of Words or CountedWords (see base/Words.h)
    };
    std::vector<Item> Includes; ///< as written: "folder/File.h" or <vector>, with the quotes
    std::vector<Item> Texts;    ///< string literals without their quotes, adjacent ones as one
};

/// What stands in comments does not count.
ScannedSource ScanSource(std::string_view text);

/// The libraries that the link lines of a CMakeLists.txt name.
std::vector<ScannedSource::Item> ScanLinkLines(std::string_view text);

} // namespace tarn::testing
