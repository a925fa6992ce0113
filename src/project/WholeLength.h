// Lengths that are typed with their units into one of the two fields of a size, such as 12'6", and
// how they are spread over both.

#pragma once

#include "base/Units.h"
#include "project/RoomSize.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// A length that names its units, in one text.
struct WholeLength {
    /// The numbers for the two fields of a size, in plain digits with at most one point; empty
    /// for 0.
    SizeParts Parts;
    Units In = Units::Imperial;
    /// The field whose unit it names and whose number alone it is, such as 12'; nothing for one
    /// that belongs in both: of two units, or spread over both, as 12.5', 18" and 3.66m.
    std::optional<SizePart> Alone;

    bool operator==(const WholeLength&) const = default;
};

/// A unit of length: the one of a size field, or one in which no size is typed, such as mm.
struct LengthUnit {
    std::optional<Units> In; ///< nothing: no size is typed in it
    SizePart Part = SizePart::Major;

    bool operator==(const LengthUnit&) const = default;
};

/// The unit that a text names, in one of the ways in which ReadWholeLength reads it; nothing for
/// another text.
std::optional<LengthUnit> ReadLengthUnit(std::string_view text);

/// Read a length with its units: 12'6", 12' 6 1/2", 12'-6", 12-6, 12ft 6in, 3.66m, 366cm, 3m 66cm,
/// or one of the units alone. Units may be written in either case and in full (feet, inches,
/// metres, centimetres), feet and inches also with typographic quotes, and with blanks around
/// everything. Inches may be a fraction of 2, 4, 8, 16, 32 or 64. Spreading is exact. Nothing for
/// any other text, such as a number alone, and for one of more than nine digits on a side of the
/// point.
std::optional<WholeLength> ReadWholeLength(std::string_view text);

/// What stays of a text that Val reads as 0 although it is a length, for a field holds no zero:
/// 6" of 0'6". Nothing for any other text.
std::optional<std::string> WithoutZeroPart(std::string_view text);

/// What two typed texts of a size come to.
struct SpreadSize {
    enum class Fault {
        None,
        Unreadable,   ///< it would be read otherwise than it looks
        Negative,     ///< below 0
        OtherUnits,   ///< a length in units that are not in force
        UnitNotTaken, ///< a unit in which no size is typed, such as mm
        BesideNumber, ///< a length for both fields while the other one holds a number
    };
    /// The texts for the two fields: as they were typed, but where one names its units the numbers
    /// alone. As they were typed where there is a fault.
    SizeParts Parts;
    Fault Why = Fault::None;
    SizePart Wrong = SizePart::Major; ///< the text with the fault

    bool operator==(const SpreadSize&) const = default;
};

/// Spread what is typed over the two fields of a size in `units`, or say what is wrong with it. A
/// number too large for a Double is no fault here. Spreading what was spread changes nothing.
SpreadSize Spread(const SizeParts& typed, Units units);

} // namespace tarn
