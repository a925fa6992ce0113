// The sheet of a project's orders on paper.

#pragma once

#include <string>
#include <string_view>

class QPagedPaintDevice;

namespace tarn {

struct OrderDocument;

/// How the sheet is called where print jobs and documents have a title.
std::string OrderTitle(const OrderDocument& document);

/// Paint the pages of the orders (see OrderSheet) on a device whose sheet stands upright. Raises
/// PrinterError when the device cannot be painted on or its sheet is too small.
void PaintOrder(QPagedPaintDevice& device, const OrderDocument& document, std::string_view date);

} // namespace tarn
