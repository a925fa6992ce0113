// The sheet of an order as drawings: whole, readable, and true to the order.

#include "Sanitized.h"
#include "base/Lengths.h"
#include "base/Text.h"
#include "order/CutLines.h"
#include "order/OrderSheet.h"
#include "order/SheetTesting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace tarn {
namespace {

using testing::A4Sheet;
using ::testing::HasSubstr;
using testing::HouseKind;
using testing::HouseKinds;
using testing::HouseOf;
using testing::HouseOrder;
using testing::LetterSheet;
using testing::MakeOrderOf;
using testing::PlaceOf;
using testing::ProjectOf;
using testing::RequestFor;
using testing::TextsOf;
using testing::WordsOf;
using Kind = DrawingStep::Kind;

constexpr Double Negligible = 0.5; ///< twips

bool Overlap(const SheetArea& a, const SheetArea& b) {
    return a.Left < b.Right - Negligible && b.Left < a.Right - Negligible &&
           a.Top < b.Bottom - Negligible && b.Top < a.Bottom - Negligible;
}

/// No text too small or over another one, nothing outside the margins, every page numbered.
void ExpectReadable(const std::vector<Drawing>& pages, const SheetPaper& paper) {
    const SheetArea inside{paper.Margin - Negligible, paper.Margin - Negligible,
                           paper.Width - paper.Margin + Negligible,
                           paper.Height - paper.Margin + Negligible};
    for (std::size_t number = 0; number < pages.size(); ++number) {
        SCOPED_TRACE("page " + std::to_string(number + 1));
        const auto texts = TextsOf(pages[number]);
        for (std::size_t i = 0; i < texts.size(); ++i) {
            EXPECT_GE(texts[i].FontSize, 8) << texts[i].Text;
            for (std::size_t other = 0; other < i; ++other) {
                EXPECT_FALSE(Overlap(PlaceOf(texts[i]), PlaceOf(texts[other])))
                    << texts[i].Text << " over " << texts[other].Text;
            }
        }
        for (const DrawingStep& step : pages[number].Steps()) {
            const SheetArea place =
                step.What == Kind::Text
                    ? PlaceOf(step)
                    : SheetArea{std::min(step.X1, step.X2), std::min(step.Y1, step.Y2),
                                std::max(step.X1, step.X2), std::max(step.Y1, step.Y2)};
            EXPECT_TRUE(place.Left >= inside.Left && place.Top >= inside.Top &&
                        place.Right <= inside.Right && place.Bottom <= inside.Bottom)
                << "outside the margins: " << step.Text;
        }
        EXPECT_THAT(WordsOf(pages[number]), HasSubstr(" " + std::to_string(number + 1) + " of " +
                                                      std::to_string(pages.size()) + " "));
    }
}

/// A piece as it is drawn, whole units.
struct DrawnPiece {
    Long X = 0;
    Long From = 0;
    Long Width = 0;
    Long To = 0;
};

/// The roll as it is drawn: its strips put together again.
class DrawnRoll {
  public:
    DrawnRoll(const std::vector<Drawing>& pages, Long rollWidth) {
        for (const Drawing& page : pages) {
            for (const DrawingStep& step : page.Steps()) {
                constexpr Double LeastStrip = 21; // wider than the dot at a leader's end
                if (step.What == Kind::Box && step.Tip.empty() && step.X2 - step.X1 > LeastStrip) {
                    AddStrip(page, step, rollWidth);
                }
            }
        }
    }

    std::map<std::string, DrawnPiece> Pieces;
    Long Length = 0;

  private:
    void AddStrip(const Drawing& page, const DrawingStep& strip, Long rollWidth) {
        const Double scale = (strip.X2 - strip.X1) / rollWidth;
        const auto units = [scale](Double twips) {
            EXPECT_NEAR(twips / scale, std::round(twips / scale), 0.01) << "not to scale";
            return static_cast<Long>(std::lround(twips / scale));
        };
        for (const DrawingStep& step : page.Steps()) {
            if (step.What != Kind::Box || step.Tip.empty() || step.X1 < strip.X1 - Negligible ||
                step.X1 > strip.X2) {
                continue;
            }
            EXPECT_LE(step.X2, strip.X2 + Negligible) << step.Tip;
            EXPECT_GE(step.Y1, strip.Y1 - Negligible) << step.Tip;
            EXPECT_LE(step.Y2, strip.Y2 + Negligible) << step.Tip;
            const Long from = Length + units(step.Y1 - strip.Y1);
            const Long to = Length + units(step.Y2 - strip.Y1);
            const auto [piece, isNew] =
                Pieces.try_emplace(step.Tip, DrawnPiece{units(step.X1 - strip.X1), from,
                                                        units(step.X2 - step.X1), to});
            if (!isNew) {
                EXPECT_EQ(piece->second.To, from) << step.Tip << " does not go on";
                EXPECT_EQ(piece->second.X, units(step.X1 - strip.X1)) << step.Tip;
                piece->second.To = to;
            }
        }
        Length += units(strip.Y2 - strip.Y1);
    }
};

std::vector<Drawing> SheetOf(const Project& project, const Order& order,
                             const SheetPaper& paper = A4Sheet) {
    return OrderSheet(project, {order}, paper, "11/22/2026");
}

/// Each piece is where it has to be, with its letter, size and room, and the roll is drawn whole.
void ExpectWhole(const Project& project, const Order& order, const std::vector<Drawing>& pages) {
    const OrderCandidate& best = order.Candidates.at(order.Best.value());
    const DrawnRoll roll(pages, best.RollWidth);
    EXPECT_EQ(roll.Length, best.Figures->Length);
    EXPECT_EQ(roll.Pieces.size(), best.Pieces.size());
    std::string words;
    for (const Drawing& page : pages) {
        words += WordsOf(page);
    }
    for (const OrderPiece& piece : best.Pieces) {
        const std::string size = WholeLengthText(piece.Width, order.Request.In) + " X " +
                                 WholeLengthText(piece.Length, order.Request.In);
        const auto drawn = roll.Pieces.find(piece.Label + ": " + size);
        ASSERT_NE(drawn, roll.Pieces.end()) << piece.Label;
        EXPECT_EQ(drawn->second.X, order.Request.Selvage + piece.X) << piece.Label;
        EXPECT_EQ(drawn->second.From, piece.Y) << piece.Label;
        EXPECT_EQ(drawn->second.Width, piece.Width) << piece.Label;
        EXPECT_EQ(drawn->second.To, piece.Y + piece.Length) << piece.Label;
        const Room& room = project.Rooms.at(static_cast<std::size_t>(piece.Room - 1));
        const std::string name = !room.Number.empty()   ? room.Number
                                 : !room.Remark.empty() ? room.Remark.substr(0, 31)
                                                        : "room " + std::to_string(piece.Room);
        std::string line;
        for (const std::string& word : {piece.Label, size, name}) {
            line.append(" ").append(word);
        }
        EXPECT_THAT(words, HasSubstr(line));
    }
}

TEST(OrderSheet, IsReadableWholeAndToScaleForEveryHouse) {
    for (const HouseKind& kind : HouseKinds()) {
        SCOPED_TRACE(NameOf(kind));
        const Project project = HouseOf(kind);
        const Order order = HouseOrder(kind, project);
        for (const SheetPaper& paper : {A4Sheet, LetterSheet}) {
            const auto pages = SheetOf(project, order, paper);
            ExpectReadable(pages, paper);
            ExpectWhole(project, order, pages);
        }
    }
}

TEST(OrderSheet, ListsEveryPieceInCuttingOrderAtTenPoints) {
    for (const HouseKind& kind : HouseKinds()) {
        SCOPED_TRACE(NameOf(kind));
        const Project project = HouseOf(kind);
        const Order order = HouseOrder(kind, project);
        std::string words;
        for (const Drawing& page : SheetOf(project, order)) {
            for (const DrawingStep& step : TextsOf(page)) {
                words += step.FontSize == 10 ? step.Text + " " : "";
            }
        }
        std::size_t at = 0;
        for (const CutLine& line :
             CutLines(project, order.Request, order.Candidates.at(*order.Best))) {
            std::string expected = line.Label + " " + line.From + " " + line.To + " " +
                                   line.Across + " " + line.Size + " " + line.Room + " ";
            expected += line.Which.empty() ? "" : line.Which + " ";
            expected += line.Match.empty() ? "" : line.Match + " ";
            at = words.find(expected, at);
            ASSERT_NE(at, std::string::npos) << expected;
        }
    }
}

/// Rooms an inch or two wide, and rolls much wider than long: no label has a place on its piece.
TEST(OrderSheet, LosesNoLabelOfPiecesThatAreTooSmall) {
    std::mt19937 random(7);
    for (int i = 0; i < testing::UnlessSanitized(60, 12); ++i) {
        SCOPED_TRACE(i);
        std::vector<testing::RoomSides> sides;
        const auto least = static_cast<int>(1 + random() % 20);
        for (int rooms = 1 + static_cast<int>(random() % 60); rooms > 0; --rooms) {
            sides.push_back(
                {least + static_cast<int>(random() % 12), least + static_cast<int>(random() % 60)});
        }
        const Project project = ProjectOf(sides);
        const bool metric = random() % 2 == 0;
        const Order order =
            MakeOrderOf(project,
                        RequestFor(1 + static_cast<int>(random() % (i % 2 == 0 ? 12 : 600)),
                                   metric ? Units::Metric : Units::Imperial),
                        20);
        const auto pages = SheetOf(project, order);
        ExpectReadable(pages, A4Sheet);
        ExpectWhole(project, order, pages);
    }
}

TEST(OrderSheet, HasAPageMoreForLabelsThatFindNoPlaceAtTheFoot) {
    const Project project = ProjectOf(std::vector<testing::RoomSides>(450, {4, 5}));
    const Order order = MakeOrderOf(project, RequestFor(1200), 20);
    const auto pages = SheetOf(project, order);
    ExpectReadable(pages, A4Sheet);
    ExpectWhole(project, order, pages);
    EXPECT_THAT(WordsOf(pages.at(2)), HasSubstr(" Pieces too small to be labelled on the roll "));
}

TEST(OrderSheet, BeginsWithWhatToBuy) {
    const HouseKind kind{20, Units::Imperial, true};
    Project project = HouseOf(kind);
    project.Rooms.push_back({120, 100, 8, 0, "", ""});
    const Order order = HouseOrder(kind, project);
    const OrderFigures& figures = *order.Candidates.at(*order.Best).Figures;
    const std::string words = WordsOf(SheetOf(project, order).front());
    for (const std::string& text :
         {std::string("MAPLE HOUSE"), std::string("11/22/2026"), std::string("CARPET-1"),
          std::string("Roll 146in"), std::string("Roll width 12'2\""),
          std::string("Usable width 12'0\", without the selvage of 0'1\" on each side"),
          "To be ordered " + FeetAndInches(static_cast<Long>(figures.Length)) +
              " in one length without a join",
          "Needed " + FeetAndInches(figures.LengthNeeded),
          std::string("1'6\" across, 2'0\" along, half drop; drift 0.0 %"),
          std::string("TILE-1 83.33 sq. ft."), std::string("Wall base ")}) {
        EXPECT_THAT(words, HasSubstr(" " + text));
    }
}

TEST(OrderSheet, OfAnOrderWithoutARowSaysWhy) {
    OrderRequest request = RequestFor(144);
    request.Rolls.front().AsTyped = "12ft";
    request.Pattern.Across = 32;
    const Project project = ProjectOf({{285, 100}});
    const Order order = MakeOrderOf(project, request);
    ASSERT_FALSE(order.Best.has_value());
    const auto pages = SheetOf(project, order);
    ASSERT_EQ(pages.size(), 1U);
    ExpectReadable(pages, A4Sheet);
    EXPECT_THAT(WordsOf(pages.front()), HasSubstr(" No order "));
    EXPECT_THAT(WordsOf(pages.front()), HasSubstr(" 12ft, down: Room 1 cannot match: "));
}

TEST(OrderSheet, NumbersThePagesOfAllOrdersTogether) {
    const HouseKind kind{4, Units::Imperial, false};
    const Project project = HouseOf(kind);
    const Order order = HouseOrder(kind, project);
    const auto one = OrderSheet(project, {order}, A4Sheet, "").size();
    const auto pages = OrderSheet(project, {order, order}, A4Sheet, "");
    EXPECT_EQ(pages.size(), 2 * one);
    ExpectReadable(pages, A4Sheet);
    EXPECT_TRUE(OrderSheet(project, {}, A4Sheet, "").empty());
}

TEST(OrderSheet, ShowsAPieceOnBothStripsThatItIsOn) {
    const Project project = ProjectOf({{144, 3000}});
    const Order order = MakeOrderOf(project, RequestFor(144));
    const auto pages = SheetOf(project, order);
    ExpectReadable(pages, A4Sheet);
    std::string words;
    for (const Drawing& page : pages) {
        words += WordsOf(page);
    }
    EXPECT_THAT(words, HasSubstr(" A 12'0\" X 250'0\" room 1 "));
    EXPECT_THAT(words, HasSubstr(" A continues 12'0\" X 250'0\" room 1 "));
}

TEST(OrderSheet, KeepsWhateverARemarkHolds) {
    Project project = ProjectOf({{100, 100}, {300, 200}, {90, 80}});
    project.Name = std::string(300, 'W');
    project.Rooms[0].Remark = "één baan\nÖstliches Zimmer 日本";
    project.Rooms[1].Remark = std::string(255, 'W');
    project.Rooms[2].Remark = "a\xFF\tb  c";
    const Order order = MakeOrderOf(project, RequestFor(144));
    const auto pages = SheetOf(project, order);
    ExpectReadable(pages, A4Sheet);
    std::string list;
    for (const DrawingStep& step : TextsOf(pages.back())) {
        list += step.FontSize == 10 ? step.Text : "";
    }
    EXPECT_THAT(list, HasSubstr("Zimmer 日本"));
    EXPECT_THAT(list, HasSubstr("a\uFFFD"));
    EXPECT_GE(std::count(list.begin(), list.end(), 'W'), 2 * 255);
}

/// What is hatched is what the pieces leave.
TEST(OrderSheet, HatchesOnlyWhatIsLeftOver) {
    const HouseKind kind{20, Units::Imperial, true};
    const Project project = HouseOf(kind);
    const Order order = HouseOrder(kind, project);
    std::size_t hatching = 0;
    for (const Drawing& page : SheetOf(project, order)) {
        for (const DrawingStep& line : page.Steps()) {
            const bool isHatch = line.What == Kind::Line && line.Color == DrawingColor::Gray &&
                                 line.X1 != line.X2 && line.Y1 != line.Y2;
            if (!isHatch) {
                continue;
            }
            ++hatching;
            const Double x = (line.X1 + line.X2) / 2;
            const Double y = (line.Y1 + line.Y2) / 2;
            for (const DrawingStep& box : page.Steps()) {
                EXPECT_FALSE(box.What == Kind::Box && !box.Tip.empty() && x > box.X1 + Negligible &&
                             x < box.X2 - Negligible && y > box.Y1 + Negligible &&
                             y < box.Y2 - Negligible)
                    << box.Tip << " is hatched";
            }
        }
    }
    EXPECT_GT(hatching, 100U);
}

TEST(OrderPicture, HasAllPagesBelowEachOther) {
    const HouseKind kind{20, Units::Metric, false};
    const Project project = HouseOf(kind);
    const Order order = HouseOrder(kind, project);
    const auto pages = SheetOf(project, order);
    const Drawing picture = OrderPicture(project, order, A4Sheet, "11/22/2026");
    EXPECT_EQ(picture.FarthestX(), A4Sheet.Width);
    EXPECT_EQ(picture.FarthestY(), A4Sheet.Height * static_cast<Double>(pages.size()));
    std::string words = " ";
    for (const Drawing& page : pages) {
        words += WordsOf(page).substr(1);
    }
    EXPECT_EQ(WordsOf(picture), words);
}

} // namespace
} // namespace tarn
