#include "engine/reference/RandomJobs.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <sstream>
#include <utility>

namespace tarn::reference {

namespace {

enum class Sizes { Inches, Centimetres, Hundredths, Remainders, Fractions };

struct Maker {
    RandomSource random;
    PlainJob job{};
    Sizes sizes = Sizes::Inches;
    int longest = 0;                // inches
    std::vector<PlainPiece> pool{}; // when not empty, every piece is one of these
    double rollUnits = 0;           // the roll in hundredths of an inch
};

double Length(Maker& maker, int most) {
    RandomSource& random = maker.random;
    switch (maker.sizes) {
    case Sizes::Inches:
        return static_cast<double>(InchUnits(random.Whole(1, most)));
    case Sizes::Centimetres:
    case Sizes::Remainders:
        return static_cast<double>(CentimetreUnits(random.Whole(2, most * 5 / 2)));
    case Sizes::Hundredths:
        return random.Whole(20, most * 100);
    case Sizes::Fractions:
        break;
    }
    const int parts = random.Whole(2, 13);
    return random.Whole(20, most * 100) + 1.0 / parts;
}

// What the roll leaves of a room: the edge is a multiple of the roll's width, so both edges and
// their difference are awkward numbers.
std::pair<float, float> Remainder(Maker& maker) {
    const int cuts = maker.random.Whole(1, 4);
    const double roll = static_cast<double>(maker.job.rollWidth);
    const double edge = cuts * roll / 0.01;
    const int first = static_cast<int>(std::floor(cuts * roll * 2.54)) + 1;
    const int last = static_cast<int>(std::floor((cuts + 1) * roll * 2.54)) - 1;
    return {static_cast<float>(edge), CentimetreUnits(maker.random.Whole(first + 1, last))};
}

std::pair<float, float> Across(Maker& maker) {
    RandomSource& random = maker.random;
    if (random.OneIn(12)) {
        return {0.0F, static_cast<float>(maker.rollUnits)};
    }
    if (random.OneIn(16)) {
        return {0.0F, static_cast<float>(maker.rollUnits * random.Whole(101, 250) / 100.0)};
    }
    if (maker.sizes == Sizes::Remainders) {
        return Remainder(maker);
    }
    const int widest = std::max(2, static_cast<int>(maker.rollUnits / 100.0));
    double width = Length(maker, random.OneIn(3) ? widest : widest / 2 + 1);
    width = std::min(width, maker.rollUnits);
    const double start = random.OneIn(4) ? std::floor(width) : 0.0;
    return {static_cast<float>(start), static_cast<float>(start + width)};
}

std::pair<float, float> Along(Maker& maker) {
    RandomSource& random = maker.random;
    const int minCut = random.OneOf<int>({300, 150, 50, 762, 381, 127});
    double length = 0;
    if (random.OneIn(10)) {
        length = random.Whole(1, minCut);
    } else if (random.OneIn(10)) {
        length = minCut * random.Whole(1, 5) + random.Whole(-2, 1);
    } else {
        length = Length(maker, maker.longest);
    }
    const double start = random.OneIn(12) ? random.Whole(1, 900) : 0;
    return {static_cast<float>(start), static_cast<float>(start + length)};
}

PlainPiece NewPiece(Maker& maker) {
    const auto [x1, x2] = Across(maker);
    const auto [y1, y2] = Along(maker);
    const int divide = maker.random.OneIn(8) ? maker.random.OneOf<int>({0, 0, 0, 2, -1}) : 1;
    PlainPiece piece = {x1, x2, y1, y2, 0, divide, 0};
    if (maker.job.layDir == 1) {
        std::swap(piece.x1, piece.y1);
        std::swap(piece.x2, piece.y2);
    }
    return piece;
}

void Roll(Maker& maker) {
    RandomSource& random = maker.random;
    PlainJob& job = maker.job;
    const bool metric = random.OneIn(2);
    if (random.OneIn(5)) {
        job.rollWidth = static_cast<float>(random.Whole(3000, 25000) / 100.0);
    } else if (random.OneIn(8)) {
        job.rollWidth = static_cast<float>(random.Whole(24, 240));
    } else if (metric) {
        job.rollWidth = MetricRollWidth(random.OneOf<int>({183, 366, 411, 457}));
    } else {
        job.rollWidth = random.OneOf<float>({72, 144, 162, 180});
    }
    job.layDir = random.Whole(0, 1);
    job.mostParts = random.Whole(1, 6);
    job.minCut = metric ? random.OneOf<int>({762, 381, 127}) : random.OneOf<int>({300, 150, 50});
    maker.rollUnits = static_cast<double>(job.rollWidth) / 0.01;
}

struct Sheet {
    double x1, x2, y1, y2;
};

// Cuts one of the sheets in two, at thirds, halves or whole inches of it.
void SplitOne(RandomSource& random, std::vector<Sheet>& sheets) {
    const int last = static_cast<int>(sheets.size()) - 1;
    Sheet& first = sheets[static_cast<std::size_t>(random.Whole(0, last))];
    Sheet second = first;
    const bool across = random.OneIn(2);
    const double from = across ? first.x1 : first.y1;
    const double size = (across ? first.x2 : first.y2) - from;
    double cut = from + size * random.OneOf<double>({1.0 / 3.0, 0.5, 2.0 / 3.0});
    if (random.OneIn(2)) {
        cut = from + std::floor(size / 200.0) * 100.0;
    }
    if (size < 300.0) {
        return;
    }
    (across ? first.x2 : first.y2) = cut;
    (across ? second.x1 : second.y1) = cut;
    sheets.push_back(second);
}

// Pieces of one full-width sheet: there is a layout without any gap.
void AddSheetPieces(Maker& maker, int count) {
    RandomSource& random = maker.random;
    std::vector<Sheet> sheets = {{0, maker.rollUnits, 0, random.Whole(20, 300) * 100.0}};
    for (int i = 1; i < count; ++i) {
        SplitOne(random, sheets);
    }
    const bool keepEdges = random.OneIn(2);
    for (const Sheet& s : sheets) {
        const double left = keepEdges ? s.x1 : 0.0;
        PlainPiece piece = {static_cast<float>(left),
                            static_cast<float>(left + s.x2 - s.x1),
                            0.0F,
                            static_cast<float>(s.y2 - s.y1),
                            0,
                            1,
                            0};
        if (maker.job.layDir == 1) {
            std::swap(piece.x1, piece.y1);
            std::swap(piece.x2, piece.y2);
        }
        maker.job.pieces.push_back(piece);
    }
    for (std::size_t i = maker.job.pieces.size(); i > 1; --i) {
        const int other = random.Whole(0, static_cast<int>(i) - 1);
        std::swap(maker.job.pieces[i - 1], maker.job.pieces[static_cast<std::size_t>(other)]);
    }
}

void AddPieces(Maker& maker, int count) {
    RandomSource& random = maker.random;
    maker.sizes = random.OneOf<Sizes>({Sizes::Inches, Sizes::Centimetres, Sizes::Hundredths,
                                       Sizes::Remainders, Sizes::Fractions});
    maker.longest = random.OneOf<int>({12, 60, 150, 300});
    if (random.OneIn(5)) {
        const int kinds = random.Whole(1, 3);
        for (int i = 0; i < kinds; ++i) {
            maker.pool.push_back(NewPiece(maker));
        }
    }
    for (int i = 0; i < count; ++i) {
        maker.job.pieces.push_back(maker.pool.empty() ? NewPiece(maker) : random.OneOf(maker.pool));
    }
}

} // namespace

int RandomSource::Whole(int low, int high) {
    if (high <= low) {
        return low;
    }
    const std::uint32_t choices = static_cast<std::uint32_t>(high - low) + 1U;
    return low + static_cast<int>(static_cast<std::uint32_t>(engine_()) % choices);
}

float MetricRollWidth(int centimetres) {
    return static_cast<float>(centimetres * 12.0 / 2.54 / 12.0);
}

float CentimetreUnits(int centimetres) {
    return static_cast<float>(centimetres / 0.01 / 2.54);
}

float InchUnits(int inches) {
    return static_cast<float>(inches / 0.01);
}

PlainJob RandomJob(std::uint32_t seed) {
    Maker maker{RandomSource(seed)};
    Roll(maker);
    const int most = maker.random.OneOf<int>({4, 6, 10, 14, 14, 20, 40});
    const int count = maker.random.Whole(1 + most / 5, most);
    if (maker.random.OneIn(6)) {
        AddSheetPieces(maker, count);
    } else {
        AddPieces(maker, count);
    }
    int number = 0;
    for (PlainPiece& piece : maker.job.pieces) {
        piece.org = number;
        piece.order = number;
        ++number;
    }
    return maker.job;
}

std::string Describe(const PlainJob& job) {
    std::ostringstream text;
    text.precision(std::numeric_limits<float>::max_digits10);
    text << std::showpoint;
    text << "PlainJob{{";
    for (const PlainPiece& p : job.pieces) {
        text << '{' << p.x1 << "F, " << p.x2 << "F, " << p.y1 << "F, " << p.y2 << "F, " << p.org
             << ", " << p.divide << ", " << p.order << "}, ";
    }
    text << "}, " << job.rollWidth << "F, " << job.layDir << ", " << job.mostParts << ", "
         << job.minCut << '}';
    return text.str();
}

} // namespace tarn::reference
