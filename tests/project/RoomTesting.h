#pragma once

#include <random>
#include <string>

namespace tarn::testing {

/// A whole number 0 .. `bound` - 1, the same for equal seeds with every standard library.
inline int Below(std::mt19937& random, int bound) {
    return static_cast<int>(random() % static_cast<unsigned>(bound));
}

/// Up to `most` characters of several scripts, with everything that a CSV file treats specially.
std::string RandomText(std::mt19937& random, int most);

} // namespace tarn::testing
