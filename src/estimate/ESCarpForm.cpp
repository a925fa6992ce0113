#include "estimate/ESCarpForm.h"

#include "app/Arrangement.h"
#include "app/Controls.h"
#include "app/Display.h"
#include "app/ElidedLabel.h"
#include "app/QtText.h"
#include "app/Theme.h"
#include "estimate/ImprovePanel.h"
#include "estimate/LayoutDrawing.h"
#include "estimate/RunEstimate.h"
#include "rooms/RoomExtents.h"

#include <QAction>
#include <QEvent>
#include <QMenu>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <utility>

namespace tarn {

namespace {

constexpr const char* NoDataMessage = "There is not data in the database";
constexpr const char* EstimateFailure = "The estimate could not be made.";
constexpr const char* DrawingFailure = "The layout could not be drawn.";
constexpr const char* PasteHint =
    "Then click where the cut list is to stand, or press Enter for the top left of the view.";
constexpr const char* LeaveFailure = "The screen could not be closed.";

constexpr double LeastPictureWidth = 4500; ///< twips
constexpr double LeastPictureHeight = 3000;

ElidedLabel* NewElidedLabel(QWidget* parent, const char* name, const QString& text, TextRole role) {
    auto* label = new ElidedLabel(parent);
    label->setText(text);
    NameControl(*label, QString::fromLatin1(name), text);
    SetRole(*label, role);
    return label;
}

} // namespace

ESCarpForm::ESCarpForm(Session& session, bool fromMenu)
    : Screen(session, QStringLiteral("ESCarpForm"))
    , FromMenu(fromMenu) {
    EmptyEstimate(State(), Shared().Engine, estimate_);
    BuildAllRoomExtents(State());
    Build();
    Connect();
    const CarpetsFound carpets = FindCarpets(State());
    panel_->LoadCData(carpets);
    panel_->ChooseDefaultWidth();
    panel_->setVisible(carpets.Lowest.has_value());
    if (!carpets.Lowest) {
        // When this screen is in front: the box is about it.
        Later([this] { TellNoData(); });
    }
}

void ESCarpForm::TellNoData() {
    Shared().Boxes.Message(NoDataMessage);
    buttons_[Back]->setEnabled(true);
    buttons_[Back]->setFocus();
}

void ESCarpForm::Build() {
    const QString name = ToQt(State().CurProjName);
    setWindowTitle(QStringLiteral("ESTIMATE FOR PROJECT: ") + name);
    auto* rows = new QVBoxLayout(&Body());
    SetSpacing(*rows, Metrics::Margin);
    rows->addWidget(NewElidedLabel(&Body(), "FTitle", windowTitle(), TextRole::FormTitle));

    picture_ = new PictureBox(&Body(), Shared().Boxes);
    picture_->setMinimumSize(Pixels(LeastPictureWidth), Pixels(LeastPictureHeight));
    BuildPictureMenu();
    auto* columns = new QHBoxLayout;
    columns->setSpacing(Pixels(Metrics::Margin));
    columns->addWidget(picture_, 1);
    columns->addLayout(BuildButtons());
    rows->addLayout(columns, 1);

    auto* status = new QHBoxLayout;
    status->setSpacing(Pixels(Metrics::Margin));
    status->addWidget(
        NewElidedLabel(&Body(), "Label2", QStringLiteral("PROJ: ") + name, TextRole::Label), 1);
    zoomHint_ = NewLabel(&Body(), QStringLiteral("Label5"), FromQt(PictureBox::ZoomHint()));
    SetRole(*zoomHint_, TextRole::Hint);
    status->addWidget(zoomHint_);
    OfferDrawing();
    rows->addLayout(status);

    panel_ = new ChoicePanel(&Body(), Shared().Boxes, State().IsMetric());
    panel_->raise();
    improvePanel_ = new ImprovePanel(&Body(), State().IsMetric());
    Body().installEventFilter(this);
    panel_->installEventFilter(this);
    SetTabOrders({&panel_->CancelButton(), buttons_[Estimate], buttons_[Improve],
                  buttons_[PasteCut], buttons_[Redraw], buttons_[Print], buttons_[Save],
                  buttons_[Back], picture_});
}

QVBoxLayout* ESCarpForm::BuildButtons() {
    buttons_[Back] = NewButton(&Body(), QStringLiteral("Command2"), "BACK", 'B');
    buttons_[Estimate] = NewButton(&Body(), QStringLiteral("Command3"), "ESTIMATE", 'E');
    buttons_[PasteCut] = NewButton(&Body(), QStringLiteral("Command4"), "PASTE CUTS", 'P');
    buttons_[Print] = NewButton(&Body(), QStringLiteral("Command5"), "PRINT", 'I');
    buttons_[Save] = NewButton(&Body(), QStringLiteral("Command6"), "SAVE", 'S');
    buttons_[Redraw] = NewButton(&Body(), QStringLiteral("Command7"), "REDRAW", 'R');
    buttons_[Improve] = NewButton(&Body(), QStringLiteral("Command8"), "IMPROVE", 'V');
    SetPrimary(*buttons_[Estimate]);
    buttons_[PasteCut]->setToolTip(QString::fromLatin1(PasteHint));
    auto* column = new QVBoxLayout;
    column->setSpacing(Pixels(Metrics::Spacing));
    for (const ButtonIndex index : {Estimate, Improve, PasteCut, Redraw, Print, Save, Back}) {
        if (index == Back) {
            column->addStretch();
        }
        buttons_[index]->setMinimumWidth(Pixels(Metrics::ButtonWidth));
        buttons_[index]->setEnabled(false);
        column->addWidget(buttons_[index]);
    }
    return column;
}

void ESCarpForm::Connect() {
    OnClick(panel_->OkButton(), EstimateFailure, [this] { TakeOk(); });
    OnClick(panel_->CancelButton(), EstimateFailure, [this] {
        EnableButtons();
        ClosePanel();
    });
    OnClick(*buttons_[Estimate], EstimateFailure, [this] { OpenPanel(); });
    OnClick(*buttons_[PasteCut], DrawingFailure, [this] { SetPasteCuts(true); });
    OnClick(*buttons_[Redraw], DrawingFailure, [this] { RedrawLayout(); });
    OnClick(*buttons_[Improve], DrawingFailure, [this] { ImproveLayout(); });
    OnClick(*buttons_[Print], {}, [this] { PrintPic(); });
    IgnoreSecondClick(*buttons_[Print]);
    OnClick(*buttons_[Save], std::string(NotSavedMessage), [this] { SaveRooms(); });
    OnClick(*buttons_[Back], LeaveFailure, [this] { Leave(); });
    picture_->MouseDown = [this](Double x, Double y) { return PictureMouseDown(x, y); };
}

QWidget* ESCarpForm::FirstFocus() {
    return panel_->isHidden() ? buttons_[Back] : &panel_->FirstFocus();
}

void ESCarpForm::OnUncover() {
    if (panel_->isHidden()) {
        FocusResult();
    }
}

bool ESCarpForm::eventFilter(QObject* watched, QEvent* event) {
    const bool resized = event->type() == QEvent::Resize && watched == &Body();
    if (resized || event->type() == QEvent::LayoutRequest ||
        event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) {
        Guard(DrawingFailure, [this] { PlacePanel(); });
    }
    return Screen::eventFilter(watched, event);
}

/// The panel floats over the middle of the screen, which scrolls where the open panel does not fit.
void ESCarpForm::PlacePanel() {
    const QSize improveSize = improvePanel_->sizeHint().expandedTo(improvePanel_->minimumSize());
    improvePanel_->setGeometry(
        QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, improveSize, Body().rect()));
    if (panel_->isHidden()) {
        Body().setMinimumSize(0, 0);
        return;
    }
    const QSize size = panel_->sizeHint();
    const int margins = 2 * Pixels(Metrics::Margin);
    const QSize least = size + QSize(margins, margins);
    Body().setMinimumSize(least.expandedTo(Body().layout()->minimumSize()));
    const QSize left = Body().size() - size;
    panel_->setGeometry(QRect(QPoint(left.width() / 2, left.height() / 2), size));
}

void ESCarpForm::OpenPanel() {
    panel_->show();
    panel_->raise();
    panel_->FocusCarpet();
}

void ESCarpForm::ClosePanel() {
    panel_->hide();
    FocusResult();
}

void ESCarpForm::EnableButtons() {
    for (QPushButton* button : buttons_) {
        button->setEnabled(true);
    }
    EnableImprove();
}

void ESCarpForm::FocusResult() {
    if (picture_->isHidden()) {
        buttons_[Estimate]->setFocus();
    } else {
        picture_->setFocus();
    }
}

void ESCarpForm::Empty() {
    EmptyEstimate(State(), Shared().Engine, estimate_);
    picture_->Drawing().Cls();
    picture_->ShowFromStart();
    OfferDrawing();
}

/// Every change is drawn into a copy first: a failure leaves the picture as it was.
void ESCarpForm::ShowDrawing(Picture drawing, bool fromStart) {
    picture_->Drawing() = std::move(drawing);
    if (fromStart) {
        picture_->ShowFromStart();
    } else {
        picture_->ShowChanged();
    }
    OfferDrawing();
}

void ESCarpForm::OfferDrawing() {
    const bool drawn = !picture_->Drawing().Steps().empty();
    zoomHint_->setVisible(drawn);
    EnableImprove();
    for (QAction* action : pictureMenu_->actions()) {
        action->setEnabled(drawn);
    }
}

void ESCarpForm::TakeOk() {
    EnableButtons();
    const auto refusal =
        TakeChoices(Shared().Engine, estimate_, panel_->Choices(), State().IsMetric());
    if (refusal) {
        Shared().Boxes.Message(std::string(RefusalMessage(*refusal)));
        panel_->FocusRefused(*refusal);
        return;
    }
    try {
        MakeEstimate();
    } catch (const std::exception&) {
        Empty();
        throw;
    }
    ClosePanel();
}

void ESCarpForm::MakeEstimate() {
    Empty();
    switch (CutRooms(State(), Shared().Engine, estimate_)) {
    case ConvertResult::Fills:
        Shared().Go.ShowOptions(*this);
        break;
    case ConvertResult::CutsOnly:
        LayoutReady();
        break;
    case ConvertResult::Nothing:
        break;
    }
}

void ESCarpForm::LayoutReady() {
    Picture drawing = picture_->Drawing();
    RedrawPC(drawing, State(), Shared().Engine, estimate_);
    ShowECutsInfo(drawing, State(), Shared().Engine, estimate_, CutListX, CutListY);
    ShowDrawing(std::move(drawing), true);
}

void ESCarpForm::NoLayout() {
    Empty();
}

void ESCarpForm::RedrawLayout() {
    const bool fromStart = picture_->Drawing().Steps().empty();
    Picture drawing = picture_->Drawing();
    RedrawPC(drawing, State(), Shared().Engine, estimate_);
    ShowDrawing(std::move(drawing), fromStart);
}

void ESCarpForm::SetPasteCuts(bool paste) {
    PasteCuts = paste;
    picture_->SetWaiting(paste);
    if (paste && !picture_->isHidden()) {
        picture_->setFocus();
    }
}

bool ESCarpForm::PictureMouseDown(Double x, Double y) {
    if (!PasteCuts) {
        return false;
    }
    Guard(DrawingFailure, [&] {
        Picture drawing = picture_->Drawing();
        ShowECutsInfo(drawing, State(), Shared().Engine, estimate_, x, y);
        ShowDrawing(std::move(drawing), false);
        SetPasteCuts(false);
    });
    return true;
}

void ESCarpForm::SaveRooms() {
    if (!SaveOpenProject(State(), Shared().Project)) {
        throw DatabaseError(State().DatabaseFailure);
    }
    Shared().Boxes.Message(std::string(SavedMessage));
}

/// Loading the menu sets the unit to feet and inches; when that fails this screen goes on in its
/// own.
void ESCarpForm::Leave() {
    const Byte metric = State().MetricFlag;
    try {
        if (FromMenu) {
            Shared().Go.ShowMenu(MenuEntry::Returning);
        } else {
            Shared().Go.Return();
        }
    } catch (...) {
        State().MetricFlag = metric;
        throw;
    }
}

} // namespace tarn
