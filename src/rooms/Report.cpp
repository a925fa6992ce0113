#include "rooms/Report.h"

#include "app/Format.h"
#include "app/Numbers.h"
#include "app/RunTimeError.h"
#include "app/Text.h"
#include "rooms/Coverings.h"
#include "rooms/WallBase.h"

#include <QDate>
#include <QLocale>

#include <limits>

namespace tarn {

namespace {

/// `text` and the blanks that fill it up to `width` characters.
std::string Padded(std::string_view text, long long width) {
    return std::string(text) + Space(width - Len(text));
}

constexpr std::string_view FirstHeading =
    " ITEM                                      SQ.     CARPET             BASE         ROOM";
constexpr std::string_view MetricHeading =
    "   No.      WIDTH   LENGTH     METERS    /TILE   BASE     LENGTH     No.       REMARK";
constexpr std::string_view ImperialHeading =
    "   No.      WIDTH   LENGTH      Yrds     /TILE   BASE     LENGTH     No.       REMARK";

/// Columns of a row, characters.
constexpr long long ItemIndent = 4;
constexpr long long ItemWidth = 10;
constexpr long long TypeWidth = 5; ///< behind "C" or "T"
constexpr long long MetricBaseWidth = 13;
constexpr long long BaseLengthWidth = 12;
constexpr long long NoBaseWidth = 12;    ///< less the covering's number
constexpr long long ImperialBaseGap = 9; ///< less the covering's number
constexpr long long RoomNumberWidth = 9;

std::vector<ReportLine> Heading(const SharedState& state, std::string_view date) {
    return {{""},
            {Space(55).append(ReportTitle)},
            {""},
            {Space(5).append(date)},
            {Space(5) + "PROJECT NAME:   " + Padded(OneLine(state.CurProjName), 30)},
            {""},
            {std::string(FirstHeading)},
            {std::string(state.IsMetric() ? MetricHeading : ImperialHeading)},
            {std::string(75, '=')}};
}

/// Width, X, length and the gap before the area.
std::string SizeColumns(Integer width, Integer length, bool metric) {
    const std::string plainWidth = TrimStr(width);
    const std::string plainLength = TrimStr(length);
    const std::string gap = Space(CInt(4 - static_cast<Double>(Len(plainWidth)) / 2));
    if (metric) {
        return plainWidth + gap + "X" + gap + Padded(plainLength, 7);
    }
    const std::string widthText = FtInStr(width);
    const std::string lengthText = FtInStr(length);
    // Nine characters, the shortest there are (0'0"X0'0"), get one blank less than the row of the
    // others would give them.
    const long long characters = Len(widthText + "X" + lengthText);
    const long long behind = characters == 9 ? 14 : 33 - 2 * characters;
    return widthText + gap + "X" + gap + lengthText + Space(behind);
}

/// Square metres or square yards, and the gap behind.
std::string AreaColumn(Integer width, Integer length, bool metric) {
    constexpr std::string_view Pattern = "###0.00";
    const Double area = CSng(static_cast<Double>(width) * length);
    const std::string metricText = Format(area / 10000, Pattern);
    const std::string text = metric ? metricText : Format(area / 144 / 9, Pattern);
    return text + Space(11 - Len(metricText));
}

Integer BaseLenOfRoom(const SharedState& state, Integer room) {
    try {
        return BaseLen(state.RoomWidth[room], state.RoomLength[room], state.RoomBase[room]);
    } catch (const RunTimeError& error) {
        throw error.WithAdvice("The wall base of room " + TrimStr(room + 1) + " is longer than " +
                               TrimStr(std::numeric_limits<Integer>::max()) +
                               (state.IsMetric() ? " centimetres" : " inches") +
                               ": correct its size or its base.");
    }
}

/// Base text, base length and the gap before the room number. `numberLength` is that of the
/// covering's number.
std::string BaseColumns(const SharedState& state, Integer room, long long numberLength) {
    const std::string base = GetBaseStr(state.RoomBase[room]);
    if (state.RoomBase[room] == 0) {
        return base + Space(NoBaseWidth - numberLength);
    }
    const Integer baseLen = BaseLenOfRoom(state, room);
    if (state.IsMetric()) {
        return Padded(base, MetricBaseWidth) + Padded(TrimStr(baseLen), BaseLengthWidth);
    }
    const std::string text = FtInStr(baseLen);
    const long long characters = Len(text);
    const long long counted = characters == 4 ? 4 : characters == 5 ? 6 : characters + 2;
    return base + Space(ImperialBaseGap - numberLength) + text + Space(BaseLengthWidth - counted);
}

ReportLine Row(const SharedState& state, Integer room) {
    const Integer width = state.RoomWidth[room];
    const Integer length = state.RoomLength[room];
    const Byte covering = state.RoomCarpet[room];
    const long long numberLength = Len(TrimStr(CoveringNumber(covering)));

    std::string row = Space(ItemIndent) + Padded(TrimStr(room + 1), ItemWidth);
    row += SizeColumns(width, length, state.IsMetric());
    row += AreaColumn(width, length, state.IsMetric());
    row += CoveringReportText(covering) + Space(TypeWidth - numberLength);
    row += BaseColumns(state, room, numberLength);
    row += Padded(OneLine(state.RoomNoStr[room]), RoomNumberWidth);
    const auto remark = static_cast<std::size_t>(Len(row));
    return {row + OneLine(state.RoomRemark[room]) + Space(4), remark};
}

} // namespace

std::string EnteredDataReport::Text() const {
    std::string text;
    for (const ReportLine& line : Lines) {
        text.append(line.Text).append(CrLf);
    }
    return text;
}

EnteredDataReport LoadReport(const SharedState& state, std::string_view date) {
    EnteredDataReport report{Heading(state, date)};
    for (Integer room = 0; room < state.ObjNum; ++room) {
        report.Lines.push_back(Row(state, room));
    }
    return report;
}

std::string ShortDate(int year, int month, int day) {
    return QLocale::system().toString(QDate(year, month, day), QLocale::ShortFormat).toStdString();
}

std::string ShortDateOfToday() {
    const QDate today = QDate::currentDate();
    return ShortDate(today.year(), today.month(), today.day());
}

} // namespace tarn
