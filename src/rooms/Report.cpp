#include "rooms/Report.h"

#include "app/Format.h"
#include "app/Numbers.h"
#include "app/RunTimeError.h"
#include "app/Text.h"
#include "rooms/Coverings.h"
#include "rooms/WallBase.h"

#include <QDate>
#include <QLocale>

#include <algorithm>

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

/// What a base length of so many characters counts as in the imperial column.
long long CountedBaseLength(long long characters) {
    return characters == 4 ? 4 : characters == 5 ? 6 : characters + 2;
}

std::string Heading(const SharedState& state, std::string_view date) {
    std::string text;
    const auto addLine = [&text](std::string_view line) { text.append(line).append(CrLf); };
    addLine("");
    addLine(Space(55).append(ReportTitle));
    addLine("");
    addLine(Space(5).append(date));
    addLine(Space(5) + "PROJECT NAME:   " + Padded(state.CurProjName, 30));
    addLine("");
    addLine(FirstHeading);
    addLine(state.IsMetric() ? MetricHeading : ImperialHeading);
    addLine(std::string(75, '='));
    return text;
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
        throw error.WithAdvice(
            "The wall base of room " + TrimStr(room + 1) + " is longer than 32767 " +
            (state.IsMetric() ? "centimetres" : "inches") + ": correct its size or its base.");
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
    return base + Space(ImperialBaseGap - numberLength) + text +
           Space(BaseLengthWidth - CountedBaseLength(Len(text)));
}

std::string Row(const SharedState& state, Integer room) {
    const Integer width = state.RoomWidth[room];
    const Integer length = state.RoomLength[room];
    const Byte covering = state.RoomCarpet[room];
    const long long numberLength = Len(TrimStr(CoveringNumber(covering)));

    std::string row = Space(ItemIndent) + Padded(TrimStr(room + 1), ItemWidth);
    row += SizeColumns(width, length, state.IsMetric());
    row += AreaColumn(width, length, state.IsMetric());
    row += CoveringReportText(covering) + Space(TypeWidth - numberLength);
    row += BaseColumns(state, room, numberLength);
    row += Padded(state.RoomNoStr[room], RoomNumberWidth);
    row += state.RoomRemark[room] + Space(4);
    return row.append(CrLf);
}

/// Reads a row from its left.
class RowReader {
  public:
    explicit RowReader(std::string_view row)
        : row_(row) {}

    std::size_t Position() const { return position_; }
    /// Go on over all characters of `set`; how many there were.
    long long Skip(std::string_view set) {
        const std::size_t from = position_;
        position_ = std::min(row_.find_first_not_of(set, from), row_.size());
        return static_cast<long long>(position_ - from);
    }
    void Move(long long count) {
        position_ =
            std::min(position_ + static_cast<std::size_t>(std::max(count, 0LL)), row_.size());
    }
    /// The character `ahead` places further on; a blank behind the row's end.
    char At(long long ahead) const {
        const std::size_t place = position_ + static_cast<std::size_t>(ahead);
        return place < row_.size() ? row_[place] : ' ';
    }

  private:
    std::string_view row_;
    std::size_t position_ = 0;
};

constexpr std::string_view Digits = "0123456789";
constexpr std::string_view Blank = " ";

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Item, width, X, length and area; false when that is not what stands there.
bool SkipSizes(RowReader& row) {
    constexpr std::string_view Size = "-0123456789'\"";
    constexpr std::string_view SizeAndArea = "-0123456789'\".";
    if (row.Skip(Blank) != ItemIndent || row.Skip(Digits) == 0) {
        return false;
    }
    row.Skip(Blank);
    if (row.Skip(Size) == 0) {
        return false;
    }
    row.Skip(Blank);
    if (row.Skip("X") != 1) {
        return false;
    }
    row.Skip(Blank);
    bool any = row.Skip(SizeAndArea) > 0; // a long size leaves no blank before the area
    row.Skip(Blank);
    row.Skip(SizeAndArea);
    row.Skip(Blank);
    return any;
}

/// Base, base length and the gap behind. `numberLength` is that of the covering's number.
void SkipBase(RowReader& row, bool metric, long long numberLength) {
    constexpr std::string_view BaseLetters = "WL0123456789";
    const bool named = row.At(0) == 'W' || row.At(0) == 'L';
    if (metric &&
        (named || (row.At(NoBaseWidth - numberLength) == ' ' &&
                   row.At(MetricBaseWidth - 1) == ' ' && IsDigit(row.At(MetricBaseWidth))))) {
        row.Move(MetricBaseWidth + BaseLengthWidth);
        return;
    }
    const long long gap = ImperialBaseGap - numberLength;
    if (!metric && (named || IsDigit(row.At(gap)))) {
        row.Skip(BaseLetters);
        row.Skip(Blank);
        const long long characters = row.Skip("0123456789'\"");
        row.Move(BaseLengthWidth - CountedBaseLength(characters));
        return;
    }
    row.Move(NoBaseWidth - numberLength);
}

} // namespace

std::size_t RemarkColumn(std::string_view line) {
    RowReader row(line);
    if (!SkipSizes(row) || row.Skip("CT") != 1) {
        return 0;
    }
    const bool metric = line.substr(0, row.Position()).find('\'') == std::string_view::npos;
    const long long numberLength = row.Skip(Digits);
    if (numberLength == 0) {
        return 0;
    }
    row.Move(TypeWidth - numberLength);
    SkipBase(row, metric, numberLength);
    // Only the room number and what follows may hold other than one-byte characters.
    return row.Position() + static_cast<std::size_t>(RoomNumberWidth);
}

std::string LoadReport(const SharedState& state, std::string_view date) {
    std::string text = Heading(state, date);
    for (Integer room = 0; room < state.ObjNum; ++room) {
        text += Row(state, room);
    }
    return text;
}

std::string ShortDate(int year, int month, int day) {
    return QLocale::system().toString(QDate(year, month, day), QLocale::ShortFormat).toStdString();
}

std::string ShortDateOfToday() {
    const QDate today = QDate::currentDate();
    return ShortDate(today.year(), today.month(), today.day());
}

std::vector<std::string_view> ReportLines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(CrLf), text.size());
        lines.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + CrLf.size(), text.size()));
    }
    return lines;
}

} // namespace tarn
