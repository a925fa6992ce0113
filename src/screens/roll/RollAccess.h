// The whole view of a roll on the accessibility bus: a list whose items are the pieces.

#pragma once

namespace tarn {

class RollView;

/// Have every RollView be seen by assistive programs. Once is enough, more do no harm.
void InstallRollAccess();

/// The pieces of a view are others now.
void ForgetPieces(RollView& view);

} // namespace tarn
