#include "screens/roll/Tints.h"

#include <algorithm>

namespace tarn {

const std::array<Tint, TintCount>& Tints() {
    static const std::array<Tint, TintCount> tints{{{0xF1E997, 0x135A56},
                                                    {0x8CACF4, 0x33215A},
                                                    {0xD8FFC8, 0x425510},
                                                    {0xF69493, 0x644734},
                                                    {0xAFEDFF, 0x5E4676},
                                                    {0xC2AB60, 0x1A3547},
                                                    {0x6AE4C7, 0x461E01},
                                                    {0xA7AACF, 0x3B2925}}};
    return tints;
}

void GiveTints(std::vector<ChartPiece>& pieces, const std::vector<std::size_t>& rooms) {
    std::vector<std::size_t> each = rooms;
    std::sort(each.begin(), each.end());
    each.erase(std::unique(each.begin(), each.end()), each.end());
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const auto room = std::lower_bound(each.begin(), each.end(), rooms[i]);
        pieces[i].Tint = static_cast<std::size_t>(room - each.begin()) % TintCount;
    }
}

} // namespace tarn
