#pragma once

// What the tests of the improving search on the engine's arrays share.

#include "engine/EngineTesting.h"
#include "engine/MultiEstimate.h"
#include "engine/improve/ImproveEngine.h"

#include <gtest/gtest.h>

namespace tarn::testing {

inline ImproveLimits Limits(std::int64_t steps) {
    return {0, steps, 1};
}

inline void Search(const SharedState& state, EngineArrays& engine) {
    SearchObserver nobody;
    ASSERT_EQ(MultiEstimate(state, engine, nobody), SearchOutcome::Done);
}

inline ImproveResult Improved(const SharedState& state, EngineArrays& engine,
                              std::int64_t steps = 500) {
    ImproveObserver nobody;
    return ImproveEngine(state, engine, Limits(steps), nobody);
}

/// A fill of that length, which begins `begin` inches behind the roll's start.
inline EngineArrays FillBeginningAt(const SharedState& state, double length, Single begin) {
    EngineArrays engine = MakeEngine(144, {{100, length}});
    Search(state, engine);
    engine.PosY[0] = begin;
    return engine;
}

} // namespace tarn::testing
