// The carpets of a project that can be ordered, and what is asked for of each.

#pragma once

#include "base/Words.h"
#include "project/OrderRequest.h"
#include "project/Project.h"

#include <map>
#include <string_view>
#include <vector>

namespace tarn {

/// The covering codes of the carpets that have a room with an area.
std::vector<Byte> CarpetsToOrder(const Project& project);
/// What to say when there is none.
inline constexpr auto NothingToOrder = Words("No room with an area has a carpet.");

/// What is offered for a carpet of which nothing was asked yet: the standard roll widths of an
/// estimate, both lays, and what is usual else.
OrderRequest OfferedRequest(Units units);

/// A carpet's request to begin with.
struct CarpetRequest {
    OrderRequest Value;
    bool InOtherUnits = false; ///< there is one in other units, which is not used
};

/// The request of `carpet` among `requests`; OfferedRequest without one in these units.
CarpetRequest RequestFor(const std::map<Byte, OrderRequest>& requests, Byte carpet, Units units);

/// Whether two requests ask for the same: a drift that is told may be the usual one.
bool AskForTheSame(const OrderRequest& a, const OrderRequest& b);

/// Take a carpet's changed request into `requests`. One that asks for the same as that with which
/// the stored ones begin (see RequestFor) leaves what is stored, and so nothing to be saved.
void KeepRequest(std::map<Byte, OrderRequest>& requests, const std::map<Byte, OrderRequest>& stored,
                 Byte carpet, const OrderRequest& request);

} // namespace tarn
