#include "engine/EngineArrays.h"

namespace tarn {

void CopyRow(const PieceRows& from, Integer i, PieceRows& to, Integer row) {
    to.PCX1[row] = from.PCX1[i];
    to.PCX2[row] = from.PCX2[i];
    to.PCY1[row] = from.PCY1[i];
    to.PCY2[row] = from.PCY2[i];
    to.OrgPC[row] = from.OrgPC[i];
    to.PCDivide[row] = from.PCDivide[i];
    to.PCTurn[row] = from.PCTurn[i];
    to.PCOrder[row] = from.PCOrder[i];
}

void CopyRows(const PieceRows& from, PieceRows& to, Integer count) {
    for (Integer i = 0; i < count; ++i) {
        CopyRow(from, i, to, i);
    }
}

} // namespace tarn
