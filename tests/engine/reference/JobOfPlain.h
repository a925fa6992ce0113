#pragma once

// A job of the plain search as one of the real engine.

#include "engine/Search.h"
#include "engine/reference/PlainSearch.h"

namespace tarn::reference {

inline SearchJob JobOfPlain(const PlainJob& plain) {
    SearchJob job;
    job.RollWidth = plain.rollWidth;
    job.Direction = plain.layDir == 1 ? Lay::Cross : Lay::Down;
    job.MostParts = static_cast<Integer>(plain.mostParts);
    job.MinCut = static_cast<Integer>(plain.minCut);
    for (const PlainPiece& piece : plain.pieces) {
        job.Pieces.push_back({piece.x1, piece.x2, piece.y1, piece.y2,
                              static_cast<Integer>(piece.org), piece.divide == 1});
    }
    return job;
}

} // namespace tarn::reference
