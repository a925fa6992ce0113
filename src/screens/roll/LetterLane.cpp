#include "screens/roll/LetterLane.h"

#include <algorithm>

namespace tarn {

std::vector<LaneLetter> PlaceInLane(std::vector<LaneLetter> letters, double from, double to) {
    std::stable_sort(letters.begin(), letters.end(),
                     [](const LaneLetter& a, const LaneLetter& b) { return a.At < b.At; });
    double taken = 0;
    const auto full = std::find_if(letters.begin(), letters.end(), [&](const LaneLetter& letter) {
        taken += letter.Extent;
        return taken > to - from;
    });
    letters.erase(full, letters.end());
    double at = from;
    for (LaneLetter& letter : letters) {
        letter.Begin = std::max(at, letter.At - letter.Extent / 2);
        at = letter.Begin + letter.Extent;
    }
    at = to;
    for (auto letter = letters.rbegin(); letter != letters.rend(); ++letter) {
        letter->Begin = std::min(letter->Begin, at - letter->Extent);
        at = letter->Begin;
    }
    return letters;
}

} // namespace tarn
