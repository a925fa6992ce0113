#pragma once

#include <string>
#include <vector>

namespace tarn {

/// What keeps a printer's paper from coming out, in words that follow its name ("is out of
/// paper"); empty when nothing is known to. `state` and `reasons` are IPP's printer-state and
/// printer-state-reasons, and the reasons count with any severity: CUPS reports an empty tray as
/// "media-empty-warning".
///
/// Only a printer that is busy with a job has trouble. The reasons of an idle one are those of its
/// last job, and nothing but a further job tells whether they still hold.
std::string PrinterTrouble(int state, const std::vector<std::string>& reasons);

} // namespace tarn
