// Public strip-packing instances as files.

#pragma once

#include "improve/ImproveJob.h"

#include <string>
#include <vector>

namespace tarn {

/// An instance of a public strip-packing set, without rotation.
struct PackingInstance {
    std::string Set;
    std::string Name;
    Long Best = 0; ///< the least length, known by construction
    ImproveJob Job;
};

/// The instances that FOLDER/index.csv lists (set,name,W,n,lower_bound,best,kind), each from
/// FOLDER/set/name.txt: the strip's width and the number of pieces, then width and length of each.
/// Raises std::runtime_error, naming the file, when one cannot be read.
std::vector<PackingInstance> ReadPackingInstances(const std::string& folder);

} // namespace tarn
