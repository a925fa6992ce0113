#pragma once

#include "screens/Dialogs.h"

#include <functional>
#include <string>

namespace tarn {

/// Run the body of a slot or an event. An error ends it there and is shown in one message box, so
/// that no exception crosses a frame of the toolkit: a run-time error by its number and text, with
/// `failure` (one sentence on what could not be done, such as "The report could not be made.") and
/// the error's advice under it; a database's or printer's failure by `failure` and its cause. What
/// the message box itself raises is dropped.
/// Answers whether the body ran to its end. Putting back what it changed is the body's own work.
bool Guarded(Dialogs& boxes, const std::string& failure,
             const std::function<void()>& body) noexcept;

} // namespace tarn
