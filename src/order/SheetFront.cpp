#include "order/SheetFront.h"

#include "base/Format.h"
#include "base/Lengths.h"
#include "base/Text.h"
#include "base/Words.h"
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
    const std::string figure = AreaText(area, units);
    return units == Units::Metric ? Words("%1 sq. m", figure) : Words("%1 sq. ft.", figure);
}

void WriteRoll(FrontWriter& writer, const Order& order, const OrderCandidate& best) {
    const OrderRequest& request = order.Request;
    const auto length = [&](std::int64_t value) { return LengthText(value, request.In); };
    writer.Value(Words("Roll"), RollName(request.Rolls.at(best.Roll)));
    writer.Value(Words("Roll width"), length(best.RollWidth));
    const std::string usable = length(best.UsableWidth);
    writer.Value(Words("Usable width"), request.Selvage == 0
                                            ? usable
                                            : Words("%1, without the selvage of %2 on each side",
                                                    usable, length(request.Selvage)));
    writer.Value(Words("Lay"), best.Direction == Lay::Cross
                                   ? Words("cross: room lengths across the roll")
                                   : Words("down: room widths across the roll"));
}

void WriteTotals(FrontWriter& writer, const Order& order, const OrderCandidate& best) {
    const OrderFigures& figures = *best.Figures;
    const Units units = order.Request.In;
    const auto length = [&](std::int64_t value) { return LengthText(value, units); };
    writer.Heading(Words("What to buy"));
    writer.Value(Words("To be ordered"),
                 Words("%1 in one length without a join", length(figures.Length)));
    writer.Value(Words("Needed"),
                 figures.LeastLength == figures.LengthNeeded
                     ? Words("%1, the least possible", length(figures.LengthNeeded))
                     : Words("%1, least possible %2", length(figures.LengthNeeded),
                             length(figures.LeastLength)));
    writer.Value(Words("Area bought"), AreaWithUnit(figures.AreaBought, units));
    writer.Value(Words("Area of the rooms"), AreaWithUnit(figures.AreaRooms, units));
    writer.Value(Words("Strips with trim"), AreaWithUnit(figures.AreaRoomsTrimmed, units));
    writer.Value(Words("Waste"),
                 Words("%1 % of what is bought", Format(figures.WastePercent, "##0.0")));
    writer.Value(Words("Pieces"), TrimStr(static_cast<long long>(best.Pieces.size())));
    const auto seams = [&](const SeamTotal& total) {
        const std::string text = SeamText(total, units);
        return total.Count > 0 && units == Units::Metric ? Words("%1 cm", text) : text;
    };
    writer.Value(Words("Side seams"), seams(figures.SideSeams));
    writer.Value(Words("Cross joins"), seams(figures.CrossJoins));
    writer.Value(Words("Price"), figures.Price ? Format(*figures.Price, "#,##0.00") : "");
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
        return length == 0 ? std::string(Words("none")) : OrderLengthText(length, request.In);
    };
    if (pattern.Across == 0 && pattern.Along == 0) {
        return Words("none");
    }
    const Phrase text = pattern.HalfDrop ? Words("%1 across, %2 along, half drop; drift %3")
                                         : Words("%1 across, %2 along; drift %3");
    return Words(text, repeat(pattern.Across), repeat(pattern.Along), Percent(DriftOf(request)));
}

void WriteCutting(FrontWriter& writer, const OrderRequest& request) {
    const auto length = [&](Long value) { return OrderLengthText(value, request.In); };
    writer.Heading(Words("How it is cut"));
    writer.Value(Words("Trim"), Words("%1 along, %2 across; part of the sizes",
                                      length(request.TrimAlong), length(request.TrimAcross)));
    const Phrase parts = request.JoinRooms ? Words("at most %1, none shorter than %2, of rooms "
                                                   "too")
                                           : Words("at most %1, none shorter than %2");
    writer.Value(Words("Parts of a strip"),
                 request.MostParts == 1
                     ? "1"
                     : Words(parts, TrimStr(request.MostParts), length(request.ShortestPart)));
    writer.Value(Words("Pattern repeat"), PatternText(request));
    writer.Value(Words("Pile"), Words("the same way on all pieces: see the arrows"));
}

/// Tiles and wall base of the whole project.
void WriteRest(FrontWriter& writer, const Project& project, Units units) {
    const bool metric = units == Units::Metric;
    const auto base = static_cast<Double>(TotalBase(project));
    const std::vector<TileFloor> tiles = TileFloors(project, units);
    if (base == 0 && tiles.empty()) {
        return;
    }
    writer.Heading(Words("What else the project needs"));
    for (const TileFloor& tile : tiles) {
        const Area area = AreaOf(static_cast<Double>(tile.Area));
        writer.Value(CoveringCaption(tile.Covering),
                     metric ? Words("%1 sq. m", Format(area.SquareMeters, "#,##0.00"))
                            : Words("%1 sq. ft.", Format(area.SquareFeet, "#,##0.00")));
    }
    if (base > 0) {
        writer.Value(Words("Wall base"),
                     metric ? Words("%1 cm", Format(base, "##0"))
                            : Words("%1 feet", Format(base / InchesPerFoot, "#,##0.00")));
    }
}

} // namespace

std::vector<Drawing> FrontPages(const Project& project, const Order& order, const SheetPaper& paper,
                                std::string_view head, std::string_view date) {
    FrontWriter writer(paper, head);
    writer.Title(order.Best ? Words("Order and cutting sheet") : Words("No order"));
    writer.Value(Words("Project"), ShownText(project.Name));
    writer.Value(Words("Date"), date);
    writer.Value(Words("Carpet"), CoveringCaption(order.Carpet));
    if (order.Best) {
        const OrderCandidate& best = order.Candidates.at(*order.Best);
        WriteRoll(writer, order, best);
        WriteTotals(writer, order, best);
        WriteCutting(writer, order.Request);
        if (!best.Figures->Notes.empty()) {
            writer.Heading(Words("Notes"));
            for (const Saying& note : best.Figures->Notes) {
                writer.Paragraph(ShownText(note.Shown));
            }
        }
    } else {
        writer.Heading(Words("Every roll and lay is refused"));
        for (const OrderCandidate& candidate : order.Candidates) {
            writer.Paragraph(CandidateName(order, candidate) + ": " +
                             ShownText(candidate.Refused.Shown));
        }
    }
    WriteRest(writer, project, order.Request.In);
    return writer.Pages();
}

} // namespace tarn
