#include "engine/Pieces.h"

#include "app/Numbers.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>
#include <vector>

namespace tarn {

namespace {

using SwitchRows = void (*)(EngineArrays&, long long, long long);

/// Bring rows first .. first + keys.size() - 1 into ascending order of `keys` (by row), exchanging
/// rows alone; equal keys keep their order.
void SortRows(EngineArrays& engine, Integer first, const std::vector<Double>& keys,
              SwitchRows switchRows) {
    std::vector<std::size_t> wanted(keys.size()); // wanted[place] = row that belongs there
    std::iota(wanted.begin(), wanted.end(), std::size_t{0});
    std::stable_sort(wanted.begin(), wanted.end(),
                     [&](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
    for (std::size_t place = 0; place < wanted.size(); ++place) {
        // Exchanges so far may have moved the wanted row away from its first place.
        std::size_t row = wanted[place];
        while (row < place) {
            row = wanted[row];
        }
        if (row != place) {
            switchRows(engine, first + static_cast<long long>(place),
                       first + static_cast<long long>(row));
        }
    }
}

template <typename KeyOf>
std::vector<Double> Keys(Integer first, Integer last, KeyOf keyOf) {
    std::vector<Double> keys;
    for (Integer i = first; i < last; ++i) {
        keys.push_back(keyOf(i));
    }
    return keys;
}

} // namespace

void CountUp(Integer& counter) {
    counter = ToInteger(counter + 1);
}

Single SizeBetween(Single from, Single to, Double dimScale) {
    const Single difference = to - from;
    return CSng(static_cast<Double>(difference) * dimScale);
}

Double SizeKey(Single width, Single length, Integer power) {
    const Double key = std::pow(static_cast<Double>(length), power) * static_cast<Double>(width);
    if (!std::isfinite(key)) {
        RaiseOverflow();
    }
    return key;
}

void GetPieceSZ(EngineArrays& engine, Integer i, Double dimScale) {
    engine.PieceLen[i] = SizeBetween(engine.PCY1[i], engine.PCY2[i], dimScale);
    engine.PieceWid[i] = SizeBetween(engine.PCX1[i], engine.PCX2[i], dimScale);
}

void GetPieceSZ(EngineArrays& engine, Double dimScale) {
    for (Integer i = 0; i < engine.PieceCount; ++i) {
        GetPieceSZ(engine, i, dimScale);
    }
}

void SwitchXY(EngineArrays& engine) {
    for (Integer i = 0; i < engine.PieceCount; ++i) {
        std::swap(engine.PCX1[i], engine.PCY1[i]);
        std::swap(engine.PCX2[i], engine.PCY2[i]);
    }
}

void SwitchXY2(EngineArrays& engine) {
    for (Integer i = 0; i < engine.PieceCount; ++i) {
        if (engine.LayDir == (engine.PCTurn[i] & 1)) {
            continue;
        }
        const Single oldX1 = engine.PCX1[i];
        const Single oldX2 = engine.PCX2[i];
        engine.PCX1[i] = engine.PCY1[i];
        engine.PCX2[i] = engine.PCY2[i];
        engine.PCY1[i] = CInt(static_cast<Double>(oldX1));
        engine.PCY2[i] = CInt(static_cast<Double>(oldX2));
    }
}

void SwitchPiece(EngineArrays& engine, long long i, long long j) {
    std::swap(engine.PCX1[i], engine.PCX1[j]);
    std::swap(engine.PCX2[i], engine.PCX2[j]);
    std::swap(engine.PCY1[i], engine.PCY1[j]);
    std::swap(engine.PCY2[i], engine.PCY2[j]);
    std::swap(engine.OrgPC[i], engine.OrgPC[j]);
    std::swap(engine.PCDivide[i], engine.PCDivide[j]);
    std::swap(engine.PCTurn[i], engine.PCTurn[j]);
    std::swap(engine.PCOrder[i], engine.PCOrder[j]);
    std::swap(engine.PieceWid[i], engine.PieceWid[j]);
    std::swap(engine.PieceLen[i], engine.PieceLen[j]);
}

void SwitchFillPC(EngineArrays& engine, long long i, long long j) {
    SwitchPiece(engine, i, j);
    std::swap(engine.PosX[i], engine.PosX[j]);
    std::swap(engine.PosY[i], engine.PosY[j]);
    std::swap(engine.PosW[i], engine.PosW[j]);
    std::swap(engine.PosL[i], engine.PosL[j]);
}

void SwitchPCOrder(EngineArrays& engine, long long i, long long j) {
    SwitchFillPC(engine, i, j);
}

void QuickSortPiece(EngineArrays& engine, Integer first, Integer last, Integer power) {
    const auto descending = [&](Integer i) {
        return -SizeKey(engine.PieceWid[i], engine.PieceLen[i], power);
    };
    SortRows(engine, first, Keys(first, last, descending), SwitchPiece);
}

void QuickSortPCOrder(EngineArrays& engine, Integer first, Integer last) {
    const auto order = [&](Integer i) { return static_cast<Double>(engine.PCOrder[i]); };
    SortRows(engine, first, Keys(first, last, order), SwitchPCOrder);
}

void QuickSortOrgpc(EngineArrays& engine, Integer first, Integer last) {
    const auto number = [&](Integer i) { return static_cast<Double>(engine.OrgPC[i]); };
    SortRows(engine, first, Keys(first, last, number), SwitchFillPC);
}

Box PlacedBox(const EngineArrays& engine, long long i) {
    const Single x = engine.PosX[i];
    const Single y = engine.PosY[i];
    return {x, y, x + engine.PosW[i], y + engine.PosL[i]};
}

} // namespace tarn
