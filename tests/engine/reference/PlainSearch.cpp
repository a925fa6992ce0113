#include "engine/reference/PlainSearch.h"

#include "base/RunTimeError.h"
#include "engine/reference/PlainCleanUp.h"
#include "engine/reference/PlainNumbers.h"
#include "engine/reference/PlainPlacement.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace tarn::reference {

namespace {

constexpr std::size_t MostPieces = 3000;

struct Search {
    const PlainJob& job;
    const float usable;            // inches
    std::vector<PlainPiece> rows;  // the pieces of the moment
    std::vector<PlainPiece> saved; // the undivided pieces
    std::vector<PlainPlaced> placed;
    PlainResult result{};

    explicit Search(const PlainJob& theJob);
    void Run();

    void ExchangeAxes();
    void CutToWidth();
    void CountCases();
    void FirstPass();
    void SecondPass();
    void ScoreCase(const std::vector<int>& digits);
    void PlaceCase(const std::vector<int>& digits, int power);
    void Divide(std::size_t k, int parts);
    void AppendRow(const PlainPiece& piece);
    void PlaceInOrder(int power);
    void SortRowsBy(int PlainPiece::*number);
};

Search::Search(const PlainJob& theJob)
    : job(theJob)
    , usable(theJob.rollWidth) {
    if (job.pieces.size() > MostPieces) {
        RaiseSubscript();
    }
    rows = job.pieces;
}

double SortKey(const PlainPiece& piece, int power) {
    double key = 1.0;
    for (int i = 0; i < power; ++i) {
        key *= static_cast<double>(LengthOf(piece));
    }
    return key * static_cast<double>(WidthOf(piece));
}

void SortBySize(std::vector<PlainPiece>& rows, int power) {
    std::vector<std::pair<double, PlainPiece>> keyed;
    keyed.reserve(rows.size());
    for (const PlainPiece& piece : rows) {
        keyed.emplace_back(SortKey(piece, power), piece);
    }
    std::stable_sort(keyed.begin(), keyed.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i] = keyed[i].second;
    }
}

void Search::ExchangeAxes() {
    for (PlainPiece& row : rows) {
        std::swap(row.x1, row.y1);
        std::swap(row.x2, row.y2);
    }
}

void Search::AppendRow(const PlainPiece& piece) {
    if (rows.size() >= MostPieces) {
        RaiseSubscript();
    }
    rows.push_back(piece);
}

void Search::CutToWidth() {
    const std::size_t count = rows.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (TooWide(rows[i], usable)) {
            PlainPiece strip = rows[i];
            strip.x2 =
                ToSingle(static_cast<double>(strip.x1) + static_cast<double>(usable) / Scale);
            strip.divide = 0;
            AppendRow(strip);
            rows[i].x1 = strip.x2;
        }
    }
}

void Search::CountCases() {
    double varied = 0;
    if (job.mostParts > 1) {
        varied = std::floor(std::log(80.0) / std::log(static_cast<double>(job.mostParts)) + 0.5);
    }
    result.cases = 1;
    for (std::size_t k = 0; k < rows.size(); ++k) {
        int radix = 1;
        if (static_cast<double>(k) < varied && rows[k].divide == 1) {
            const double length = static_cast<double>(Minus(rows[k].y2, rows[k].y1));
            const double whole = std::floor((length + 1.0) / job.minCut);
            radix = static_cast<int>(std::min(whole, static_cast<double>(job.mostParts)));
        }
        result.radix.push_back(radix);
        result.cases *= radix;
    }
}

void Search::FirstPass() {
    for (long c = 0; c < result.cases; ++c) {
        std::vector<int> digits;
        long r = c;
        for (const int radix : result.radix) {
            const long digit = r % radix;
            digits.push_back(static_cast<int>(digit));
            r = (r - digit) / radix;
        }
        ScoreCase(digits);
    }
}

void Search::SecondPass() {
    for (int f = 0; f < job.mostParts; ++f) {
        std::vector<int> digits;
        for (const PlainPiece& piece : saved) {
            double digit = 0;
            if (piece.divide == 1) {
                const double length = static_cast<double>(Minus(piece.y2, piece.y1));
                digit = std::floor(length / job.minCut) - 1.0;
                digit = std::min(std::max(digit, 0.0), static_cast<double>(f));
            }
            digits.push_back(static_cast<int>(digit));
        }
        ScoreCase(digits);
    }
}

void Search::ScoreCase(const std::vector<int>& digits) {
    std::size_t parts = 0;
    for (const int digit : digits) {
        parts += static_cast<std::size_t>(digit) + 1;
    }
    if (parts > MostPieces) {
        return;
    }
    for (const int power : {1, 0, 2}) {
        PlaceCase(digits, power);
        const long score = ToLong(static_cast<double>(LengthInUse(placed)));
        if (score < result.bestLength) {
            result.bestLength = score;
            result.bestPower = power;
            result.digits = digits;
        }
    }
}

void Search::PlaceCase(const std::vector<int>& digits, int power) {
    rows = saved;
    for (std::size_t k = 0; k < saved.size(); ++k) {
        const int parts = digits[k] + 1;
        if (parts >= 2) {
            Divide(k, parts);
        }
    }
    PlaceInOrder(power);
}

void Search::Divide(std::size_t k, int parts) {
    const PlainPiece whole = rows[k];
    const double top = static_cast<double>(whole.y1);
    const double length = static_cast<double>(Minus(whole.y2, whole.y1));
    double len = std::floor((length + parts * 0.9) / parts);
    if (len < job.minCut) {
        len = job.minCut;
    }
    for (int p = 0; p < parts; ++p) {
        PlainPiece part = whole;
        part.y1 = ToSingle(p * len + top);
        part.y2 = ToSingle((p + 1) * len + top);
        if (p == 0) {
            rows[k] = part;
        } else {
            AppendRow(part);
        }
    }
}

void Search::PlaceInOrder(int power) {
    SortBySize(rows, power);
    PlainRoll roll{usable};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i].order = static_cast<int>(i);
        roll.Place(WidthOf(rows[i]), LengthOf(rows[i]));
    }
    placed = roll.placed;
}

void Search::SortRowsBy(int PlainPiece::*number) {
    std::vector<std::pair<PlainPiece, PlainPlaced>> both;
    both.reserve(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        both.emplace_back(rows[i], placed[i]);
    }
    std::stable_sort(both.begin(), both.end(), [number](const auto& a, const auto& b) {
        return a.first.*number < b.first.*number;
    });
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i] = both[i].first;
        placed[i] = both[i].second;
    }
}

void Search::Run() {
    if (job.layDir == 1) {
        ExchangeAxes();
    }
    CutToWidth();
    SortBySize(rows, 2);
    saved = rows;
    result.undivided = static_cast<int>(saved.size());
    if (job.minCut == 0) {
        RaiseDivisionByZero();
    }
    result.bestLength = 32767;
    result.digits.assign(saved.size(), 0);
    CountCases();
    FirstPass();
    SecondPass();

    PlaceCase(result.digits, result.bestPower);
    SortRowsBy(&PlainPiece::order);
    CheckLayout(rows, placed, usable);
    JoinParts(rows, placed);
    ShiftLooseLeft(placed, usable);
    const double length = static_cast<double>(LengthInUse(placed));
    result.resultLength = ToInteger(3.0 * std::floor((length + 2.0) / 3.0));
    if (job.layDir == 1) {
        ExchangeAxes();
    }
    SortRowsBy(&PlainPiece::org);
    result.pieces = rows;
    result.placed = placed;
}

} // namespace

PlainResult RunPlainSearch(const PlainJob& job) {
    Search search(job);
    search.Run();
    return search.result;
}

} // namespace tarn::reference
