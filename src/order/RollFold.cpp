#include "order/RollFold.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <set>
#include <utility>

namespace tarn {

namespace {

class Folder {
  public:
    Folder(const std::vector<OrderPiece>& pieces, Long most, Long least)
        : pieces_(pieces)
        , most_(most)
        , least_(least) {}

    /// Where a stretch that begins at `from` ends.
    Long EndOf(Long from) const {
        const Long last = from + most_;
        for (const Long apart : {Long{0}, least_}) {
            for (const Long end : Ends(from, last, apart)) {
                if (IsFree(end, apart)) {
                    return end;
                }
            }
        }
        return last;
    }

  private:
    /// Places that may be free: the last one, and those that far from the pieces' ends; the
    /// farthest first.
    std::set<Long, std::greater<>> Ends(Long from, Long last, Long apart) const {
        std::set<Long, std::greater<>> ends{last};
        for (const OrderPiece& piece : pieces_) {
            for (const Long edge : {piece.Y, piece.Y + piece.Length}) {
                for (const Long end : {edge - apart, edge, edge + apart}) {
                    if (end > from + most_ / 2 && end < last) {
                        ends.insert(end);
                    }
                }
            }
        }
        return ends;
    }

    /// Whether each piece that goes on there does so for `apart` units before and behind; none may
    /// for 0.
    bool IsFree(Long end, Long apart) const {
        return std::all_of(pieces_.begin(), pieces_.end(), [&](const OrderPiece& piece) {
            const Long before = end - piece.Y;
            const Long behind = piece.Y + piece.Length - end;
            return before <= 0 || behind <= 0 || (apart > 0 && before >= apart && behind >= apart);
        });
    }

    const std::vector<OrderPiece>& pieces_;
    Long most_;
    Long least_;
};

/// The edges along the roll at which the row of pieces changes, inside a stretch and at its ends.
std::set<Long> EdgesIn(const std::vector<const OrderPiece*>& pieces, const RollStretch& stretch) {
    std::set<Long> edges{stretch.From, stretch.To};
    for (const OrderPiece* piece : pieces) {
        for (const Long edge : {piece->Y, piece->Y + piece->Length}) {
            if (edge > stretch.From && edge < stretch.To) {
                edges.insert(edge);
            }
        }
    }
    return edges;
}

using Gap = std::pair<Long, Long>;

/// What is free across the roll between two neighbouring edges.
std::vector<Gap> GapsIn(const std::vector<const OrderPiece*>& pieces, Long width, Long from,
                        Long to) {
    std::vector<Gap> taken;
    for (const OrderPiece* piece : pieces) {
        if (piece->Y < to && piece->Y + piece->Length > from) {
            taken.emplace_back(piece->X, piece->X + piece->Width);
        }
    }
    std::sort(taken.begin(), taken.end());
    std::vector<Gap> gaps;
    Long x = 0;
    for (const auto& [left, right] : taken) {
        if (left > x) {
            gaps.emplace_back(x, left);
        }
        x = std::max(x, right);
    }
    if (x < width) {
        gaps.emplace_back(x, width);
    }
    return gaps;
}

/// Add a gap to the rectangles, to the one that it goes on if there is one.
void AddGap(std::vector<LeftOver>& rectangles, const Gap& gap, Long from, Long to) {
    const auto above =
        std::find_if(rectangles.begin(), rectangles.end(), [&](const LeftOver& each) {
            return each.X1 == gap.first && each.X2 == gap.second && each.Y2 == from;
        });
    if (above != rectangles.end()) {
        above->Y2 = to;
    } else {
        rectangles.push_back({gap.first, from, gap.second, to});
    }
}

} // namespace

RollStretch StretchFrom(const std::vector<OrderPiece>& pieces, Long from, Long length,
                        const StretchLimits& limits) {
    if (length - from <= limits.Most) {
        return {from, length};
    }
    std::vector<OrderPiece> near;
    std::copy_if(pieces.begin(), pieces.end(), std::back_inserter(near),
                 [&](const OrderPiece& piece) {
                     return piece.Y <= from + limits.Most && piece.Y + piece.Length > from;
                 });
    return {from, Folder(near, limits.Most, limits.Least).EndOf(from)};
}

std::vector<LeftOver> LeftOvers(const std::vector<OrderPiece>& pieces, Long width,
                                const RollStretch& stretch) {
    std::vector<const OrderPiece*> inside;
    for (const OrderPiece& piece : pieces) {
        if (piece.Y < stretch.To && piece.Y + piece.Length > stretch.From) {
            inside.push_back(&piece);
        }
    }
    std::vector<LeftOver> rectangles;
    const std::set<Long> edges = EdgesIn(inside, stretch);
    for (auto edge = edges.begin(); std::next(edge) != edges.end(); ++edge) {
        const Long to = *std::next(edge);
        for (const Gap& gap : GapsIn(inside, width, *edge, to)) {
            AddGap(rectangles, gap, *edge, to);
        }
    }
    return rectangles;
}

} // namespace tarn
