#include "order/CutLines.h"

#include "base/Lengths.h"
#include "base/Text.h"
#include "base/Words.h"

#include <map>

namespace tarn {

namespace {

/// "12"" or "30 cm": a short length beside other words.
std::string RestText(Long length, Units units) {
    return units == Units::Metric ? Words("%1 cm", TrimStr(length)) : TrimStr(length) + "\"";
}

std::string CountText(Phrase what, Long number, Long count) {
    return Words(what, TrimStr(number), TrimStr(count));
}

/// Which piece of its room it is.
std::string WhichPiece(const OrderPiece& piece, Long usableWidth) {
    std::string text;
    if (piece.Strips > 1) {
        const bool isFill = piece.Strip == piece.Strips - 1 && piece.Width < usableWidth;
        text = CountText(isFill ? Words("fill %1 of %2") : Words("drop %1 of %2"), piece.Strip + 1,
                         piece.Strips);
    }
    if (piece.Parts > 1) {
        text +=
            (text.empty() ? "" : ", ") + CountText(Words("part %1 of %2"), piece.Part, piece.Parts);
    }
    return text;
}

/// How far behind its room's first piece on the roll a piece begins, in repeats of the pattern.
std::string MatchText(const OrderPiece& piece, const OrderPiece& first,
                      const OrderRequest& request) {
    const Long distance = piece.Y - first.Y;
    const Long repeats = distance / request.Pattern.Along;
    const Long rest = distance % request.Pattern.Along;
    std::string text;
    if (repeats > 0) {
        text = CountedWords("%n repeat", "%n repeats", repeats);
    }
    if (rest > 0) {
        const std::string further = RestText(rest, request.In);
        text = text.empty() ? further : Words("%1 and %2", text, further);
    }
    return text.empty() ? Words("beside %1", first.Label)
                        : Words("%1 on from %2", text, first.Label);
}

} // namespace

std::string RoomName(const Project& project, const OrderPiece& piece) {
    const Room& room = project.Rooms.at(static_cast<std::size_t>(piece.Room - 1));
    std::string name = ShownText(room.Number);
    if (!room.Remark.empty()) {
        name += (name.empty() ? "" : " ") + ShownText(room.Remark);
    }
    return name.empty() ? Words("room %1", TrimStr(piece.Room)) : name;
}

std::vector<CutLine> CutLines(const Project& project, const OrderRequest& request,
                              const OrderCandidate& candidate) {
    std::map<Long, const OrderPiece*> firstOfRoom;
    std::vector<CutLine> lines;
    lines.reserve(candidate.Pieces.size());
    for (const OrderPiece& piece : candidate.Pieces) {
        const auto [first, isFirst] = firstOfRoom.emplace(piece.Room, &piece);
        const auto length = [&](Long value) { return WholeLengthText(value, request.In); };
        CutLine line;
        line.Label = piece.Label;
        line.From = length(piece.Y);
        line.To = length(piece.Y + piece.Length);
        line.Across = length(piece.X);
        line.Size = length(piece.Width) + " X " + length(piece.Length);
        line.Room = RoomName(project, piece);
        line.Which = WhichPiece(piece, candidate.UsableWidth);
        if (!isFirst && request.Pattern.Along > 0) {
            line.Match = MatchText(piece, *first->second, request);
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

} // namespace tarn
