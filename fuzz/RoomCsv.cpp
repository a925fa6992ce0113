#include "files/RoomCsv.h"

#include "Fuzzing.h"
#include "files/CsvText.h"

#include <algorithm>
#include <array>

namespace tarn {
namespace {

void CheckRecords(std::string_view text, char separator) {
    const auto lines =
        1 + std::count_if(text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; });
    long long line = 0;
    CsvReader reader(text, separator);
    while (const auto record = reader.Next()) {
        Require(record->Line > line && record->Line <= lines,
                "records begin on lines of their own");
        line = record->Line;
        Require(!record->Fields.empty(), "a record has a field");
        Require(record->Fields.size() == std::min(record->FieldCount, MostCsvFields),
                "a record keeps its first fields");
        if (record->Fault == CsvFault::None) {
            std::string again;
            AppendCsvRecord(again, record->Fields);
            CsvReader reading(again);
            const auto back = reading.Next();
            const bool oneEmpty = record->Fields == std::vector<std::string>{""};
            Require(oneEmpty ? !back : back && back->Fields == record->Fields && !reading.Next(),
                    "fields that are written are read back");
        }
    }
}

void CheckReading(const RoomCsvReading& reading, Units units) {
    Require(reading.Rooms.empty() || reading.Errors.empty(), "rooms or mistakes");
    Require(reading.Errors.size() <= MaxRoomCsvErrors, "few mistakes are told");
    Require(reading.MoreErrors == 0 || reading.Errors.size() == MaxRoomCsvErrors,
            "the first mistakes are told");
    Require(reading.Succeeded() || (reading.Notes.empty() && reading.MoreNotes == 0),
            "nothing is noted of what is refused");
    for (const auto* list : {&reading.Errors, &reading.Notes}) {
        for (const RoomCsvError& error : *list) {
            Require(error.Line >= 1 && !error.Problem.empty(), "a mistake has a place and a cause");
            Require(ErrorText(error).find('\n') == std::string::npos, "a mistake is one line");
        }
    }
    if (reading.Succeeded()) {
        const RoomCsvReading back = ReadRoomCsv(WriteRoomCsv(reading.Rooms), units);
        Require(back.Succeeded() && back.Rooms == reading.Rooms, "rooms are read back");
    }
}

} // namespace
} // namespace tarn

/// The first byte is the unit and the encoding, the rest is the file.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    constexpr std::array<const char*, 3> Encodings{"windows-1252", "shift_jis", ""};
    const std::string_view text = tarn::TextOf(data + 1, size - 1);
    const auto units = data[0] % 2 == 1 ? tarn::Units::Metric : tarn::Units::Imperial;
    for (const char separator : {',', ';', '\t'}) {
        tarn::CheckRecords(text, separator);
    }
    const std::size_t encoding = data[0] / 32U % Encodings.size();
    tarn::CheckReading(tarn::ReadRoomCsv(text, units, Encodings.at(encoding)), units);
    tarn::CheckReading(tarn::ReadPastedRooms(text, units), units);
    return 0;
}
