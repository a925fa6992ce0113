#include "order/CheckOrder.h"

#include "base/Text.h"
#include "base/Words.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <utility>

namespace tarn {

namespace {

using Area = std::int64_t;

/// A fault that was found: its sentence.
struct Fault {
    std::string Text;
};

void Require(bool holds, const std::string& otherwise) {
    if (!holds) {
        throw Fault{otherwise};
    }
}

/// What a strip of a room has to be.
struct Wanted {
    Long Width;    ///< with its trim
    Long Length;   ///< with its trim
    Long NetWidth; ///< without
    Long NetLength;
    Long Begin;
    Long Strips; ///< of the room
    bool IsFill;
};

using StripKey = std::pair<Long, Long>; ///< room from 1, strip from 0
using Pieces = std::vector<const OrderPiece*>;

class CandidateCheck {
  public:
    CandidateCheck(const Project& project, const Order& order, const OrderCandidate& candidate)
        : project_(project)
        , carpet_(order.Carpet)
        , request_(order.Request)
        , row_(candidate) {}

    void Check() {
        CheckRoll();
        if (!row_.Figures) {
            Require(row_.Pieces.empty(), Words("there are pieces without figures"));
            return;
        }
        Require(row_.Refused.IsEmpty(), Words("a refused row has figures"));
        WantStrips();
        CheckOrderOfPieces();
        for (const OrderPiece& piece : row_.Pieces) {
            CheckPlace(piece);
            pieces_[{piece.Room, piece.Strip}].push_back(&piece);
        }
        CheckOverlaps();
        Require(pieces_.size() == wanted_.size(), Words("not every strip is laid"));
        for (auto& [key, pieces] : pieces_) {
            CheckStrip(wanted_.at(key), pieces);
        }
        CheckPattern();
        CheckFigures();
    }

  private:
    void CheckRoll() const {
        const RollChoice& roll = request_.Rolls.at(row_.Roll);
        Require(std::abs(roll.Width - row_.RollWidth) < 1 && row_.RollWidth <= roll.Width + 1e-6,
                Words("the roll's width is not its whole units"));
        Require(row_.UsableWidth == row_.RollWidth - 2 * request_.Selvage,
                Words("the usable width is not what the selvage leaves"));
    }

    /// The strips that the rooms take.
    void WantStrips() {
        const Long usable = row_.UsableWidth;
        for (std::size_t i = 0; i < project_.Rooms.size(); ++i) {
            const Room& room = project_.Rooms[i];
            if (room.Covering != carpet_ || room.Width <= 0 || room.Length <= 0) {
                continue;
            }
            const bool down = row_.Direction == Lay::Down;
            const Long across = down ? room.Width : room.Length;
            const Long along = down ? room.Length : room.Width;
            const Long strips = (across + usable - 1) / usable;
            for (Long strip = 0; strip < strips; ++strip) {
                const Long left = strip * usable;
                const Long net = std::min(across - left, usable);
                const Long width = std::min(net + request_.TrimAcross, usable);
                wanted_[{static_cast<Long>(i) + 1, strip}] = {
                    width,  along + request_.TrimAlong,      net, along, left,
                    strips, strip > 0 && strip == strips - 1};
            }
        }
    }

    void CheckOrderOfPieces() const {
        for (std::size_t i = 0; i < row_.Pieces.size(); ++i) {
            const OrderPiece& piece = row_.Pieces[i];
            Require(piece.Label == LabelOf(i), Words("the labels are not in a row"));
            Require(i == 0 || std::pair(row_.Pieces[i - 1].Y, row_.Pieces[i - 1].X) <
                                  std::pair(piece.Y, piece.X),
                    Words("the pieces are not in cutting order"));
        }
    }

    static std::string LabelOf(std::size_t number) {
        constexpr std::size_t Letters = 26;
        std::string label(1, static_cast<char>('A' + number % Letters));
        while (number >= Letters) {
            number = number / Letters - 1;
            label.insert(label.begin(), static_cast<char>('A' + number % Letters));
        }
        return label;
    }

    void CheckPlace(const OrderPiece& piece) const {
        const std::string& name = piece.Label;
        const auto strip = wanted_.find({piece.Room, piece.Strip});
        Require(strip != wanted_.end(), Words("piece %1 belongs to no room", name));
        Require(piece.Width == strip->second.Width,
                Words("piece %1 is not as wide as its strip", name));
        Require(piece.Strips == strip->second.Strips,
                Words("piece %1 does not know its strips", name));
        Require(piece.RoomX == strip->second.Begin,
                Words("piece %1 does not begin where its strip does", name));
        Require(piece.Length > 0, Words("piece %1 has no length", name));
        Require(piece.X >= 0 && piece.X + piece.Width <= row_.UsableWidth && piece.Y >= 0,
                Words("piece %1 is not on the roll", name));
    }

    void CheckOverlaps() const {
        Pieces beside; // pieces, in their order along the roll, that may reach the next one
        for (const OrderPiece& piece : row_.Pieces) {
            std::erase_if(
                beside, [&](const OrderPiece* each) { return each->Y + each->Length <= piece.Y; });
            for (const OrderPiece* each : beside) {
                Require(each->X + each->Width <= piece.X || piece.X + piece.Width <= each->X,
                        Words("pieces %1 and %2 overlap", each->Label, piece.Label));
            }
            beside.push_back(&piece);
        }
    }

    void CheckStrip(const Wanted& strip, Pieces& parts) const {
        std::sort(parts.begin(), parts.end(),
                  [](const OrderPiece* a, const OrderPiece* b) { return a->Part < b->Part; });
        const std::string& name = parts.front()->Label;
        const auto count = static_cast<Long>(parts.size());
        Long end = 0;
        for (Long part = 0; part < count; ++part) {
            const OrderPiece& piece = *parts[static_cast<std::size_t>(part)];
            Require(piece.Part == part + 1 && piece.Parts == count,
                    Words("the strip of piece %1 does not have its parts numbered", name));
            Require(piece.RoomY == end,
                    Words("the strip of piece %1 has parts that do not follow each other", name));
            Require(count == 1 || piece.Length >= request_.ShortestPart,
                    Words("the strip of piece %1 has a part that is too short", name));
            end += piece.Length;
        }
        Require(end == strip.Length, Words("the strip of piece %1 is not laid whole", name));
        const bool mayDivide =
            strip.Width < row_.UsableWidth && (strip.IsFill || request_.JoinRooms);
        Require(count == 1 || (mayDivide && count <= request_.MostParts),
                Words("the strip of piece %1 has too many parts", name));
    }

    void CheckPattern() const {
        const PatternChoice& pattern = request_.Pattern;
        std::map<Long, const OrderPiece*> first;
        for (const OrderPiece& piece : row_.Pieces) {
            const OrderPiece& other = *first.try_emplace(piece.Room, &piece).first->second;
            const Long across = (piece.RoomX - piece.X) - (other.RoomX - other.X);
            Long along = (piece.RoomY - piece.Y) - (other.RoomY - other.Y);
            Long columns = piece.Strip - other.Strip;
            if (pattern.Across > 0) {
                columns = across / pattern.Across;
                Require(across % pattern.Across == 0,
                        MatchText(other, piece,
                                  Words("pieces %1 and %2 do not match across the roll")));
            }
            if (pattern.Along > 0) {
                along += pattern.HalfDrop && columns % 2 != 0 ? pattern.Along / 2 : 0;
                Require(
                    along % pattern.Along == 0,
                    MatchText(other, piece, Words("pieces %1 and %2 do not match along the roll")));
            }
        }
    }

    static std::string MatchText(const OrderPiece& a, const OrderPiece& b, Phrase what) {
        return Words(what, a.Label, b.Label);
    }

    void CheckFigures() const {
        const OrderFigures& figures = *row_.Figures;
        Area needed = 0;
        for (const OrderPiece& piece : row_.Pieces) {
            needed = std::max<Area>(needed, piece.Y + piece.Length);
        }
        Require(figures.LengthNeeded == needed,
                Words("the length needed is not the end of the last piece"));
        Require(figures.LeastLength <= needed,
                Words("the least length is above the length needed"));
        CheckOrderedLength(needed);
        Require(figures.AreaBought == figures.Length * row_.RollWidth,
                Words("the area bought is wrong"));
        CheckRoomFigures();
        const Double waste = 100 - 100 * static_cast<Double>(figures.AreaRooms) /
                                       static_cast<Double>(figures.AreaBought);
        Require(std::abs(figures.WastePercent - waste) < 1e-6, Words("the waste is wrong"));
        CheckPrice();
    }

    /// The fewest whole steps that hold what is needed with its drift, which counts in ten
    /// thousandths of a percent.
    void CheckOrderedLength(Area needed) const {
        constexpr Area Whole = 1000000;
        const Area ordered = row_.Figures->Length;
        const Double drift = request_.PatternDrift.value_or(request_.Pattern.Along > 0 ? 1 : 0);
        const auto more = static_cast<Area>(std::ceil(drift * 10000 - 1e-6));
        const Area least = needed * (Whole + more);
        Require(ordered % request_.Step == 0 && ordered * Whole >= least &&
                    (ordered - request_.Step) * Whole < least,
                Words("the length to be ordered is wrong"));
    }

    void CheckRoomFigures() const {
        OrderFigures sums;
        for (const auto& [key, strip] : wanted_) {
            sums.AreaRooms += static_cast<Area>(strip.NetWidth) * strip.NetLength;
            sums.AreaRoomsTrimmed += static_cast<Area>(strip.Width) * strip.Length;
            const auto joins = static_cast<Long>(pieces_.at(key).size()) - 1;
            sums.CrossJoins.Count += joins;
            sums.CrossJoins.Length += static_cast<Area>(joins) * strip.NetWidth;
            if (key.second > 0) {
                ++sums.SideSeams.Count;
                sums.SideSeams.Length += strip.NetLength;
            }
        }
        const OrderFigures& figures = *row_.Figures;
        Require(figures.AreaRooms == sums.AreaRooms &&
                    figures.AreaRoomsTrimmed == sums.AreaRoomsTrimmed,
                Words("the area of the rooms is wrong"));
        Require(figures.SideSeams == sums.SideSeams && figures.CrossJoins == sums.CrossJoins,
                Words("the seams or joins are not counted right"));
    }

    void CheckPrice() const {
        const std::optional<Double> of = request_.Rolls.at(row_.Roll).Price;
        const std::optional<Double>& price = row_.Figures->Price;
        Require(of.has_value() == price.has_value(), Words("the price is missing or made up"));
        if (of) {
            const Double unit = request_.In == Units::Metric ? 100 * 100 : 36 * 36;
            const Double exact = *of * static_cast<Double>(row_.Figures->AreaBought) / unit;
            Require(std::abs(*price - exact) <= 0.005 + 1e-9 * exact, Words("the price is wrong"));
        }
    }

    const Project& project_;
    Byte carpet_;
    const OrderRequest& request_;
    const OrderCandidate& row_;
    std::map<StripKey, Wanted> wanted_;
    std::map<StripKey, Pieces> pieces_;
};

/// Whether row `a` is to be taken rather than `b`.
bool IsBetter(const OrderFigures& a, const OrderFigures& b, bool priced) {
    if (priced && *a.Price != *b.Price) {
        return *a.Price < *b.Price;
    }
    if (!priced && a.AreaBought != b.AreaBought) {
        return a.AreaBought < b.AreaBought;
    }
    return a.SideSeams.Length + a.CrossJoins.Length < b.SideSeams.Length + b.CrossJoins.Length;
}

void CheckBest(const Order& order) {
    bool priced = true;
    for (const OrderCandidate& row : order.Candidates) {
        priced = priced && (!row.Figures || row.Figures->Price);
    }
    std::optional<std::size_t> best;
    for (std::size_t i = 0; i < order.Candidates.size(); ++i) {
        const auto& figures = order.Candidates[i].Figures;
        if (figures && (!best || IsBetter(*figures, *order.Candidates[*best].Figures, priced))) {
            best = i;
        }
    }
    Require(order.Best == best, Words("the best row is not the best"));
}

} // namespace

std::string CheckCandidate(const Project& project, const Order& order, std::size_t candidate) {
    try {
        CandidateCheck(project, order, order.Candidates.at(candidate)).Check();
    } catch (const Fault& fault) {
        return Words("row %1: %2", TrimStr(static_cast<Long>(candidate + 1)), fault.Text);
    }
    return "";
}

std::string CheckOrder(const Project& project, const Order& order) {
    try {
        const std::size_t lays = order.Request.Lays.size();
        Require(order.Candidates.size() == order.Request.Rolls.size() * lays,
                Words("there is not a row for each roll and lay"));
        for (std::size_t i = 0; i < order.Candidates.size(); ++i) {
            const OrderCandidate& row = order.Candidates[i];
            Require(row.Roll == i / lays && row.Direction == order.Request.Lays[i % lays],
                    Words("the rows are not in their order"));
            const std::string fault = CheckCandidate(project, order, i);
            Require(fault.empty(), fault);
        }
        CheckBest(order);
    } catch (const Fault& fault) {
        return fault.Text;
    }
    return "";
}

} // namespace tarn
