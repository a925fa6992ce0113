#include "text/TextSheetChecks.h"

#include <QTransform>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace tarn::testing {

namespace {

/// What is drawn of a letter of Liberation Sans, in units of its design: right and up from the
/// beginning of its line.
struct Letter {
    double Advance = 0;
    QRectF Box;
    std::vector<QRectF> Strokes;  ///< black all over
    std::vector<QRectF> Counters; ///< white all over, inside the box
};

constexpr double UnitsPerSize = 2048;
constexpr double Ascent = 1854;
constexpr double Descent = 434;
constexpr double Size = SheetTextHeight * UnitsPerSize / (Ascent + Descent); ///< of letters, pixels

QRectF Span(double left, double bottom, double right, double top) {
    return {QPointF(left, bottom), QPointF(right, top)};
}

std::vector<Letter> LettersOfWord() {
    const Letter h{1479,
                   Span(168, 0, 1312, 1409),
                   {Span(168, 0, 359, 1409), Span(1121, 0, 1312, 1409), Span(168, 653, 1312, 813)},
                   {Span(359, 0, 1121, 653), Span(359, 813, 1121, 1409)}};
    const Letter x{1024, Span(23, 0, 1002, 1082), {Span(408, 444, 612, 661)}, {}};
    const Letter g{
        1139, Span(86, -425, 1007, 1099), {Span(822, 31, 1001, 858)}, {Span(370, 240, 710, 840)}};
    return {h, x, g};
}

/// The letters of a text in its own frame: pixels, (0, 0) at its position, x along its line and y
/// down.
std::vector<Letter> LettersOf(const SheetCell& cell) {
    std::vector<Letter> letters = LettersOfWord();
    double width = 0;
    for (const Letter& letter : letters) {
        width += letter.Advance;
    }
    QTransform toFrame;
    toFrame.scale(Size / UnitsPerSize, -Size / UnitsPerSize);
    toFrame.translate(cell.Center  ? -width / 2
                      : cell.Right ? -width
                                   : 0,
                      cell.BaseLine ? 0
                      : cell.Bottom ? Descent
                                    : -Ascent);
    for (Letter& letter : letters) {
        letter.Box = toFrame.mapRect(letter.Box);
        for (auto* const areas : {&letter.Strokes, &letter.Counters}) {
            for (QRectF& area : *areas) {
                area = toFrame.mapRect(area);
            }
        }
        toFrame.translate(letter.Advance, 0);
    }
    return letters;
}

QTransform ToFrame(const SheetCell& cell, const SheetText& text) {
    QTransform frame;
    frame.translate(text.Position.x(), text.Position.y());
    frame.rotate(-cell.Row.Escapement / 10.0);
    return frame.inverted();
}

QRectF Grown(const QRectF& area, double by) {
    return area.adjusted(-by, -by, by, by);
}

QRect Grown(const QRect& area, int by) {
    return area.adjusted(-by, -by, by, by);
}

/// A cell with the letters of each of its texts.
class Measured {
  public:
    Measured(const SheetCell& cell, double edge)
        : cell_(cell)
        , letters_(LettersOf(cell))
        , edge_(edge) {}

    std::size_t Texts() const { return cell_.Texts.size(); }
    const std::vector<Letter>& Letters() const { return letters_; }
    QPointF InFrame(std::size_t text, QPoint pixel) const {
        return ToFrame(cell_, cell_.Texts[text]).map(QPointF(pixel) + QPointF(0.5, 0.5));
    }
    /// Whether a text from number `first` on may have ink there.
    bool MayHaveInk(QPoint pixel, std::size_t first = 0) const {
        for (std::size_t text = first; text < Texts(); ++text) {
            const QPointF place = InFrame(text, pixel);
            if (std::any_of(letters_.begin(), letters_.end(), [&](const Letter& letter) {
                    return Grown(letter.Box, edge_).contains(place);
                })) {
                return true;
            }
        }
        return false;
    }
    /// The pixels well inside of an area of a text's frame that no later text may cover.
    std::vector<QPoint> PixelsInside(std::size_t text, const QRectF& area) const {
        const QRectF inner = Grown(area, -edge_);
        const QRect around =
            ToFrame(cell_, cell_.Texts[text]).inverted().mapRect(area).toAlignedRect();
        std::vector<QPoint> pixels;
        for (int y = around.top(); y <= around.bottom(); ++y) {
            for (int x = around.left(); x <= around.right(); ++x) {
                if (inner.contains(InFrame(text, {x, y})) && !MayHaveInk({x, y}, text + 1)) {
                    pixels.emplace_back(x, y);
                }
            }
        }
        return pixels;
    }

  private:
    const SheetCell& cell_;
    std::vector<Letter> letters_;
    double edge_;
};

/// Counts what is wrong in a cell and tells of the first.
class Faults {
  public:
    void Add(QPoint pixel, const QImage& picture) {
        if (count_++ == 0) {
            first_ = pixel;
            color_ = picture.pixelColor(pixel).name().toStdString();
        }
    }
    void ExpectNone(const SheetCell& cell) const {
        const QPoint place = first_ - cell.Texts.front().Position;
        EXPECT_EQ(count_, 0) << NameOf(cell) << ": the first at " << place.x() << ", " << place.y()
                             << " from its position is " << color_;
    }

  private:
    int count_ = 0;
    QPoint first_;
    std::string color_;
};

template <typename Visit>
void ForEachPixel(const QRect& area, const Visit& visit) {
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            visit(QPoint(x, y));
        }
    }
}

/// Where the edges of the clip, if there is one, leave no doubt that ink is drawn.
bool IsInsideClip(const SheetCell& cell, QPoint pixel, const SheetPictures& pictures) {
    return !cell.Row.Clipped || Grown(ClipOf(cell), -pictures.ClipEdge).contains(pixel);
}

bool IsOutsideClip(const SheetCell& cell, QPoint pixel, const SheetPictures& pictures) {
    return cell.Row.Clipped && !Grown(ClipOf(cell), pictures.ClipEdge).contains(pixel);
}

} // namespace

void ExpectPaperAroundLetters(const SheetPictures& pictures) {
    for (const SheetCell& cell : SheetCells()) {
        const Measured measured(cell, pictures.LetterEdge);
        Faults faults;
        ForEachPixel(cell.Area, [&](QPoint pixel) {
            if (pictures.All.pixel(pixel) != pictures.Bare.pixel(pixel) &&
                (IsOutsideClip(cell, pixel, pictures) || !measured.MayHaveInk(pixel))) {
                faults.Add(pixel, pictures.All);
            }
        });
        faults.ExpectNone(cell);
    }
}

void ExpectInkInStrokes(const SheetPictures& pictures) {
    for (const SheetCell& cell : SheetCells()) {
        const Measured measured(cell, pictures.LetterEdge);
        Faults faults;
        for (std::size_t text = 0; text < measured.Texts(); ++text) {
            for (const Letter& letter : measured.Letters()) {
                for (const QRectF& stroke : letter.Strokes) {
                    const auto pixels = measured.PixelsInside(text, stroke);
                    EXPECT_TRUE(!pixels.empty() || measured.Texts() > 1) << NameOf(cell);
                    for (const QPoint pixel : pixels) {
                        if (IsInsideClip(cell, pixel, pictures) &&
                            pictures.All.pixel(pixel) != cell.Texts[text].Color.Ink) {
                            faults.Add(pixel, pictures.All);
                        }
                    }
                }
            }
        }
        faults.ExpectNone(cell);
    }
}

void ExpectPaperInCounters(const SheetPictures& pictures) {
    for (const SheetCell& cell : SheetCells()) {
        const Measured measured(cell, pictures.LetterEdge);
        if (measured.Texts() > 1) {
            continue; // one text lies in the other's counters
        }
        Faults faults;
        for (const Letter& letter : measured.Letters()) {
            for (const QRectF& counter : letter.Counters) {
                const auto pixels = measured.PixelsInside(0, counter);
                EXPECT_GT(pixels.size(), 20U) << NameOf(cell);
                for (const QPoint pixel : pixels) {
                    if (pictures.All.pixel(pixel) != pictures.Bare.pixel(pixel)) {
                        faults.Add(pixel, pictures.All);
                    }
                }
            }
        }
        faults.ExpectNone(cell);
    }
}

void ExpectClipsToCutExactly(const SheetPictures& pictures) {
    for (const SheetCell& cell : SheetCells()) {
        if (!cell.Row.Clipped) {
            EXPECT_EQ(pictures.All.copy(cell.Area), pictures.Unclipped.copy(cell.Area))
                << NameOf(cell);
            continue;
        }
        EXPECT_NE(pictures.All.copy(cell.Area), pictures.Unclipped.copy(cell.Area)) << NameOf(cell);
        Faults faults;
        ForEachPixel(cell.Area, [&](QPoint pixel) {
            const QRgb color = pictures.All.pixel(pixel);
            if ((IsInsideClip(cell, pixel, pictures) && color != pictures.Unclipped.pixel(pixel)) ||
                (IsOutsideClip(cell, pixel, pictures) && color != pictures.Bare.pixel(pixel))) {
                faults.Add(pixel, pictures.All);
            }
        });
        faults.ExpectNone(cell);
    }
}

} // namespace tarn::testing
