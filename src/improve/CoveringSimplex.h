#pragma once

#include "base/Types.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace tarn {

/// A linear program over columns that come one by one: the least sum of x over columns with
/// sum (column × x) at least the demand in every row, x of 0 and more. Revised simplex with the
/// inverse of the basis, in Double.
class CoveringSimplex {
  public:
    /// Begins with the basis of one column for each row that holds `copies` (1 or more) in it.
    CoveringSimplex(const std::vector<Double>& demand, const std::vector<Double>& copies);

    /// The prices of the rows in the basis.
    std::vector<Double> Prices() const;
    /// The sum of x in the basis: the least there is over the columns so far, once no price is
    /// negative and none of them is worth more than its cost.
    Double Total() const;
    /// Bring rows with a negative price to 0, as long as that goes on, up to `most` times. `goOn`
    /// is asked before each of them; false when it said no.
    bool RemoveNegativePrices(std::size_t most, const std::function<bool()>& goOn);
    /// Take a column of cost 1 into the basis. False when it cannot be.
    bool Enter(const std::vector<Double>& column);

  private:
    bool EnterColumn(const std::vector<Double>& column, Double cost);
    Double& Inverse(std::size_t row, std::size_t column) { return inverse_[row * rows_ + column]; }
    Double Inverse(std::size_t row, std::size_t column) const {
        return inverse_[row * rows_ + column];
    }

    std::size_t rows_;
    std::vector<Double> inverse_;
    std::vector<Double> amount_; ///< of the basis' columns
    std::vector<Double> cost_;
};

} // namespace tarn
