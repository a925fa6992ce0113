// The request of an order as a JSON object, as it is stored and written.

#pragma once

#include "project/OrderRequest.h"

#include <optional>
#include <string>
#include <string_view>

class QJsonObject;

namespace tarn {

/// The request with the members rolls, selvage, lay, trimAlong, trimAcross, maxParts, minPart,
/// joinRooms, patternAcross, patternAlong, halfDrop, patternDrift, step, seconds. Lengths are whole
/// units; a roll's width is the text that was typed.
QJsonObject OrderRequestObject(const OrderRequest& request);

/// The same as a text in one line.
std::string OrderRequestJson(const OrderRequest& request);

/// The request that such a text holds, in the given units; nothing for a text that is none, or
/// whose request has a fault (see FaultOf). Members that are missing are as DefaultOrderRequest has
/// them.
std::optional<OrderRequest> ReadOrderRequestJson(std::string_view json, Units units);

} // namespace tarn
