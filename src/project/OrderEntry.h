// From an order's choices, as they are typed into options and fields, to a request, and back.

#pragma once

#include "project/OrderRequest.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tarn {

/// What a text says, or why it is not taken: what stands behind the name of its field, "write the
/// length as 12ft".
template <class Value>
struct Reading {
    std::optional<Value> Read;
    std::string Reason; ///< empty when it was read
};

/// A length such as the width of a roll, see ReadOrderLength.
Reading<Double> ReadLength(std::string_view text, Units units);
/// A selvage, trim, shortest part or step, see RaisedToWhole.
Reading<Long> ReadRaisedLength(std::string_view text, Units units);
/// A price: a number of 0 or more, with a point as decimal sign whatever the locale.
Reading<Double> ReadPrice(std::string_view text);

/// A roll as it stands in fields.
struct TypedRoll {
    std::string Width;
    std::string Name;
    std::string Price;

    bool operator==(const TypedRoll&) const = default;
};

/// What is chosen for an order, as it stands in fields. An empty text is what is usual.
struct TypedOrder {
    Units In = Units::Imperial;
    std::vector<TypedRoll> Rolls; ///< those that are empty do not count
    bool DownLay = true;
    bool CrossLay = false;
    std::string Selvage;
    std::string TrimAlong;
    std::string TrimAcross;
    Long MostParts = 1;
    std::string ShortestPart;
    bool JoinRooms = false;
    std::string PatternAcross;
    std::string PatternAlong;
    bool HalfDrop = false;
    std::string PatternDrift;
    std::string Step;
    std::string Seconds;

    bool operator==(const TypedOrder&) const = default;
};

/// A request as it is shown in fields. Its drift is left empty where it is the usual one, so that
/// it goes with the pattern.
TypedOrder TypedOf(const OrderRequest& request);

/// What stands for a text that is empty: the usual selvage, trim, parts, step and seconds. For the
/// drift see UsualDriftText.
TypedOrder UsualTexts(Units units);

/// The drift that is usual with the pattern along that is typed: what stands for an empty text of
/// it. As without a pattern where that cannot be read.
std::string UsualDriftText(const TypedOrder& typed);

/// Whether a pattern is typed: a repeat that is not 0, also one that cannot be read, or a half
/// drop.
bool HasPattern(const TypedOrder& typed);

/// The request that the texts make, its drift told in any case; or the first fault, whose Roll is a
/// number in `typed`.
std::variant<OrderRequest, OrderRequestFault> RequestOf(const TypedOrder& typed);

} // namespace tarn
