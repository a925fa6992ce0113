#include "screens/roll/RollPanel.h"

#include "screens/Arrangement.h"
#include "screens/roll/RollList.h"
#include "screens/roll/RollView.h"

#include <QBoxLayout>

#include <utility>

namespace tarn {

namespace {

constexpr int ViewShare = 2; ///< of the panel, above the list
constexpr int ListShare = 1;
constexpr double MostOfList = 0.45; ///< of the width, beside the view

} // namespace

RollPanel::RollPanel(QWidget* parent, Dialogs& boxes)
    : QWidget(parent)
    , view_(new RollView(this, boxes))
    , list_(new RollList(this))
    , parts_(new QBoxLayout(QBoxLayout::TopToBottom, this)) {
    SetSpacing(*parts_, 0);
    parts_->addWidget(view_);
    parts_->addWidget(list_);
    SetListBeside(false);
    view_->OnCurrent = [this](auto piece) { list_->SetCurrent(piece); };
    view_->OnPointed = [this](auto piece) { list_->SetPointed(piece); };
    list_->OnCurrent = [this](auto piece) { view_->SetCurrent(piece); };
    list_->OnPointed = [this](auto piece) { view_->SetPointed(piece); };
    setTabOrder(view_, list_);
}

void RollPanel::Show(RollChart chart) {
    list_->Show(chart.Lines);
    view_->Show(std::move(chart));
}

void RollPanel::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    list_->SetMostWidth(static_cast<int>(width() * MostOfList));
}

/// Beside the view the list is as wide as its lines are.
void RollPanel::SetListBeside(bool beside) {
    parts_->setDirection(beside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    parts_->setStretch(0, ViewShare);
    parts_->setStretch(1, beside ? 0 : ListShare);
}

} // namespace tarn
