// The sheet of an order on paper: what is read from the PDF is cut out of a roll of paper.

#include "QtString.h"
#include "base/Lengths.h"
#include "files/OrderDocument.h"
#include "order/SheetTesting.h"
#include "paper/OrderPaper.h"
#include "paper/PdfFile.h"
#include "paper/PdfTesting.h"
#include "paper/Printer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

namespace tarn {
namespace {

using testing::HouseKind;
using testing::HouseKinds;
using testing::HouseOf;
using testing::HouseOrder;
using testing::Pdf;
using testing::PdfWord;
using testing::S;

constexpr double UprightA4Width = 595;
constexpr double UprightA4Height = 842;

OrderDocument DocumentOf(const HouseKind& kind) {
    OrderDocument document{HouseOf(kind), kind.In, {}};
    document.Orders.push_back(HouseOrder(kind, document.Of));
    return document;
}

/// A line of the list as it is read.
struct ReadCut {
    QString Label;
    Long From;
    Long To;
    Long Across;
    Long Width;
    Long Length;
};

Long ReadLength(const QString& text, Units units) {
    bool isNumber = false;
    const Long centimetres = text.toInt(&isNumber);
    if (units == Units::Metric) {
        EXPECT_TRUE(isNumber) << text.toStdString();
        return centimetres;
    }
    const auto inches = ReadFeetAndInches(text.toStdString());
    EXPECT_TRUE(inches.has_value()) << text.toStdString();
    return inches.value_or(0);
}

/// The words of a page that stand beside each other at that height, from left to right.
std::vector<PdfWord> LineAt(const std::vector<PdfWord>& words, double y) {
    constexpr double Same = 1;
    std::vector<PdfWord> line;
    std::copy_if(words.begin(), words.end(), std::back_inserter(line),
                 [&](const PdfWord& word) { return std::abs(word.Box.top() - y) < Same; });
    std::sort(line.begin(), line.end(),
              [](const PdfWord& a, const PdfWord& b) { return a.Box.left() < b.Box.left(); });
    return line;
}

/// The cuts that a page lists; none when it is no page of the list.
std::vector<ReadCut> CutsOn(const Pdf& pdf, int page, Units units) {
    const auto words = pdf.Words(page);
    const auto head = std::find_if(words.begin(), words.end(), [&](const PdfWord& word) {
        if (word.Text != S("Cut")) {
            return false;
        }
        const auto line = LineAt(words, word.Box.top());
        return line.size() > 4 && line[1].Text == S("From");
    });
    std::vector<ReadCut> cuts;
    if (head == words.end()) {
        return cuts;
    }
    for (const PdfWord& word : words) {
        if (word.Box.top() <= head->Box.top() || std::abs(word.Box.left() - head->Box.left()) > 1) {
            continue;
        }
        const auto line = LineAt(words, word.Box.top());
        if (line.size() < 8 || line[5].Text != S("X")) {
            ADD_FAILURE() << "no cut: " << word.Text.toStdString();
            continue;
        }
        const auto length = [&](std::size_t i) { return ReadLength(line[i].Text, units); };
        cuts.push_back({line[0].Text, length(1), length(2), length(3), length(4), length(6)});
    }
    return cuts;
}

/// A roll of paper from which pieces are cut.
class PaperRoll {
  public:
    PaperRoll(Long width, Long length)
        : width_(width)
        , length_(length)
        , paper_(static_cast<std::size_t>(width) * static_cast<std::size_t>(length), 'p') {}

    void Cut(const ReadCut& cut) {
        ASSERT_TRUE(cut.Across >= 0 && cut.Across + cut.Width <= width_ && cut.From >= 0 &&
                    cut.To <= length_ && cut.To - cut.From == cut.Length)
            << cut.Label.toStdString();
        const auto width = static_cast<std::size_t>(cut.Width);
        for (Long y = cut.From; y < cut.To; ++y) {
            const std::size_t begin =
                static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                static_cast<std::size_t>(cut.Across);
            ASSERT_EQ(std::string_view(paper_).substr(begin, width).find('\0'),
                      std::string_view::npos)
                << cut.Label.toStdString() << " is gone already";
            paper_.replace(begin, width, width, '\0');
        }
    }

  private:
    Long width_;
    Long length_;
    std::string paper_; ///< a letter for each unit that is there, row by row
};

/// Cut all that the document lists from a roll of the order's length; each piece of the order is
/// among them.
void ExpectCutsEverything(const Pdf& pdf, const Order& order) {
    const OrderCandidate& best = order.Candidates.at(order.Best.value());
    PaperRoll roll(best.UsableWidth, static_cast<Long>(best.Figures->Length));
    std::size_t next = 0;
    for (int page = 1; page <= pdf.Pages(); ++page) {
        for (const ReadCut& cut : CutsOn(pdf, page, order.Request.In)) {
            ASSERT_LT(next, best.Pieces.size());
            const OrderPiece& piece = best.Pieces[next++];
            EXPECT_EQ(cut.Label.toStdString(), piece.Label);
            EXPECT_EQ(cut.From, piece.Y) << piece.Label;
            EXPECT_EQ(cut.To, piece.Y + piece.Length) << piece.Label;
            EXPECT_EQ(cut.Across, piece.X) << piece.Label;
            EXPECT_EQ(cut.Width, piece.Width) << piece.Label;
            EXPECT_EQ(cut.Length, piece.Length) << piece.Label;
            roll.Cut(cut);
        }
    }
    EXPECT_EQ(next, best.Pieces.size());
}

TEST(OrderPaper, ListsCutsThatGiveEveryPieceOfEveryHouse) {
    for (const HouseKind& kind : HouseKinds()) {
        SCOPED_TRACE(NameOf(kind));
        const OrderDocument document = DocumentOf(kind);
        const Pdf pdf(OrderPdf(document, "11/22/2026"));
        EXPECT_EQ(pdf.PageSize(), QSizeF(UprightA4Width, UprightA4Height));
        ExpectCutsEverything(pdf, document.Orders.front());
    }
}

TEST(OrderPaper, IsOnLetterToo) {
    Paper letter;
    letter.Size = {15840, 12240};
    const OrderDocument document = DocumentOf({60, Units::Imperial, true});
    const Pdf pdf(OrderPdf(document, "11/22/2026", letter));
    EXPECT_EQ(pdf.PageSize(), QSizeF(612, 792));
    ExpectCutsEverything(pdf, document.Orders.front());
}

TEST(OrderPaper, NumbersItsPagesAndIsRealTextWithATitle) {
    const OrderDocument document = DocumentOf({20, Units::Metric, false});
    const Pdf pdf(OrderPdf(document, "11/22/2026"));
    EXPECT_EQ(pdf.InfoOf("Title"), S("ORDER (PROJECT: MAPLE HOUSE)"));
    EXPECT_EQ(pdf.Images(), 0);
    EXPECT_FALSE(pdf.Fonts().isEmpty());
    for (int page = 1; page <= pdf.Pages(); ++page) {
        EXPECT_TRUE(pdf.Layout(page).contains(QString(S("%1 of %2")).arg(page).arg(pdf.Pages())));
    }
}

TEST(OrderPaper, KeepsTheWidestMarginOfThePrinterOnAllSides) {
    Paper paper;
    paper.Left = 1440;
    const Pdf pdf(OrderPdf(DocumentOf({20, Units::Imperial, false}), "", paper));
    constexpr int Dots = 72;
    for (int page = 1; page <= pdf.Pages(); ++page) {
        const QImage image = pdf.Image(page, Dots);
        EXPECT_TRUE(image.rect().adjusted(71, 71, -71, -71).contains(testing::InkOf(image)));
    }
}

TEST(OrderPaper, ASheetThatIsTooSmallIsAnError) {
    Paper label;
    label.Size = {8640, 5760};
    try {
        OrderPdf(DocumentOf({1, Units::Imperial, false}), "", label);
        FAIL() << "made";
    } catch (const PrinterError& error) {
        EXPECT_STREQ(error.what(), "The paper is too small for the order.");
        EXPECT_FALSE(error.Advice().empty());
    }
}

} // namespace
} // namespace tarn
