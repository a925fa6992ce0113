#pragma once

#include "screens/Dialogs.h"

#include <functional>

namespace tarn {

/// Run `print` while the cursor shows that the program waits. Whatever fails on the way to the
/// paper is told in one message (PrinterNotReadyMessage), and its cause written to standard error,
/// for whoever has to find out why. Answers whether it was printed.
bool Printed(Dialogs& boxes, const std::function<void()>& print);

} // namespace tarn
