#include "improve/StartOrders.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace tarn {

namespace {

using Key = std::pair<Area64, Long>;
using KeyOf = Key (*)(const ImproveFill&);

constexpr KeyOf Keys[] = {
    [](const ImproveFill& f) { return Key(static_cast<Area64>(f.Width) * f.Length, 0); },
    [](const ImproveFill& f) { return Key(f.Length, f.Width); },
    [](const ImproveFill& f) { return Key(f.Width, f.Length); },
    [](const ImproveFill& f) { return Key(static_cast<Area64>(f.Width) + f.Length, 0); },
    [](const ImproveFill& f) { return Key(std::max(f.Width, f.Length), 0); },
};

} // namespace

std::vector<std::vector<std::size_t>> StartOrders(const ImproveJob& job) {
    std::vector<std::vector<std::size_t>> orders;
    for (const KeyOf key : Keys) {
        std::vector<std::size_t> order(job.Fills.size());
        std::iota(order.begin(), order.end(), std::size_t{0});
        std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
            return key(job.Fills[a]) > key(job.Fills[b]);
        });
        orders.push_back(std::move(order));
    }
    return orders;
}

} // namespace tarn
