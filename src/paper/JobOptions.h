// What a print job is handed in with, from the defaults of its queue and the user's choices.

#pragma once

#include "paper/QueueChoice.h"
#include "paper/QueueMedia.h"

#include <cups/ipp.h>
#include <string>
#include <vector>

namespace tarn {

/// The attributes of a queue that JobOptions and MediaOf look at.
std::vector<std::string> JobDefaults();

/// The options of a job whose pages are to come out as they are: what the user chose for the queue
/// (`chosen`), but for what turns, resizes or mirrors pages or leaves some out, and on that
/// `media`. Where `queue`, the server's description of it, has such a default of its
/// administrator's, there is a value against it, since the server fills in its defaults for what a
/// job leaves open. Only there: not every printer takes every option.
QueueOptions JobOptions(ipp_t* queue, QueueOptions chosen, const QueueMedia& media);

} // namespace tarn
