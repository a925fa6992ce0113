// What the options of several programs have in common: where rooms come from, and where outputs go.

#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace CLI {
class App;
class Option;
class Validator;
} // namespace CLI

namespace tarn {

/// Put the language in force that the arguments ask for with --language, else `chosen` where that
/// is a language: first of all, since options are described in it. What is no language is refused
/// when the arguments are parsed (PrepareHelp).
void SpeakAsAsked(int argc, const char* const* argv, std::string_view chosen = {});

/// Add --language, and have `app` give its help and its refusals in the language in force: before
/// any option.
void PrepareHelp(CLI::App& app);

/// A file of rooms, and how it is written.
struct RoomFile {
    std::string Path;
    std::string Encoding; ///< as iconv(3) knows it; empty for UTF-8, or what the file says
};

/// Add --encoding, which a program or command with a file of rooms has.
CLI::Option* AddEncoding(CLI::App& app, std::string& encoding);

/// Add --database with --project, and --rooms, with --encoding, which excludes them. The texts must
/// outlive `app`.
void AddRoomsSource(CLI::App& app, std::string& database, std::string& project, RoomFile& rooms);

/// Raise CLI::ValidationError when neither a database nor a file of rooms was named.
void RequireRoomsSource(const std::string& database, const std::string& rooms);

/// Refuses an option that is given without its value ("--match=").
std::string NotEmpty(const std::string& value);

/// Refuses what is no number above 0.
CLI::Validator AboveZero();

/// Raise CLI::ValidationError when two of the outputs (option and path, empty for none) would
/// overwrite or mix with each other.
void RequireDifferentOutputs(const std::vector<std::pair<std::string, std::string>>& outputs);

} // namespace tarn
