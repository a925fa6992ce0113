#include "engine/EngineArrays.h"

namespace tarn {

void CopyRows(const PieceRows& from, PieceRows& to, Integer count) {
    for (Integer i = 0; i < count; ++i) {
        to.PCX1[i] = from.PCX1[i];
        to.PCX2[i] = from.PCX2[i];
        to.PCY1[i] = from.PCY1[i];
        to.PCY2[i] = from.PCY2[i];
        to.OrgPC[i] = from.OrgPC[i];
        to.PCDivide[i] = from.PCDivide[i];
        to.PCTurn[i] = from.PCTurn[i];
        to.PCOrder[i] = from.PCOrder[i];
    }
}

} // namespace tarn
