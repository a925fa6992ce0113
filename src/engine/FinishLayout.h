#pragma once

#include "engine/Search.h"

namespace tarn {

/// What follows when every piece of a job has its place: the layout is checked (CheckLayout) and
/// cleaned up, and its pieces come into the order of their creation and the job's orientation.
/// `layout` is in the order of placing; its pieces lie along Y. Sets the result's Layout and
/// Length. Raises as CheckLayout and ResultLength.
void FinishLayout(std::vector<Placed> layout, const SearchJob& job, SearchResult& result);

} // namespace tarn
