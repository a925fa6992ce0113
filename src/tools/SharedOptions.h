// What the options of several programs have in common: how they tell of themselves, where rooms
// come from, and where outputs go.

#pragma once

#include "files/OutputFile.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
class Option;
class Validator;
} // namespace CLI

namespace tarn {

/// Put the language in force that the arguments ask for with --language, else `chosen` where that
/// is a language: first of all, since options are described in it. What is no language is refused
/// when the arguments are parsed (BeginOptions).
void SpeakAsAsked(int argc, const char* const* argv, std::string_view chosen = {});

/// Have `app` tell what the program is, in the language in force, and add --help, --language and
/// --version: before any other option.
void BeginOptions(CLI::App& app, const std::string& program, const std::string& description,
                  const std::string& footer);

/// A file of rooms, and how it is written.
struct RoomFile {
    std::string Path;
    std::string Encoding; ///< as iconv(3) knows it; empty for UTF-8, or what the file says
};

/// Add --encoding, which a program or command with a file of rooms has.
CLI::Option* AddEncoding(CLI::App& app, std::string& encoding);

/// Where a program takes the rooms from.
struct RoomsSource {
    std::string Database; ///< with Project, or else Rooms
    std::string Project;
    RoomFile Rooms; ///< a CSV file

    /// The file that is read.
    const std::string& Path() const { return Rooms.Path.empty() ? Database : Rooms.Path; }
};

/// Add --database with --project, and --rooms, with --encoding, which excludes them. The source
/// must outlive `app`.
void AddRoomsSource(CLI::App& app, RoomsSource& source);

/// Raise CLI::ValidationError when neither a database nor a file of rooms was named.
void RequireRoomsSource(const RoomsSource& source);

/// Refuses an option that is given without its value ("--match=").
std::string NotEmpty(const std::string& value);

/// Refuses what is no number above 0.
CLI::Validator AboveZero();

/// Add --seed, of the improving search.
void AddSeed(CLI::App& app, std::uint64_t& seed);

/// An output that a program or command can write.
struct Output {
    std::string Option; ///< or what else it is called in words
    std::string Path;   ///< empty when it is not asked for
};
using Outputs = std::vector<Output>;

/// Add an option that takes the path of an output.
void AddOutputFile(CLI::App& app, const std::string& option, std::string& path,
                   const std::string& what);

/// Add the option --force to a program or command: it allows Overwrite::Anything.
void AddForce(CLI::App& command, Overwrite& over);

bool IsAnyAskedFor(const Outputs& outputs);

/// Raise CLI::ValidationError when two of the outputs would overwrite or mix with each other.
void RequireDifferentOutputs(const Outputs& outputs);

/// Raise Refusal when one of the outputs is the file that is read (see RequireOtherFile).
void RequireOutputsBeside(const std::string& input, const Outputs& outputs);

} // namespace tarn
