// Rooms as a CSV file: the columns width, length, covering, base, room, remark.

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
    std::string Field;   ///< the column's name; empty when the mistake is not in one field
    std::string Value;   ///< the field as it stands; empty without a Field
    std::string Problem; ///< what is wrong, worded to follow field and value

    bool operator==(const RoomCsvError&) const = default;
};

/// The mistake without its place: width "-5" is negative. A long value is shortened, an empty one
/// left out.
std::string MistakeText(const RoomCsvError& error);
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

    bool Succeeded() const noexcept { return Errors.empty(); }
};

/// Read rooms from a CSV text (RFC 4180, UTF-8; see CsvReader).
///
/// The first line names the columns width, length, covering, base, room, remark, in any order and
/// letter case; the first three are required. Sizes are whole inches or feet and inches such as
/// 12'6", and whole centimetres alone for Units::Metric; 0 is read, a negative size and one above
/// 32767 are mistakes. Coverings as ReadCovering takes them, the base as IsBaseText; room number,
/// base and remark within their greatest lengths, room number and remark without TextFault. Of a
/// room number or remark that begins with ' the ' is taken off. Blanks around a field count only in
/// room and remark.
///
/// Every mistake of the file is counted, and none of its rooms is taken then; in a UTF-16 file and
/// one with semicolons or tabs between the columns that is the only one. A file with a header
/// alone has no rooms and no mistake. Takes time in proportion to the text, and little memory
/// beside it.
RoomCsvReading ReadRoomCsv(std::string_view text, Units units);

/// The rooms as a CSV text that ReadRoomCsv reads back, whatever the unit: all six columns, sizes
/// as whole numbers, coverings by their caption, each room in one line. A room number or remark
/// that a spreadsheet would take for a formula (= + - @ first), and one that begins with ', has a '
/// before it; each TextFault in it is written as it is shown. A room that can be stored but not
/// entered (a negative size, an unknown covering, an overlong text) is written all the same, and
/// refused when it is read; an unknown base code is written as no base, as it is shown.
std::string WriteRoomCsv(const std::vector<Room>& rooms);

} // namespace tarn
