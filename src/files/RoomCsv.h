// Rooms as a CSV file, or as a table that was copied in a spreadsheet: the columns width, length,
// covering, base, room, remark.

#pragma once

#include "base/Units.h"
#include "project/Room.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// One mistake in a room file.
struct RoomCsvError {
    long long Line = 1;  ///< the physical line on which the record begins, from 1
    std::string Field;   ///< the field of a room; empty when the mistake is not in one
    std::string Value;   ///< the field or heading as it stands; empty without one
    std::string Problem; ///< a sentence for the user, which names field and value: width "-5" is
                         ///< negative. A long value is shortened in it, an empty one left out

    bool operator==(const RoomCsvError&) const = default;
};

/// The mistake as one line for the user: line 7: width "-5" is negative.
std::string ErrorText(const RoomCsvError& error);

/// Most bytes that a room file may have: 16 MB.
inline constexpr std::size_t MaxRoomCsvBytes = std::size_t{16} * 1024 * 1024;
/// Most mistakes of a file that are told.
inline constexpr std::size_t MaxRoomCsvErrors = 20;

/// The rooms of a file, or what is wrong with it: at most one of the two has elements.
struct RoomCsvReading {
    std::vector<Room> Rooms;
    std::vector<RoomCsvError> Errors; ///< in the order of the lines, the first MaxRoomCsvErrors
    long long MoreErrors = 0;         ///< how many more there are
    /// What was not kept as it stands, in the same form: sizes that are rounded. None with errors.
    std::vector<RoomCsvError> Notes; ///< the first MaxRoomCsvErrors
    long long MoreNotes = 0;         ///< how many more there are

    bool Succeeded() const noexcept { return Errors.empty(); }
};

/// "and 3 more mistakes".
std::string MoreMistakesText(long long count);
/// The first `most` mistakes of a reading, a line each, and how many more there are.
std::vector<std::string> MistakeLines(const RoomCsvReading& reading,
                                      std::size_t most = MaxRoomCsvErrors);

/// Read rooms from the bytes of a CSV file (RFC 4180; see CsvReader), as spreadsheets write them.
///
/// The encoding is what a byte-order mark says, else `encoding`, else UTF-8 (see DecodeText). The
/// separator is a comma, a semicolon or a tab: the one that a first line "sep=;" names, else the
/// one by which the first line has the most known headings; of equals the one that gives it the
/// most columns, and of these the comma before the semicolon before the tab.
///
/// The first line heads the columns width, length, covering, base, room, remark, in any order and
/// in the ways that ReadRoomHeading knows; the first three are required. Sizes are whole inches or
/// feet and inches such as 12'6", and whole centimetres alone for Units::Metric; below a heading
/// with a unit they are numbers in that unit, also with places, or lengths as ReadWholeLength takes
/// them, and rounded as on the screens, which is noted. 0 is read, a negative size and one above
/// 32767 are mistakes. Coverings as ReadCovering takes them, the base as IsBaseText; room number,
/// base and remark within their greatest lengths, room number and remark without TextFault. Of a
/// room number or remark that begins with ' the ' is taken off. Blanks around a field count only in
/// room and remark. A line of separators alone is empty.
///
/// Every mistake of the file is counted, and none of its rooms is taken then; for a file of another
/// kind, and for one with bytes that its encoding does not have, nothing else is told. A file with
/// a header alone has no rooms and no mistake. Takes time in proportion to the text, and little
/// memory beside it and its UTF-8. Raises UnknownEncoding.
RoomCsvReading ReadRoomCsv(std::string_view bytes, Units units, const std::string& encoding = {});

/// Read rooms from a text (UTF-8) that was copied in a spreadsheet, in the same way, `most` of them
/// at most. Where the first line has a tab, tabs separate. The headings may be missing; the columns
/// are then the first ones of width, length, covering, base, room, remark.
RoomCsvReading ReadPastedRooms(std::string_view text, Units units, std::size_t most = RoomCapacity);

/// The rooms as a CSV text that ReadRoomCsv reads back, whatever the unit: all six columns, sizes
/// as whole numbers, coverings by their caption, each room in one line. A room number or remark
/// that a spreadsheet would take for a formula (= + - @ first), and one that begins with ', has a '
/// before it; each TextFault in it is written as it is shown. A room that can be stored but not
/// entered (a negative size, an unknown covering, an overlong text) is written all the same, and
/// refused when it is read; an unknown base code is written as no base, as it is shown.
std::string WriteRoomCsv(const std::vector<Room>& rooms);

} // namespace tarn
