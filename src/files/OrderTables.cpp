#include "files/OrderTables.h"

#include "base/Words.h"
#include "files/Spreadsheet.h"
#include "order/Comparison.h"

namespace tarn {

namespace {

template <typename Number>
TableCell NumberCell(Number number) {
    return static_cast<std::int64_t>(number);
}

std::string Joined(const std::vector<Saying>& texts) {
    std::string joined;
    for (const Saying& text : texts) {
        joined += (joined.empty() ? "" : " ") + text.English;
    }
    return joined;
}

/// The cells of the figures, as many without figures.
std::vector<TableCell> FigureCells(const OrderCandidate& candidate, Units units) {
    constexpr std::size_t Figures = 13;
    if (!candidate.Figures) {
        return std::vector<TableCell>(Figures);
    }
    const OrderFigures& figures = *candidate.Figures;
    return {NumberCell(figures.Length),
            NumberCell(figures.LengthNeeded),
            NumberCell(figures.LeastLength),
            OrderArea(figures.AreaBought, units),
            OrderArea(figures.AreaRooms, units),
            OrderArea(figures.AreaRoomsTrimmed, units),
            figures.WastePercent,
            NumberCell(figures.SideSeams.Count),
            NumberCell(figures.SideSeams.Length),
            NumberCell(figures.CrossJoins.Count),
            NumberCell(figures.CrossJoins.Length),
            figures.Price ? TableCell(*figures.Price) : TableCell(),
            Joined(figures.Notes)};
}

std::vector<TableCell> CandidateCells(const Order& order, std::size_t number) {
    const OrderCandidate& candidate = order.Candidates.at(number);
    const char* const mark = IsBest(order, number) ? "best" : "chosen";
    const RollChoice& roll = order.Request.Rolls.at(candidate.Roll);
    std::vector<TableCell> cells{NumberCell(order.Carpet + 1),
                                 roll.Name,
                                 roll.AsTyped,
                                 NumberCell(candidate.RollWidth),
                                 NumberCell(candidate.UsableWidth),
                                 std::string(LayWord(candidate.Direction)),
                                 std::string(order.Best != number ? "" : mark),
                                 candidate.Refused.English};
    for (TableCell& cell : FigureCells(candidate, order.Request.In)) {
        cells.push_back(std::move(cell));
    }
    return cells;
}

} // namespace

ValueTable ComparisonTable(const OrderDocument& document) {
    ValueTable table{
        "Comparison",
        {"carpet",      "name",           "roll",       "rollWidth",        "usableWidth",
         "lay",         "best",           "refused",    "length",           "lengthNeeded",
         "leastLength", "areaBought",     "areaRooms",  "areaRoomsTrimmed", "wastePercent",
         "sideSeams",   "sideSeamLength", "crossJoins", "crossJoinLength",  "price",
         "notes"},
        {}};
    for (const Order& order : document.Orders) {
        for (std::size_t number = 0; number < order.Candidates.size(); ++number) {
            table.Rows.push_back(CandidateCells(order, number));
        }
    }
    return table;
}

ValueTable PieceTable(const OrderDocument& document) {
    ValueTable table{"Pieces",
                     {"carpet", "label", "room", "roomNumber", "remark", "strip", "strips", "part",
                      "parts", "x", "y", "width", "length", "roomX", "roomY"},
                     {}};
    for (const Order& order : document.Orders) {
        for (const OrderPiece& piece : BestPieces(order)) {
            const Room& room = RoomOf(document, piece);
            table.Rows.push_back({NumberCell(order.Carpet + 1), piece.Label, NumberCell(piece.Room),
                                  room.Number, room.Remark, NumberCell(piece.Strip),
                                  NumberCell(piece.Strips), NumberCell(piece.Part),
                                  NumberCell(piece.Parts), NumberCell(piece.X), NumberCell(piece.Y),
                                  NumberCell(piece.Width), NumberCell(piece.Length),
                                  NumberCell(piece.RoomX), NumberCell(piece.RoomY)});
        }
    }
    return table;
}

std::string OrderCsv(const OrderDocument& document) {
    return CsvOf({ComparisonTable(document), PieceTable(document)});
}

std::string OrderXlsx(const OrderDocument& document) {
    return XlsxOf({ComparisonTable(document), PieceTable(document)});
}

} // namespace tarn
