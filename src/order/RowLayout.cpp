#include "order/RowLayout.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace tarn {

namespace {

OrderPiece PieceOf(const OrderStrip& strip) {
    OrderPiece piece;
    piece.Room = strip.Room + 1;
    piece.Strip = strip.Number;
    piece.Strips = strip.Count;
    piece.Width = strip.Width;
    piece.Length = strip.Length;
    piece.RoomX = strip.Begin;
    return piece;
}

} // namespace

RowLayout::RowLayout(std::vector<OrderStrip> strips, const OrderRequest& request, Long usable)
    : strips_(std::move(strips)) {
    job_.Width = usable;
    job_.MinPart = request.ShortestPart;
    job_.Repeat = {request.Pattern.Across, request.Pattern.Along, request.Pattern.HalfDrop};
    Long rooms = 0;
    for (std::size_t i = 0; i < strips_.size(); ++i) {
        const OrderStrip& strip = strips_[i];
        ImproveFill fill{strip.Width, strip.Length, strip.MayDivide ? request.MostParts : 1,
                         NoRoom,      strip.Begin,  strip.Number};
        if (strip.Count > 1 || PartsAllowed(job_, fill) > 1) {
            fill.Room = strip.Number == 0 ? rooms++ : rooms - 1;
        }
        searched_.push_back(i);
        job_.Fills.push_back(fill);
    }
    if (HasPattern(job_)) {
        return;
    }
    job_.Repeat = {};
    std::vector<ImproveFill> fills;
    std::vector<std::size_t> searched;
    for (std::size_t i = 0; i < strips_.size(); ++i) {
        if (strips_[i].Width == usable) {
            wholes_.push_back(i);
            stacked_ += strips_[i].Length;
        } else {
            fills.push_back(job_.Fills[i]);
            searched.push_back(i);
        }
    }
    job_.Fills = std::move(fills);
    searched_ = std::move(searched);
}

std::vector<OrderPiece> RowLayout::PiecesOf(const std::vector<ImprovePart>& parts) const {
    std::vector<OrderPiece> pieces;
    Long y = 0;
    for (const std::size_t whole : wholes_) {
        pieces.push_back(PieceOf(strips_[whole]));
        pieces.back().Y = y;
        y += strips_[whole].Length;
    }
    for (const ImprovePart& part : parts) {
        OrderPiece piece = PieceOf(strips_[searched_[part.Fill]]);
        piece.X = part.X;
        piece.Y = stacked_ + part.Y;
        piece.Length = part.Length;
        piece.RoomY = part.From;
        pieces.push_back(std::move(piece));
    }
    NumberParts(pieces, HasPattern(job_));
    std::sort(pieces.begin(), pieces.end(), [](const OrderPiece& a, const OrderPiece& b) {
        return std::tie(a.Y, a.X) < std::tie(b.Y, b.X);
    });
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        pieces[i].Label = PieceLabel(i);
    }
    return pieces;
}

void RowLayout::NumberParts(std::vector<OrderPiece>& pieces, bool pattern) const {
    std::sort(pieces.begin(), pieces.end(), [&](const OrderPiece& a, const OrderPiece& b) {
        const auto key = [&](const OrderPiece& piece) {
            // Without a pattern any part may be any: those cut first come first in the room.
            return std::make_tuple(piece.Room, piece.Strip, pattern ? piece.RoomY : piece.Y,
                                   piece.X);
        };
        return key(a) < key(b);
    });
    for (auto first = pieces.begin(); first != pieces.end();) {
        const auto last = std::find_if(first, pieces.end(), [&](const OrderPiece& piece) {
            return piece.Room != first->Room || piece.Strip != first->Strip;
        });
        Long begin = 0;
        Long number = 0;
        for (auto piece = first; piece != last; ++piece) {
            piece->Part = ++number;
            piece->Parts = static_cast<Long>(last - first);
            piece->RoomY = begin;
            begin += piece->Length;
        }
        first = last;
    }
}

} // namespace tarn
