#include "project/Report.h"

#include "base/Format.h"
#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/RunTimeError.h"
#include "base/Text.h"
#include "base/Words.h"
#include "project/Coverings.h"
#include "project/RoomSize.h"
#include "project/WallBase.h"

#include <limits>

namespace tarn {

namespace {

/// `text` and the blanks that fill it up to `width` characters.
std::string Padded(std::string_view text, long long width) {
    return std::string(text) + Space(width - Len(text));
}

constexpr auto FirstHeading = Words(
    " ITEM                                      SQ.     CARPET             BASE         ROOM");
constexpr auto MetricHeading =
    Words("   No.      WIDTH   LENGTH     METERS    /TILE   BASE     LENGTH     No.       REMARK");
constexpr auto ImperialHeading =
    Words("   No.      WIDTH   LENGTH      Yrds     /TILE   BASE     LENGTH     No.       REMARK");

/// Columns of a row, characters.
constexpr long long ItemIndent = 4;
constexpr long long ItemWidth = 10;
constexpr long long TypeWidth = 5; ///< behind "C" or "T"
constexpr long long MetricBaseWidth = 13;
constexpr long long BaseLengthWidth = 12;
constexpr long long NoBaseWidth = 12;    ///< less the covering's number
constexpr long long ImperialBaseGap = 9; ///< less the covering's number
constexpr long long RoomNumberWidth = 9;

std::vector<ReportLine> Heading(const Project& project, Units shown, std::string_view date) {
    return {{""},
            {Space(55).append(ReportTitle)},
            {""},
            {Space(5).append(date)},
            {Space(5) + Words("PROJECT NAME:   %1", Padded(OneLine(project.Name), 30))},
            {""},
            {std::string(FirstHeading)},
            {std::string(shown == Units::Metric ? MetricHeading : ImperialHeading)},
            {std::string(75, '=')}};
}

/// Width, X, length and the gap before the area.
std::string SizeColumns(const Room& room, Units shown) {
    const std::string plainWidth = TrimStr(room.Width);
    const std::string plainLength = TrimStr(room.Length);
    const std::string gap = Space(CInt(4 - static_cast<Double>(Len(plainWidth)) / 2));
    if (shown == Units::Metric) {
        return plainWidth + gap + "X" + gap + Padded(plainLength, 7);
    }
    const std::string widthText = FeetAndInches(room.Width);
    const std::string lengthText = FeetAndInches(room.Length);
    // Nine characters, the shortest there are (0'0"X0'0"), get one blank less than the row of the
    // others would give them.
    const long long characters = Len(widthText + "X" + lengthText);
    const long long behind = characters == 9 ? 14 : 33 - 2 * characters;
    return widthText + gap + "X" + gap + lengthText + Space(behind);
}

/// Square metres or square yards, and the gap behind.
std::string AreaColumn(const Room& room, Units shown) {
    constexpr std::string_view Pattern = "###0.00";
    const Double area = CSng(static_cast<Double>(room.Width) * room.Length);
    const std::string metricText = Format(area / 10000, Pattern);
    const std::string text = shown == Units::Metric ? metricText : Format(area / 144 / 9, Pattern);
    return text + Space(11 - Len(metricText));
}

/// Base text, base length and the gap before the room number. `numberLength` is that of the
/// covering's number.
std::string BaseColumns(const Room& room, long long item, Units shown, long long numberLength) {
    const std::string base = BaseText(room.Base);
    if (room.Base == 0) {
        return base + Space(NoBaseWidth - numberLength);
    }
    const Integer length = ReportedBaseLength(room, item, shown);
    if (shown == Units::Metric) {
        return Padded(base, MetricBaseWidth) + Padded(TrimStr(length), BaseLengthWidth);
    }
    const std::string text = FeetAndInches(length);
    const long long characters = Len(text);
    const long long counted = characters == 4 ? 4 : characters == 5 ? 6 : characters + 2;
    return base + Space(ImperialBaseGap - numberLength) + text + Space(BaseLengthWidth - counted);
}

ReportLine Row(const Room& room, long long item, Units shown) {
    const long long numberLength = Len(TrimStr(CoveringNumber(room.Covering)));

    std::string row = Space(ItemIndent) + Padded(TrimStr(item), ItemWidth);
    row += SizeColumns(room, shown);
    row += AreaColumn(room, shown);
    row += CoveringReportText(room.Covering) + Space(TypeWidth - numberLength);
    row += BaseColumns(room, item, shown, numberLength);
    row += Padded(OneLine(room.Number), RoomNumberWidth);
    const auto remark = static_cast<std::size_t>(Len(row));
    return {row + OneLine(room.Remark) + Space(4), remark};
}

} // namespace

std::string EnteredDataReport::Text() const {
    std::string text;
    for (const ReportLine& line : Lines) {
        text.append(line.Text).append(CrLf);
    }
    return text;
}

Integer ReportedBaseLength(const Room& room, long long item, Units shown) {
    try {
        return ListedBaseLength(room.Width, room.Length, room.Base);
    } catch (const RunTimeError& error) {
        throw error.WithAdvice(Words(
            "The wall base of room %1 is longer than %2 %3: correct its size or its base.",
            TrimStr(item), TrimStr(std::numeric_limits<Integer>::max()), SmallUnitName(shown)));
    }
}

EnteredDataReport MakeReport(const Project& project, Units shown, std::string_view date) {
    EnteredDataReport report{Heading(project, shown, date)};
    long long item = 0;
    for (const Room& room : project.Rooms) {
        report.Lines.push_back(Row(room, ++item, shown));
    }
    return report;
}

} // namespace tarn
