#include "order/RollFold.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
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

/// The edges along the roll at which the row of what is taken changes, inside a stretch and at its
/// ends.
std::set<Long> EdgesIn(const std::vector<RollArea>& taken, const RollStretch& stretch) {
    std::set<Long> edges{stretch.From, stretch.To};
    for (const RollArea& area : taken) {
        for (const Long edge : {area.Y1, area.Y2}) {
            if (edge > stretch.From && edge < stretch.To) {
                edges.insert(edge);
            }
        }
    }
    return edges;
}

using Gap = std::pair<Long, Long>;

/// What areas beside each other leave of the roll's width.
std::vector<Gap> GapsBetween(const std::vector<RollArea>& areas, Long width) {
    std::vector<Gap> taken;
    taken.reserve(areas.size());
    for (const RollArea& area : areas) {
        taken.emplace_back(area.X1, area.X2);
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

/// The rectangles that are free along the roll, row by row.
class FreeRectangles {
  public:
    /// What is free between two neighbouring edges: goes on with the same gaps of the row before.
    void AddRow(const std::vector<Gap>& gaps, Long from, Long to) {
        std::map<Gap, std::size_t> row;
        for (const Gap& gap : gaps) {
            const auto above = lastRow_.find(gap);
            if (above != lastRow_.end()) {
                rectangles_[above->second].Y2 = to;
                row.insert(*above);
            } else {
                row.emplace(gap, rectangles_.size());
                rectangles_.push_back({gap.first, from, gap.second, to});
            }
        }
        lastRow_ = std::move(row);
    }
    std::vector<LeftOver> Take() { return std::move(rectangles_); }

  private:
    std::vector<LeftOver> rectangles_;
    std::map<Gap, std::size_t> lastRow_; ///< the rectangles that it ends
};

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

std::vector<LeftOver> LeftOvers(const std::vector<RollArea>& taken, Long width,
                                const RollStretch& stretch) {
    std::vector<RollArea> waiting = taken;
    std::sort(waiting.begin(), waiting.end(),
              [](const RollArea& a, const RollArea& b) { return a.Y1 > b.Y1; });
    std::vector<RollArea> beside;
    FreeRectangles free;
    const std::set<Long> edges = EdgesIn(taken, stretch);
    for (auto edge = edges.begin(); std::next(edge) != edges.end(); ++edge) {
        const Long to = *std::next(edge);
        for (; !waiting.empty() && waiting.back().Y1 < to; waiting.pop_back()) {
            beside.push_back(waiting.back());
        }
        std::erase_if(beside, [&](const RollArea& area) { return area.Y2 <= *edge; });
        free.AddRow(GapsBetween(beside, width), *edge, to);
    }
    return free.Take();
}

std::vector<LeftOver> LeftOvers(const std::vector<OrderPiece>& pieces, Long width,
                                const RollStretch& stretch) {
    std::vector<RollArea> taken;
    taken.reserve(pieces.size());
    for (const OrderPiece& piece : pieces) {
        taken.push_back({piece.X, piece.Y, piece.X + piece.Width, piece.Y + piece.Length});
    }
    return LeftOvers(taken, width, stretch);
}

} // namespace tarn
