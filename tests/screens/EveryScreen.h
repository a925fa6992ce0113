#pragma once

// What has to hold on every screen is tested on every screen: a walk through the whole program.

#include "project/Project.h"
#include "screens/ScreenWindow.h"

#include <functional>
#include <string>

namespace tarn::testing {

/// What is done in each state of each screen: its name for messages, and the window with the screen
/// in front.
using VisitScreen = std::function<void(const std::string& state, ScreenWindow& window)>;

/// Walk through the program on data of its own, with rooms typed in `units`, and call `visit` in
/// every state of its screens that looks or works differently. Where it is narrow, and how large
/// its text is, is for the visit and the application.
void VisitEveryScreen(Units units, const VisitScreen& visit);

} // namespace tarn::testing
