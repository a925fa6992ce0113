// tarn-figures: reads jobs from standard input, a line each, and prints every figure of their
// estimates and orders as its bits, so that two builds of the computing libraries can be compared.
// It needs these libraries alone: it is built where the toolkit is not, too.
//
// A job is words with blanks between them, then the number of its rooms, and of each room width,
// length, covering code and base code:
//   estimate in|cm CARPET ROLLWIDTH down|cross MINCUT PIECES ACROSS ALONG STEPS SEED ROOMS ..
//   order in|cm CARPET WIDTH,WIDTH.. SELVAGE TRIMALONG TRIMACROSS PARTS MINPART JOIN ACROSS ALONG
//         HALFDROP STEP STEPS SEED ROOMS ..
// ACROSS and ALONG are the repeat of the pattern; an estimate has none by - -. STEPS are those of
// the improving search, of an estimate 0 for none.

#include "base/RunTimeError.h"
#include "estimate/CutList.h"
#include "estimate/ImproveEstimate.h"
#include "estimate/MakeEstimate.h"
#include "estimate/MinCuts.h"
#include "estimate/RollPlaces.h"
#include "estimate/RollWidth.h"
#include "estimate/Totals.h"
#include "order/MakeOrder.h"
#include "project/OrderLengths.h"

#include <bit>
#include <cstdint>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace tarn {

namespace {

/// A line of figures: their bits, whole numbers as they are.
class Line {
  public:
    explicit Line(const std::string& name) { out_ << name; }
    ~Line() { std::cout << out_.str() << '\n'; }
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    Line& operator<<(Single value) { return Add(std::bit_cast<std::uint32_t>(value), 's'); }
    Line& operator<<(Double value) { return Add(std::bit_cast<std::uint64_t>(value), 'd'); }
    Line& operator<<(std::int64_t value) {
        out_ << ' ' << value;
        return *this;
    }
    Line& operator<<(Long value) { return *this << std::int64_t{value}; }
    Line& operator<<(Integer value) { return *this << std::int64_t{value}; }
    Line& operator<<(const std::string& text) {
        out_ << " \"" << text << '"';
        return *this;
    }

  private:
    Line& Add(std::uint64_t bits, char kind) {
        out_ << ' ' << kind << std::hex << bits << std::dec;
        return *this;
    }

    std::ostringstream out_;
};

/// The words of a job.
class Words {
  public:
    explicit Words(const std::string& line)
        : in_(line) {}

    std::string Text() {
        std::string word;
        if (!(in_ >> word)) {
            throw std::runtime_error("the job ends too early");
        }
        return word;
    }
    long long Number() { return std::stoll(Text()); }

  private:
    std::istringstream in_;
};

Units TakeUnits(Words& words) {
    return words.Text() == "cm" ? Units::Metric : Units::Imperial;
}

std::vector<Room> TakeRooms(Words& words) {
    std::vector<Room> rooms(static_cast<std::size_t>(words.Number()));
    for (Room& room : rooms) {
        room.Width = static_cast<Integer>(words.Number());
        room.Length = static_cast<Integer>(words.Number());
        room.Covering = static_cast<Byte>(words.Number());
        room.Base = static_cast<Byte>(words.Number());
    }
    return rooms;
}

void PrintPiece(Line& line, const Piece& piece) {
    line << piece.X1 << piece.X2 << piece.Y1 << piece.Y2 << piece.Number;
}

void PrintLayout(const SearchResult& fills) {
    Line(" fills") << fills.Cases << fills.BestLength << fills.BestPower << fills.Length;
    for (const Placed& placed : fills.Layout) {
        Line line(" placed");
        PrintPiece(line, placed.Part);
        line << placed.X << placed.Y << placed.Width << placed.Length;
    }
}

void PrintEstimate(const char* name, const Estimate& estimate) {
    Line(name) << estimate.Request.RollWidth << estimate.Base;
    for (const Cut& cut : estimate.Cuts) {
        Line(" cut") << cut.X1 << cut.X2 << cut.Y1 << cut.Y2;
    }
    for (const Piece& piece : estimate.Job.Pieces) {
        Line line(" piece");
        PrintPiece(line, piece);
    }
    PrintLayout(estimate.Fills);
    for (const TileFloor& tile : estimate.Tiles) {
        Line(" tile") << tile.Area << tile.Perimeter;
    }
    const RollTotals totals = TotalRoll(estimate);
    Line(" totals") << totals.CutLength << totals.Length << totals.Size.SquareFeet
                    << totals.Size.SquareYards << totals.Size.SquareMeters
                    << PlacesOnRoll(estimate).Length;
    for (const std::string& line : CutListLines(estimate)) {
        Line(" list") << line;
    }
}

void RunEstimate(Words& words) {
    EstimateRequest request;
    request.In = TakeUnits(words);
    request.Carpet = static_cast<Byte>(words.Number() - 1);
    request.RollWidth = ReadRollWidth(words.Text());
    request.Direction = words.Text() == "cross" ? Lay::Cross : Lay::Down;
    request.ShortestPart = AllMinCuts.at(static_cast<std::size_t>(words.Number()));
    request.PiecesPerFill = static_cast<Integer>(words.Number());
    const std::string across = words.Text();
    const std::string along = words.Text();
    if (across != "-") {
        request.Repeat = ReadPatternRepeat(across, along);
    }
    ImproveLimits limits;
    limits.Steps = words.Number();
    limits.Seed = static_cast<std::uint64_t>(words.Number());
    limits.Threads = 1;
    Project project;
    project.Rooms = TakeRooms(words);
    SearchObserver nobody;
    const Estimate estimate = MakeEstimate(project, request, nobody);
    PrintEstimate("estimate", estimate);
    if (limits.Steps > 0) {
        ImproveObserver silent;
        const ImprovedEstimate improved = ImproveEstimate(estimate, limits, silent);
        PrintEstimate(" improved", improved.Value);
        if (const auto& gained = improved.Value.Improved) {
            Line(" gained") << gained->StartLength << gained->Length << gained->Bound;
        }
    }
}

void PrintFigures(const OrderFigures& figures) {
    Line line(" figures");
    line << figures.Length << figures.LengthNeeded << figures.LeastLength << figures.AreaBought
         << figures.AreaRooms << figures.AreaRoomsTrimmed << figures.WastePercent
         << figures.SideSeams.Length << figures.CrossJoins.Length;
    for (const Saying& note : figures.Notes) {
        line << note.English;
    }
}

void RunOrder(Words& words) {
    OrderRequest request = DefaultOrderRequest(TakeUnits(words));
    const auto carpet = static_cast<Byte>(words.Number() - 1);
    std::istringstream widths(words.Text());
    for (std::string width; std::getline(widths, width, ',');) {
        RollChoice roll;
        roll.AsTyped = width;
        roll.Width = ReadOrderLength(width, request.In).value();
        request.Rolls.push_back(std::move(roll));
    }
    const auto take = [&words] { return static_cast<Long>(words.Number()); };
    request.Lays = {Lay::Down, Lay::Cross};
    request.Selvage = take();
    request.TrimAlong = take();
    request.TrimAcross = take();
    request.MostParts = take();
    request.ShortestPart = take();
    request.JoinRooms = take() != 0;
    request.Pattern.Across = take();
    request.Pattern.Along = take();
    request.Pattern.HalfDrop = take() != 0;
    request.Step = take();
    OrderLimits limits;
    limits.Steps = words.Number();
    limits.Seed = static_cast<std::uint64_t>(words.Number());
    Project project;
    project.Rooms = TakeRooms(words);
    OrderObserver nobody;
    const Order order = MakeOrder(project, carpet, request, limits, nobody);
    Line("order") << (order.Best ? static_cast<std::int64_t>(*order.Best) : -1);
    for (const OrderCandidate& candidate : order.Candidates) {
        Line(" row") << candidate.RollWidth << candidate.UsableWidth << candidate.Refused.English;
        if (candidate.Figures) {
            PrintFigures(*candidate.Figures);
        }
        for (const OrderPiece& piece : candidate.Pieces) {
            Line(" cut") << piece.Label << piece.Room << piece.Strip << piece.Part << piece.X
                         << piece.Y << piece.Width << piece.Length << piece.RoomX << piece.RoomY;
        }
    }
}

/// What a computation raises is a figure like any other, and so is a roll width that is refused.
void RunJob(const std::string& line) {
    try {
        Words words(line);
        words.Text() == "order" ? RunOrder(words) : RunEstimate(words);
    } catch (const RunTimeError& error) {
        Line("error") << error.Heading() << error.Sentences();
    } catch (const std::invalid_argument& error) {
        Line("refused") << std::string(error.what());
    }
}

} // namespace

} // namespace tarn

int main() {
    int status = 0;
    for (std::string line; std::getline(std::cin, line);) {
        try {
            tarn::RunJob(line);
        } catch (const std::exception& error) {
            std::cerr << "tarn-figures: " << error.what() << ": " << line << '\n';
            status = 1;
        }
    }
    return status;
}
