#pragma once

#include "paper/Paper.h"
#include "paper/QueueChoice.h"

#include <cups/ipp.h>
#include <string>

namespace tarn {

/// The paper that a queue takes for a job, and how to ask for it.
struct QueueMedia {
    Paper Sheet;       ///< with its margins, landscape; A4 when no size is known
    std::string Media; ///< the value of the job's option "media"; empty to leave it to the queue
    std::string Size;  ///< the same size as drivers call it; empty when they do not
};

/// The paper that the user chose (`chosen`), else the queue's own. `queue` is the server's
/// description of the queue with its media-default, media-col-database, PageSize-default and
/// PageRegion-default, as far as it has them.
QueueMedia MediaOf(ipp_t* queue, const QueueOptions& chosen);

} // namespace tarn
