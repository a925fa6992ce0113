#pragma once

#include "app/SharedState.h"

namespace tarn {

/// Run `action`; False when it raised DatabaseError, whose text is then DatabaseFailure. The way in
/// which store procedures that answer True or False report a failure.
template <typename Action>
bool Succeeds(SharedState& state, Action&& action) {
    try {
        action();
        return true;
    } catch (const DatabaseError& error) {
        state.DatabaseFailure = error.what();
        return false;
    }
}

} // namespace tarn
