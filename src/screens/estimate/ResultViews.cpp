#include "screens/estimate/ResultViews.h"

#include "screens/Arrangement.h"
#include "screens/Display.h"
#include "screens/Theme.h"
#include "screens/estimate/PictureBox.h"
#include "screens/roll/RollPanel.h"
#include "screens/roll/RollView.h"

#include <QHBoxLayout>

#include <utility>

namespace tarn {

namespace {

constexpr double WideWindow = 16500;     ///< twips; with larger text more
constexpr double VeryWideWindow = 24000; ///< and for the list beside the roll
constexpr double LeastPictureWidth = 4500;
constexpr double LeastPictureHeight = 3000;
constexpr double LeastPictureBeside = 8640; ///< the drawing's width where it is just readable
constexpr int PictureShare = 5;
constexpr int RollShare = 4;
constexpr int WideRollShare = 6;

void SetKeepsRoom(QWidget& widget, bool keeps) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(keeps);
    widget.setSizePolicy(policy);
}

} // namespace

ResultViews::ResultViews(QWidget& body, Session& session)
    : session_(session)
    , body_(body)
    , picture_(new PictureBox(&body, session.Boxes))
    , roll_(new RollPanel(&body, session.Boxes))
    , columns_(new QHBoxLayout)
    , prefersRoll_(session.Kept.IsOn(Preference::WholeRoll)) {
    picture_->setMinimumSize(Pixels(LeastPictureWidth), Pixels(LeastPictureHeight));
    SetSpacing(*columns_, 0, Metrics::Margin);
    columns_->addWidget(picture_, PictureShare);
    columns_->addWidget(roll_, RollShare);
    roll_->hide();
}

void ResultViews::ShowRoll(RollChart chart) {
    hasRoll_ = !chart.Pieces.empty();
    roll_->Show(std::move(chart));
    Arrange();
}

bool ResultViews::IsWide() const {
    return body_.window()->width() >= TextPixels(WideWindow);
}

bool ResultViews::MaySwitch() const {
    return hasRoll_ && !IsWide();
}

bool ResultViews::ShowsRollAlone() const {
    return MaySwitch() && prefersRoll_;
}

void ResultViews::Switch() {
    if (MaySwitch()) {
        prefersRoll_ = !prefersRoll_;
        session_.Kept.Set(Preference::WholeRoll, prefersRoll_);
        Arrange();
    }
}

void ResultViews::ShowPicture() {
    if (ShowsRollAlone()) {
        prefersRoll_ = false;
        Arrange();
    }
}

QWidget* ResultViews::InFront() {
    if (ShowsRollAlone()) {
        return &roll_->View();
    }
    return picture_->isHidden() ? nullptr : picture_;
}

void ResultViews::Arrange() {
    const bool wide = IsWide();
    const bool veryWide = body_.window()->width() >= TextPixels(VeryWideWindow);
    picture_->setMinimumWidth(Pixels(wide ? LeastPictureBeside : LeastPictureWidth));
    SetKeepsRoom(*roll_, wide);
    roll_->SetListBeside(veryWide || !wide);
    columns_->setStretch(1, veryWide ? WideRollShare : RollShare);
    const bool rollAlone = ShowsRollAlone();
    SetKeepsRoom(*picture_, !rollAlone);
    picture_->setVisible(picture_->Shown().Visible && !rollAlone);
    roll_->setVisible(hasRoll_ && (wide || rollAlone));
    OnArranged();
}

} // namespace tarn
