#include "screens/roll/RollPanel.h"

#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/ElidedLabel.h"
#include "screens/Theme.h"
#include "screens/roll/RollList.h"
#include "screens/roll/RollView.h"

#include <QBoxLayout>

#include <utility>

namespace tarn {

namespace {

constexpr int ViewShare = 3; ///< of the panel, beside that of the list
constexpr int ListShare = 1;

} // namespace

RollPanel::RollPanel(QWidget* parent, Dialogs& boxes)
    : QWidget(parent)
    , view_(new RollView(this, boxes))
    , list_(new RollList(this))
    , caption_(new ElidedLabel(this))
    , parts_(new QBoxLayout(QBoxLayout::TopToBottom)) {
    NameControl(*caption_, Controls::rollCaption, {});
    SetRole(*caption_, TextRole::Hint);
    auto* rows = new QVBoxLayout(this);
    SetSpacing(*rows, 0, Metrics::Spacing / 2);
    rows->addWidget(caption_);
    SetSpacing(*parts_, 0);
    parts_->addWidget(view_, ViewShare);
    parts_->addWidget(list_, ListShare);
    rows->addLayout(parts_, 1);
    view_->OnCurrent = [this](auto piece) { list_->SetCurrent(piece); };
    view_->OnPointed = [this](auto piece) { list_->SetPointed(piece); };
    list_->OnCurrent = [this](auto piece) { view_->SetCurrent(piece); };
    list_->OnPointed = [this](auto piece) { view_->SetPointed(piece); };
    setTabOrder(view_, list_);
}

void RollPanel::Show(RollChart chart) {
    SetText(*caption_, chart.Description);
    list_->Show(chart.Lines);
    view_->Show(std::move(chart));
}

void RollPanel::SetListBeside(bool beside) {
    parts_->setDirection(beside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

} // namespace tarn
