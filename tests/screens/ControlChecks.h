#pragma once

#include <QWidget>

#include <cstddef>

namespace tarn::testing {

/// Expects that no two named controls of a screen, hidden or not, have one name, and that it has
/// that many mnemonics, each letter once.
void ExpectNamesAndMnemonicsOnce(const QWidget& screen, std::size_t mnemonics);

} // namespace tarn::testing
