#pragma once

#include "engine/reference/PlainSearch.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace tarn::reference {

/// Repeatable choices: the generator is the same everywhere, the standard distributions are not.
class RandomSource {
  public:
    explicit RandomSource(std::uint32_t seed)
        : engine_(seed) {}

    /// A whole number from low to high, both included; low where high is below it.
    int Whole(int low, int high);
    /// True once in n times.
    bool OneIn(int n) { return Whole(1, n) == 1; }
    template <typename T>
    T OneOf(const std::vector<T>& choices) {
        return choices[static_cast<std::size_t>(Whole(0, static_cast<int>(choices.size()) - 1))];
    }

  private:
    std::mt19937 engine_;
};

/// A job that raises no error, always the same for equal seeds. About 1 to 40 pieces, in whole
/// inches, centimetres, hundredths of an inch, remainders of rooms cut on the roll, or cut from one
/// sheet so that they can fit without a gap; every width of the program and odd ones; both lays;
/// all minimum cuts and numbers of parts.
PlainJob RandomJob(std::uint32_t seed);

/// The roll width in inches that "CARPET WIDTH n CMS" stands for.
float MetricRollWidth(int centimetres);
/// Whole centimetres or inches in hundredths of an inch.
float CentimetreUnits(int centimetres);
float InchUnits(int inches);

/// The job as the text of a C++ initialiser, to replay it and to keep it.
std::string Describe(const PlainJob& job);

} // namespace tarn::reference
