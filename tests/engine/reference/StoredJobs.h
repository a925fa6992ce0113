#pragma once

#include "engine/reference/PlainSearch.h"

#include <string>
#include <vector>

/// Jobs made by hand, for the reference and the real engine alike.
namespace tarn::reference {

/// A divisible piece by its extents in inches; its edges start at 0.
struct Extent {
    int across, along;
};
PlainJob DownLayJob(float rollWidth, int mostParts, const std::vector<Extent>& extents,
                    int minCut = 300);

/// A job that once showed, or could show, a wrong layout.
struct StoredJob {
    std::string name;
    PlainJob job;
};
std::vector<StoredJob> StoredJobs();
/// The stored job of that name; raises std::out_of_range for one that is not there.
PlainJob Stored(const std::string& name);

/// A job that must end in the run-time error of that number.
struct FailingJob {
    std::string name;
    PlainJob job;
    int error;
};
std::vector<FailingJob> FailingJobs();

} // namespace tarn::reference
