#pragma once

#include "print/QueueChoice.h"
#include "print/QueueMedia.h"

#include <string>
#include <vector>

namespace tarn {

/// The attributes of a queue that MediaOf looks at.
std::vector<std::string> JobDefaults();

/// The options of a job whose pages are to come out as they are: what the user chose for the queue
/// (`chosen`), but for what turns, resizes or mirrors pages or leaves some out, and on that
/// `media`.
QueueOptions JobOptions(QueueOptions chosen, const QueueMedia& media);

} // namespace tarn
