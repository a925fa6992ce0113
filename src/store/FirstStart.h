// The first start, where nothing is configured yet: what is offered to be made, and making it.

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// What is made when the user agrees.
struct FirstStart {
    std::filesystem::path DataFolder;    ///< the user's own (see UserDataFolder)
    std::filesystem::path Configuration; ///< the file that is to name it
    /// Whether a database stands in the folder: it stays as it is, and is used from now on.
    bool HasData = false;

    friend bool operator==(const FirstStart&, const FirstStart&) = default;
};

/// What to offer when no place in `configurationDirectories` has a configuration file: it would
/// stand in the first of them. Nothing when there is such a file, also an empty one, and when the
/// environment names no home: then there is no place that is the user's own.
std::optional<FirstStart>
OfferFirstStart(const std::vector<std::filesystem::path>& configurationDirectories);

/// The question that names both, and what an answer other than Yes does; lines broken by CrLf.
std::string QuestionAbout(const FirstStart& start);

/// Make the data folder with an empty database, unless it has one, and the configuration file; each
/// is the owner's alone (see FileModes.h). Raises std::runtime_error, which says what cannot be
/// made and why; nothing that it made is there then.
void MakeFirstStart(const FirstStart& start);

} // namespace tarn
