#include "screens/rooms/RoomPaste.h"

#include "base/Text.h"
#include "files/QtText.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>

namespace tarn {

namespace {

/// As many lines as a box holds in a small window.
constexpr std::size_t MostLinesTold = 5;

std::string Joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text.append(text.empty() ? "" : CrLf).append(line);
    }
    return text;
}

} // namespace

RoomCsvReading ReadClipboardRooms(Units units, std::size_t most) {
    RoomCsvReading reading =
        ReadPastedRooms(FromQt(QGuiApplication::clipboard()->text()), units, most);
    if (reading.Succeeded() && reading.Rooms.empty()) {
        reading.Errors.push_back({1, {}, {}, Words("there is no room below the headings")});
    }
    return reading;
}

std::string NameOfPaste(std::size_t rooms) {
    return CountedWords("paste %n room", "paste %n rooms", static_cast<long long>(rooms));
}

std::string WhyNotPasted(const RoomCsvReading& reading) {
    return Joined(MistakeLines(reading, MostLinesTold));
}

std::string RoundedText(const RoomCsvReading& reading) {
    std::vector<std::string> lines;
    const std::size_t told = std::min(MostLinesTold, reading.Notes.size());
    for (std::size_t i = 0; i < told; ++i) {
        lines.push_back(ErrorText(reading.Notes[i]));
    }
    const long long more = reading.MoreNotes + static_cast<long long>(reading.Notes.size() - told);
    if (more > 0) {
        lines.push_back(Words("and %1 more", TrimStr(more)));
    }
    return Joined(lines);
}

} // namespace tarn
