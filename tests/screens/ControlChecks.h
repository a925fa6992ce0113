#pragma once

#include <QWidget>

#include <cstddef>
#include <string>

namespace tarn::testing {

/// Expects that no two named controls of a screen, hidden or not, have one name, and that it has
/// that many mnemonics, each letter once.
void ExpectNamesAndMnemonicsOnce(const QWidget& screen, std::size_t mnemonics);

/// Expects that each mnemonic of a screen, hidden controls included, is one control's.
void ExpectMnemonicsOnce(const QWidget& screen, const std::string& where);

} // namespace tarn::testing
