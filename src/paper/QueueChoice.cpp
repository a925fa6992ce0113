#include "paper/QueueChoice.h"

#include "base/Text.h"

#include <cstdlib>
#include <cups/cups.h>
#include <fstream>
#include <functional>
#include <sstream>

namespace tarn {

namespace {

std::string Variable(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

QueueChoice ChoiceOf(const std::string& text) {
    const std::size_t slash = text.find('/');
    return {text.substr(0, slash), slash == std::string::npos ? "" : text.substr(slash + 1)};
}

std::string UsersFile() {
    const std::string home = Variable("HOME");
    return home.empty() ? home : home + "/.cups/lpoptions";
}

std::string EverybodysFile() {
    const std::string folder = Variable("CUPS_SERVERROOT");
    return (folder.empty() ? "/etc/cups" : folder) + "/lpoptions";
}

/// A line "Dest NAME[/INSTANCE] OPTIONS", or "Default .." for the default queue.
struct Line {
    bool Default = false;
    QueueChoice Queue;
    std::string Options;
};

void ForEachLine(const std::string& path, const std::function<void(const Line&)>& take) {
    std::ifstream file(path);
    for (std::string text; std::getline(file, text);) {
        std::istringstream stream(text);
        std::string kind;
        std::string name;
        stream >> kind >> name;
        const bool isDefault = EqualsIgnoringCase(kind, "default");
        if (!name.empty() && (isDefault || EqualsIgnoringCase(kind, "dest"))) {
            Line line{isDefault, ChoiceOf(name), {}};
            std::getline(stream, line.Options);
            take(line);
        }
    }
}

void AddOptions(const std::string& text, QueueOptions& to) {
    cups_option_t* options = nullptr;
    const int count = cupsParseOptions(text.c_str(), 0, &options);
    for (int i = 0; i < count; ++i) {
        to[options[i].name] = options[i].value;
    }
    cupsFreeOptions(count, options);
}

} // namespace

QueueChoice ChosenQueue() {
    std::string chosen = Variable("LPDEST");
    if (chosen.empty() && Variable("PRINTER") != "lp") { // "lp" is a device there
        chosen = Variable("PRINTER");
    }
    if (!chosen.empty()) {
        return ChoiceOf(chosen);
    }
    QueueChoice found;
    for (const std::string& path : {UsersFile(), EverybodysFile()}) {
        ForEachLine(path, [&found](const Line& line) {
            if (line.Default && found.Name.empty()) {
                found = line.Queue;
            }
        });
    }
    return found;
}

QueueOptions ChosenOptions(const QueueChoice& queue) {
    QueueOptions options;
    for (const std::string& path : {EverybodysFile(), UsersFile()}) {
        ForEachLine(path, [&](const Line& line) {
            if (EqualsIgnoringCase(line.Queue.Name, queue.Name) &&
                EqualsIgnoringCase(line.Queue.Instance, queue.Instance)) {
                AddOptions(line.Options, options);
            }
        });
    }
    return options;
}

} // namespace tarn
