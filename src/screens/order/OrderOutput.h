// The order on paper and in files: what the order screen's PRINT and SAVE AS do.

#pragma once

#include "base/Words.h"
#include "files/OrderDocument.h"
#include "screens/Session.h"

#include <array>
#include <string>

namespace tarn {

/// A kind of file that an order is saved as.
struct OrderFile {
    Phrase Caption; ///< with its mnemonic
    const char* Suffix;
    /// The whole content. May raise.
    std::string (*ContentOf)(const Session& session, const OrderDocument& document);
};

/// In the order in which they are offered.
const std::array<OrderFile, 7>& OrderFiles();

/// A document of one order of the open project.
OrderDocument DocumentOf(const Session& session, Order order);

/// Print the sheet to buy and cut by of what `screen` shows (see PrintQueue).
void PrintOrder(Session& session, QObject& screen, const OrderDocument& document);

/// Ask for a file and save the order there; nothing when that was cancelled. Raises
/// OutputFileError, which names the file.
void SaveOrderAs(const Session& session, const OrderDocument& document, const OrderFile& file);

} // namespace tarn
