#include "order/SheetFront.h"

#include "base/Format.h"
#include "base/Lengths.h"
#include "base/Text.h"
#include "estimate/Totals.h"
#include "order/OrderWords.h"
#include "order/SheetText.h"
#include "project/Coverings.h"

#include <string>

namespace tarn {

namespace {

constexpr Double TitleSize = 18;
constexpr Double HeadingSize = 12;
constexpr Double TextSize = 11;
constexpr Double ValueColumn = 3000; ///< from the left edge of the names
constexpr Double LineGap = 60;
constexpr Double BlockGap = 280;

std::string LengthText(std::int64_t length, Units units) {
    return OrderLengthText(static_cast<Long>(length), units);
}

/// The page as it is filled from above, and more where it is full.
class FrontWriter {
  public:
    FrontWriter(const SheetPaper& paper, std::string_view head)
        : paper_(paper)
        , head_(head)
        , body_(BodyOf(paper)) {
        Turn();
    }

    void Title(std::string_view text) { Text(text, TitleSize, 0); }

    void Heading(std::string_view text) {
        y_ += BlockGap;
        Text(text, HeadingSize, 0);
        pages_.back().AddLine(body_.Left, y_ - LineGap / 2, body_.Right, y_ - LineGap / 2,
                              DrawingColor::Gray, FineLine);
        y_ += LineGap;
    }

    /// A name and what stands for it; nothing without that.
    void Value(std::string_view name, std::string_view value) {
        if (value.empty()) {
            return;
        }
        Room(TextSize);
        pages_.back().AddText(body_.Left, y_, name, TextSize);
        Text(value, TextSize, ValueColumn);
    }

    void Paragraph(std::string_view text) { Text(text, TextSize, 0); }

    std::vector<Drawing> Pages() { return std::move(pages_); }

  private:
    void Turn() {
        pages_.push_back(NewPage(paper_, head_));
        y_ = body_.Top + LineGap;
    }

    void Room(Double fontSize) {
        if (y_ + HeightOfLine(fontSize) > body_.Bottom) {
            Turn();
        }
    }

    void Text(std::string_view text, Double fontSize, Double indent) {
        for (const std::string& line :
             WrappedText(OneLine(text), body_.Width() - indent, fontSize)) {
            Room(fontSize);
            pages_.back().AddText(body_.Left + indent, y_, line, fontSize);
            y_ += HeightOfLine(fontSize);
        }
        y_ += LineGap;
    }

    const SheetPaper& paper_;
    std::string_view head_;
    SheetArea body_;
    std::vector<Drawing> pages_;
    Double y_ = 0;
};

std::string AreaWithUnit(std::int64_t area, Units units) {
    return AreaText(area, units) + (units == Units::Metric ? " sq. m" : " sq. ft.");
}

void WriteRoll(FrontWriter& writer, const Order& order, const OrderCandidate& best) {
    const OrderRequest& request = order.Request;
    const auto length = [&](std::int64_t value) { return LengthText(value, request.In); };
    writer.Value("Roll", RollName(request.Rolls.at(best.Roll)));
    writer.Value("Roll width", length(best.RollWidth));
    writer.Value("Usable width",
                 length(best.UsableWidth) + (request.Selvage == 0
                                                 ? ""
                                                 : ", without the selvage of " +
                                                       length(request.Selvage) + " on each side"));
    writer.Value("Lay", best.Direction == Lay::Cross ? "cross: room lengths across the roll"
                                                     : "down: room widths across the roll");
}

void WriteTotals(FrontWriter& writer, const Order& order, const OrderCandidate& best) {
    const OrderFigures& figures = *best.Figures;
    const Units units = order.Request.In;
    const auto length = [&](std::int64_t value) { return LengthText(value, units); };
    writer.Heading("What to buy");
    writer.Value("To be ordered", length(figures.Length) + " in one length without a join");
    writer.Value("Needed", length(figures.LengthNeeded) +
                               (figures.LeastLength == figures.LengthNeeded
                                    ? ", the least possible"
                                    : ", least possible " + length(figures.LeastLength)));
    writer.Value("Area bought", AreaWithUnit(figures.AreaBought, units));
    writer.Value("Area of the rooms", AreaWithUnit(figures.AreaRooms, units));
    writer.Value("Strips with trim", AreaWithUnit(figures.AreaRoomsTrimmed, units));
    writer.Value("Waste", Format(figures.WastePercent, "##0.0") + " % of what is bought");
    writer.Value("Pieces", TrimStr(static_cast<long long>(best.Pieces.size())));
    const std::string unit = units == Units::Metric ? " cm" : "";
    const auto seams = [&](const SeamTotal& total) {
        return SeamText(total, units) + (total.Count == 0 ? "" : unit);
    };
    writer.Value("Side seams", seams(figures.SideSeams));
    writer.Value("Cross joins", seams(figures.CrossJoins));
    writer.Value("Price", figures.Price ? Format(*figures.Price, "#,##0.00") : "");
}

/// With two places, where they say something.
std::string Percent(Double value) {
    std::string text = Format(value, "##0.00");
    text.erase(text.find_last_not_of('0') + 1);
    return text + (text.back() == '.' ? "0" : "") + " %";
}

std::string PatternText(const OrderRequest& request) {
    const PatternChoice& pattern = request.Pattern;
    const auto repeat = [&](Long length) {
        return length == 0 ? std::string("none") : OrderLengthText(length, request.In);
    };
    if (pattern.Across == 0 && pattern.Along == 0) {
        return "none";
    }
    return repeat(pattern.Across) + " across, " + repeat(pattern.Along) + " along" +
           (pattern.HalfDrop ? ", half drop" : "") + "; drift " + Percent(DriftOf(request));
}

void WriteCutting(FrontWriter& writer, const OrderRequest& request) {
    const auto length = [&](Long value) { return OrderLengthText(value, request.In); };
    writer.Heading("How it is cut");
    writer.Value("Trim", length(request.TrimAlong) + " along, " + length(request.TrimAcross) +
                             " across; part of the sizes");
    writer.Value("Parts of a strip", request.MostParts == 1
                                         ? "1"
                                         : "at most " + TrimStr(request.MostParts) +
                                               ", none shorter than " +
                                               length(request.ShortestPart) +
                                               (request.JoinRooms ? ", of rooms too" : ""));
    writer.Value("Pattern repeat", PatternText(request));
    writer.Value("Pile", "the same way on all pieces: see the arrows");
}

/// Tiles and wall base of the whole project.
void WriteRest(FrontWriter& writer, const Project& project, Units units) {
    const bool metric = units == Units::Metric;
    const auto base = static_cast<Double>(TotalBase(project));
    const std::vector<TileFloor> tiles = TileFloors(project, units);
    if (base == 0 && tiles.empty()) {
        return;
    }
    writer.Heading("What else the project needs");
    for (const TileFloor& tile : tiles) {
        const Area area = AreaOf(static_cast<Double>(tile.Area));
        writer.Value(CoveringCaption(tile.Covering),
                     metric ? Format(area.SquareMeters, "#,##0.00") + " sq. m"
                            : Format(area.SquareFeet, "#,##0.00") + " sq. ft.");
    }
    if (base > 0) {
        writer.Value("Wall base", metric ? Format(base, "##0") + " cm"
                                         : Format(base / InchesPerFoot, "#,##0.00") + " feet");
    }
}

} // namespace

std::vector<Drawing> FrontPages(const Project& project, const Order& order, const SheetPaper& paper,
                                std::string_view head, std::string_view date) {
    FrontWriter writer(paper, head);
    writer.Title(order.Best ? "Order and cutting sheet" : "No order");
    writer.Value("Project", ShownText(project.Name));
    writer.Value("Date", date);
    writer.Value("Carpet", CoveringCaption(order.Carpet));
    if (order.Best) {
        const OrderCandidate& best = order.Candidates.at(*order.Best);
        WriteRoll(writer, order, best);
        WriteTotals(writer, order, best);
        WriteCutting(writer, order.Request);
        if (!best.Figures->Notes.empty()) {
            writer.Heading("Notes");
            for (const std::string& note : best.Figures->Notes) {
                writer.Paragraph(ShownText(note));
            }
        }
    } else {
        writer.Heading("Every roll and lay is refused");
        for (const OrderCandidate& candidate : order.Candidates) {
            writer.Paragraph(CandidateName(order, candidate) + ": " + ShownText(candidate.Refused));
        }
    }
    WriteRest(writer, project, order.Request.In);
    return writer.Pages();
}

} // namespace tarn
