#include "improve/CoveringSimplex.h"

#include <algorithm>

namespace tarn {

namespace {

constexpr Double Tolerance = 1e-9;

/// Where the numbers are that are not 0: few, mostly.
std::vector<std::size_t> NotZero(const Double* numbers, std::size_t count) {
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < count; ++i) {
        if (numbers[i] != 0) {
            places.push_back(i);
        }
    }
    return places;
}

} // namespace

CoveringSimplex::CoveringSimplex(const std::vector<Double>& demand,
                                 const std::vector<Double>& copies)
    : rows_(demand.size())
    , inverse_(rows_ * rows_)
    , cost_(rows_, 1) {
    for (std::size_t row = 0; row < rows_; ++row) {
        Inverse(row, row) = 1 / copies[row];
        amount_.push_back(demand[row] / copies[row]);
    }
}

std::vector<Double> CoveringSimplex::Prices() const {
    std::vector<Double> prices(rows_);
    for (std::size_t row = 0; row < rows_; ++row) {
        if (cost_[row] != 0) {
            for (std::size_t column = 0; column < rows_; ++column) {
                prices[column] += cost_[row] * Inverse(row, column);
            }
        }
    }
    return prices;
}

Double CoveringSimplex::Total() const {
    Double total = 0;
    for (std::size_t row = 0; row < rows_; ++row) {
        total += cost_[row] * amount_[row];
    }
    return total;
}

bool CoveringSimplex::RemoveNegativePrices(std::size_t most, const std::function<bool()>& goOn) {
    for (std::size_t tries = 0; tries < most; ++tries) {
        if (!goOn()) {
            return false;
        }
        const std::vector<Double> prices = Prices();
        std::size_t lowest = 0;
        for (std::size_t row = 1; row < rows_; ++row) {
            lowest = prices[row] < prices[lowest] ? row : lowest;
        }
        if (prices[lowest] >= -Tolerance) {
            return true;
        }
        // The surplus of that row enters: what is laid beyond the demand costs nothing.
        std::vector<Double> surplus(rows_);
        surplus[lowest] = -1;
        if (!EnterColumn(surplus, 0)) {
            return true;
        }
    }
    return true;
}

bool CoveringSimplex::Enter(const std::vector<Double>& column) {
    return EnterColumn(column, 1);
}

bool CoveringSimplex::EnterColumn(const std::vector<Double>& column, Double cost) {
    std::vector<Double> change(rows_);
    const std::vector<std::size_t> held = NotZero(column.data(), rows_);
    for (std::size_t row = 0; row < rows_; ++row) {
        for (const std::size_t k : held) {
            change[row] += Inverse(row, k) * column[k];
        }
    }
    std::size_t leaving = rows_;
    for (std::size_t row = 0; row < rows_; ++row) {
        if (change[row] > Tolerance &&
            (leaving == rows_ || amount_[row] * change[leaving] < amount_[leaving] * change[row])) {
            leaving = row;
        }
    }
    if (leaving == rows_) {
        return false;
    }
    const Double pivot = change[leaving];
    for (std::size_t k = 0; k < rows_; ++k) {
        Inverse(leaving, k) /= pivot;
    }
    amount_[leaving] /= pivot;
    const std::vector<std::size_t> pivots = NotZero(&Inverse(leaving, 0), rows_);
    for (std::size_t row = 0; row < rows_; ++row) {
        if (row == leaving || change[row] == 0) {
            continue;
        }
        for (const std::size_t k : pivots) {
            Inverse(row, k) -= change[row] * Inverse(leaving, k);
        }
        amount_[row] = std::max(0.0, amount_[row] - change[row] * amount_[leaving]);
    }
    cost_[leaving] = cost;
    return true;
}

} // namespace tarn
