#include "improve/LengthMeasures.h"

#include <algorithm>
#include <set>

namespace tarn {

namespace {

/// Collects measures without those that are the same for every fill.
class Collection {
  public:
    explicit Collection(const ImproveJob& job)
        : job_(job) {}

    template <typename Of>
    void Add(Area64 roof, Of of) {
        LengthMeasure measure;
        measure.Roof = roof;
        measure.Spare = roof * job_.Width;
        for (const ImproveFill& fill : job_.Fills) {
            measure.Of.push_back(of(static_cast<Area64>(fill.Length)));
            measure.Spare -= measure.Of.back() * fill.Width;
        }
        const auto same = [&](const LengthMeasure& other) {
            return other.Roof == measure.Roof && other.Of == measure.Of;
        };
        if (std::none_of(measures_.begin(), measures_.end(), same)) {
            measures_.push_back(std::move(measure));
        }
    }

    /// The first, and of the others those with the least share to spare.
    std::vector<LengthMeasure> Best(std::size_t most) && {
        const auto share = [](const LengthMeasure& measure) {
            return static_cast<Double>(measure.Spare) / static_cast<Double>(measure.Roof);
        };
        std::stable_sort(
            measures_.begin() + 1, measures_.end(),
            [&](const LengthMeasure& a, const LengthMeasure& b) { return share(a) < share(b); });
        measures_.resize(std::min(measures_.size(), most));
        return std::move(measures_);
    }

  private:
    const ImproveJob& job_;
    std::vector<LengthMeasure> measures_;
};

/// Lengths from which on, or above the rest of which, a function may count differently.
std::set<Long> Thresholds(const ImproveJob& job, Long roof) {
    std::set<Long> thresholds;
    for (const ImproveFill& fill : job.Fills) {
        for (const Long length : {fill.Length, roof - fill.Length + 1}) {
            if (length > 0 && 2 * static_cast<Area64>(length) <= roof) {
                thresholds.insert(length);
            }
        }
    }
    return thresholds;
}

} // namespace

std::vector<LengthMeasure> LengthMeasures(const ImproveJob& job, Long roof, std::size_t most) {
    constexpr Area64 MostSteps = 20;
    const Area64 whole = roof;
    Collection collection(job);
    collection.Add(whole, [](Area64 length) { return length; });
    for (const Area64 least : Thresholds(job, roof)) {
        // What leaves less than the threshold counts as the roof, what is shorter not at all.
        collection.Add(whole, [&](Area64 length) {
            return length > whole - least ? whole : (length < least ? 0 : length);
        });
        // How many thresholds fit into a length, or how many no longer fit beside it.
        const Area64 fit = whole / least;
        collection.Add(2 * fit, [&](Area64 length) {
            if (2 * length == whole) {
                return fit;
            }
            return 2 * (2 * length < whole ? length / least : fit - (whole - length) / least);
        });
    }
    for (Area64 k = 1; k <= MostSteps; ++k) {
        collection.Add(k * whole, [&](Area64 length) {
            const Area64 scaled = (k + 1) * length;
            return scaled % whole == 0 ? k * length : scaled / whole * whole;
        });
    }
    return std::move(collection).Best(most);
}

} // namespace tarn
