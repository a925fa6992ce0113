#pragma once

#include "screens/Dialogs.h"

#include <functional>

namespace tarn {

/// Run `print` while the cursor shows that the program waits. Whatever fails on the way to the
/// paper is told in one message (PrinterNotReadyMessage) with its cause and what helps below it;
/// the cause is written to standard error, too. Answers whether it was printed.
bool Print(Dialogs& boxes, const std::function<void()>& print);

} // namespace tarn
