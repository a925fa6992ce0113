#pragma once

#include <functional>

class QObject;

namespace tarn {

/// Run `action` when no message, question or input box is up: now, or once the last one was closed
/// and what it was shown by has gone on; nothing that works beside the screens changes them behind
/// a box. Not at all when `context` is gone by then. `action` must raise nothing.
void AfterBoxes(QObject& context, std::function<void()> action);

} // namespace tarn
