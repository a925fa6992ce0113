#include "screens/estimate/EstimateHistory.h"

#include <utility>

namespace tarn {

namespace {

/// Take the last of `from` and put `now` on top of `to` in its stead.
std::optional<ShownEstimate> Exchanged(std::vector<ShownEstimate>& from,
                                       std::vector<ShownEstimate>& to, ShownEstimate now) {
    if (from.empty()) {
        return std::nullopt;
    }
    to.push_back(std::move(now));
    ShownEstimate last = std::move(from.back());
    from.pop_back();
    return last;
}

} // namespace

void EstimateHistory::Add(ShownEstimate before) {
    before_.push_back(std::move(before));
    after_.clear();
}

void EstimateHistory::Clear() {
    before_.clear();
    after_.clear();
}

std::optional<ShownEstimate> EstimateHistory::Undo(ShownEstimate now) {
    return Exchanged(before_, after_, std::move(now));
}

std::optional<ShownEstimate> EstimateHistory::Redo(ShownEstimate now) {
    return Exchanged(after_, before_, std::move(now));
}

} // namespace tarn
