#include "order/CarpetRequests.h"

#include "base/Words.h"
#include "estimate/RollWidth.h"
#include "project/Coverings.h"
#include "project/OrderLengths.h"

#include <algorithm>
#include <string>

namespace tarn {

namespace {

bool HasArea(const Room& room) {
    return room.Width > 0 && room.Length > 0;
}

/// The roll of a caption such as CARPET WIDTH 13.5 FT.
RollChoice StandardRoll(std::string_view caption, Units units) {
    RollChoice roll;
    roll.AsTyped = std::string(CaptionNumber(caption)) + (units == Units::Metric ? "cm" : "ft");
    roll.Width = ReadOrderLength(roll.AsTyped, units).value_or(0);
    return roll;
}

} // namespace

std::vector<Byte> CarpetsToOrder(const Project& project) {
    std::vector<Byte> carpets;
    for (Byte carpet = 0; carpet < FirstTileCode; ++carpet) {
        if (std::any_of(project.Rooms.begin(), project.Rooms.end(), [&](const Room& room) {
                return room.Covering == carpet && HasArea(room);
            })) {
            carpets.push_back(carpet);
        }
    }
    return carpets;
}

OrderRequest OfferedRequest(Units units) {
    OrderRequest request = DefaultOrderRequest(units);
    for (const Phrase& caption : WidthCaptions(units)) {
        request.Rolls.push_back(StandardRoll(caption.English(), units));
    }
    request.Lays = {Lay::Down, Lay::Cross};
    return request;
}

CarpetRequest RequestFor(const std::map<Byte, OrderRequest>& requests, Byte carpet, Units units) {
    const auto found = requests.find(carpet);
    if (found == requests.end()) {
        return {OfferedRequest(units), false};
    }
    const bool isUsed = found->second.In == units;
    return {isUsed ? found->second : OfferedRequest(units), !isUsed};
}

bool AskForTheSame(const OrderRequest& a, const OrderRequest& b) {
    OrderRequest other = b;
    other.PatternDrift = a.PatternDrift;
    return a == other && DriftOf(a) == DriftOf(b);
}

void KeepRequest(std::map<Byte, OrderRequest>& requests, const std::map<Byte, OrderRequest>& stored,
                 Byte carpet, const OrderRequest& request) {
    if (!AskForTheSame(request, RequestFor(stored, carpet, request.In).Value)) {
        requests.insert_or_assign(carpet, request);
    } else if (const auto kept = stored.find(carpet); kept != stored.end()) {
        requests.insert_or_assign(carpet, kept->second);
    } else {
        requests.erase(carpet);
    }
}

} // namespace tarn
