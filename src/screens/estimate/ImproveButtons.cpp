#include "screens/estimate/ImproveButtons.h"

#include "base/Words.h"
#include "files/QtText.h"
#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Theme.h"

#include <QGridLayout>
#include <QPushButton>

namespace tarn {

namespace {

constexpr auto ImproveCaption = Words("IMPRO&VE");

} // namespace

ImproveButtons::ImproveButtons(QWidget* parent)
    : QWidget(parent)
    , improve_(NewButton(this, Controls::improveFills, ImproveCaption))
    , undo_(NewButton(this, Controls::undoImprovement, Words("&UNDO"))) {
    undo_->setEnabled(false);
    IgnoreSecondClick(*undo_); // which was for IMPROVE, in whose place it stands
    auto* rows = new QGridLayout(this);
    SetSpacing(*rows, 0);
    for (QPushButton* button : {improve_, undo_}) {
        button->setMinimumWidth(Pixels(Metrics::ButtonWidth));
        button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
    }
    rows->addWidget(improve_, 0, 0);
    rows->addWidget(undo_, 1, 0);
    KeepRoom(*undo_);
}

void ImproveButtons::Offer(const std::string& shorter) {
    const std::string caption =
        shorter.empty() ? std::string(ImproveCaption) : Words("IMPRO&VE: %1", Unmarked(shorter));
    if (improve_->accessibleName() == WithoutMark(caption) &&
        undo_->isHidden() != shorter.empty()) {
        return;
    }
    auto& rows = static_cast<QGridLayout&>(*layout());
    const int line = undo_->sizeHint().height(); // of a button of one line
    rows.setRowMinimumHeight(0, line);
    // An offer takes the place of both: the buttons below stay where they are.
    improve_->setMinimumHeight(shorter.empty() ? 0 : 2 * line + rows.verticalSpacing());
    rows.removeWidget(improve_);
    rows.addWidget(improve_, 0, 0, shorter.empty() ? 1 : 2, 1);
    undo_->setVisible(shorter.empty());
    SetCaption(*improve_, caption);
    improve_->setText(improve_->text().replace(QLatin1String(": "), QLatin1String(":\n")));
}

} // namespace tarn
