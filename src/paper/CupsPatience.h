#pragma once

#include <chrono>

namespace tarn {

/// How long the printing system may take.
struct CupsPatience {
    /// For all connections and answers of one use of a queue together, and for each piece of a
    /// document to be taken; half of it again for what tidies up after a failed job.
    std::chrono::milliseconds Answers{5000};
    /// For the document of one job.
    std::chrono::milliseconds Upload{20000};
};

} // namespace tarn
