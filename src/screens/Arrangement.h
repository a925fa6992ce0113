#pragma once

// How controls stand to each other on a panel.

#include "screens/Theme.h"

#include <vector>

class QLayout;
class QWidget;

namespace tarn {

/// Give a layout one margin on all sides, and the spacing between what is in it; twips.
void SetSpacing(QLayout& layout, double margin, double spacing = Metrics::Spacing);

/// Keep a control as wide as `twips` at the usual size of text, and wider as the text grows.
void KeepTextWidth(QWidget& control, double twips);

/// Keep a control's room free while it is hidden, so that nothing jumps.
void KeepRoom(QWidget& control);

/// Have the Tab key go from each of these controls to the next.
void SetTabOrders(const std::vector<QWidget*>& controls);

} // namespace tarn
