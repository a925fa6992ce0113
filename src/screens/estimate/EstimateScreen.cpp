#include "screens/estimate/EstimateScreen.h"

#include "base/Words.h"
#include "estimate/EstimateChoices.h"
#include "estimate/ImproveEstimate.h"
#include "estimate/LayoutDrawing.h"
#include "estimate/MakeEstimate.h"
#include "files/QtText.h"
#include "project/RoomExtents.h"
#include "screens/AfterBoxes.h"
#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/ElidedLabel.h"
#include "screens/Narrowing.h"
#include "screens/SaveAs.h"
#include "screens/SaveProject.h"
#include "screens/Theme.h"
#include "screens/estimate/ChoicePanel.h"
#include "screens/estimate/EstimateOutput.h"
#include "screens/estimate/ImproveButtons.h"
#include "screens/estimate/ImprovePanel.h"
#include "screens/estimate/OthersDisabled.h"
#include "screens/estimate/PictureBox.h"
#include "screens/estimate/ResultViews.h"
#include "screens/roll/RollList.h"
#include "screens/roll/RollPanel.h"
#include "screens/roll/RollView.h"

#include <QAction>
#include <QEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>

#include <utility>
#include <variant>

namespace tarn {

namespace {

constexpr auto NoDataMessage = Words("There is not data in the database");
constexpr auto EstimateFailure = Words("The estimate could not be made.");
constexpr auto DrawingFailure = Words("The layout could not be drawn.");
constexpr auto ImproveFailure = Words("The layout could not be improved.");
constexpr auto OrderFailure = Words("The order could not be opened.");
constexpr auto PictureFailure = Words("The picture could not be saved.");
constexpr auto LeaveFailure = Words("The screen could not be closed.");
constexpr double LeastProjectName = 1200; ///< beside the hint, twips
constexpr auto RollCaption = Words("ROLL");
constexpr auto DrawingCaption = Words("DRAWING");
constexpr auto PasteHint = Words(
    "Then click where the cut list is to stand, or press Enter for the top left of the view.");

ElidedLabel* NewElidedLabel(QWidget* parent, const char* name, const QString& text, TextRole role) {
    auto* label = new ElidedLabel(parent);
    label->setText(text);
    NameControl(*label, name, text);
    SetRole(*label, role);
    return label;
}

std::string NothingBetterText(const ImproveResult& result) {
    const std::string reason = NothingBetterReason(result);
    return reason.empty() ? std::string(Words("No better layout was found."))
                          : Words("No better layout was found: %1.", reason);
}

} // namespace

EstimateScreen::EstimateScreen(Session& session, bool fromMenu, QuietSearch::Search quietly)
    : Screen(session, Controls::estimateScreen)
    , fromMenu_(fromMenu)
    , quiet_(std::move(quietly), [this](const Estimate& estimate, const Estimate& better) {
        AfterBoxes(*this, [this, estimate, better] {
            Guard(ImproveFailure, [&] { OfferShorter(estimate, better); });
        });
    }) {
    RequireExtents(OpenedProject(), ShownUnits());
    Build();
    Connect();
    const CarpetsFound carpets = FindCarpets(OpenedProject());
    panel_->OfferCarpets(carpets);
    panel_->ChooseDefaultWidth();
    panel_->LastButton().setEnabled(Shared().Project.LastChosen().has_value());
    panel_->setVisible(carpets.Lowest.has_value());
    if (!carpets.Lowest) {
        // When this screen is in front: the box is about it.
        Later([this] { TellNoData(); });
    }
}

EstimateScreen::~EstimateScreen() = default;

void EstimateScreen::TellNoData() {
    Shared().Boxes.Message(NoDataMessage);
    back_->setEnabled(true);
    back_->setFocus();
}

void EstimateScreen::Build() {
    auto* rows = new QVBoxLayout(&Body());
    SetSpacing(*rows, Metrics::Margin);
    rows->addLayout(BuildTitle());
    rows->addLayout(BuildPictureAndButtons(), 1);
    rows->addLayout(BuildStatus());
    ShowProjectName();
    ShowUnitsWarning();

    panel_ = new ChoicePanel(&Body(), Shared().Boxes, ShownUnits());
    panel_->raise();
    improvePanel_ = new ImprovePanel(&Body(), ShownUnits());
    Body().installEventFilter(this);
    panel_->installEventFilter(this);
    SetTabOrders({&panel_->CancelButton(), openPanel_, improve_, &improveButtons_->Undo(), order_,
                  paste_, redraw_, print_, save_, back_, picture_, switchView_,
                  &views_->Roll().View(), &views_->Roll().List()});
    OfferDrawing();
}

QHBoxLayout* EstimateScreen::BuildTitle() {
    title_ = NewElidedLabel(&Body(), Controls::formTitle, {}, TextRole::FormTitle);
    title_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed); // the warning is next to it
    unitsWarning_ = NewLabel(&Body(), Controls::titleWarning, "");
    SetRole(*unitsWarning_, TextRole::Warning);
    auto* title = new QHBoxLayout;
    title->setSpacing(Pixels(Metrics::Margin));
    title->addWidget(title_);
    title->addWidget(unitsWarning_);
    title->addStretch();
    title->addWidget(&GuideButton());
    return title;
}

void EstimateScreen::ShowProjectName() {
    const std::string& name = OpenedProject().Name;
    setWindowTitle(ToQt(Words("ESTIMATE FOR PROJECT: %1", name)));
    SetText(*title_, FromQt(windowTitle()));
    SetText(*projectName_, Words("PROJ: %1", name));
}

void EstimateScreen::ShowUnitsWarning() {
    const std::string_view words = UnitsWarning(Shared().Project);
    SetText(*unitsWarning_, FromQt(WithoutMark(words)));
    unitsWarning_->setVisible(!words.empty());
}

QHBoxLayout* EstimateScreen::BuildPictureAndButtons() {
    views_ = std::make_unique<ResultViews>(Body(), Shared());
    picture_ = &views_->Picture();
    BuildFileMenus();
    auto* columns = new QHBoxLayout;
    columns->setSpacing(Pixels(Metrics::Margin));
    columns->addLayout(&views_->Layout(), 1);
    columns->addLayout(BuildButtons());
    return columns;
}

QHBoxLayout* EstimateScreen::BuildStatus() {
    auto* status = new QHBoxLayout;
    status->setSpacing(Pixels(Metrics::Margin));
    projectName_ = NewElidedLabel(&Body(), Controls::estimatedProject, {}, TextRole::Label);
    status->addWidget(projectName_, 1);
    zoomHint_ = NewLabel(&Body(), Controls::zoomHint, FromQt(PictureBox::ZoomHint()));
    SetRole(*zoomHint_, TextRole::Hint);
    status->addWidget(zoomHint_);
    return status;
}

QVBoxLayout* EstimateScreen::BuildButtons() {
    back_ = NewButton(&Body(), Controls::leaveEstimate, Words("&BACK"));
    openPanel_ = NewButton(&Body(), Controls::openChoices, Words("&ESTIMATE"));
    paste_ = NewButton(&Body(), Controls::pasteCuts, Words("&PASTE CUTS"));
    print_ = NewButton(&Body(), Controls::printEstimate, Words("PR&INT"));
    save_ = NewButton(&Body(), Controls::saveFromEstimate, Words("&SAVE"));
    redraw_ = NewButton(&Body(), Controls::redrawLayout, Words("&REDRAW"));
    improveButtons_ = new ImproveButtons(&Body());
    improve_ = &improveButtons_->Improve();
    order_ = NewButton(&Body(), Controls::openOrder, Words("ORDER"));
    SetPrimary(*openPanel_);
    paste_->setToolTip(ToQt(PasteHint));
    switchView_ = NewButton(&Body(), Controls::switchView, RollCaption);
    switchView_->setToolTip(ToQt(Words("The whole roll with its list, or the drawing: key D")));
    switchView_->setMinimumWidth(Pixels(Metrics::ButtonWidth));
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    for (QPushButton* button : Buttons()) {
        if (button == back_) {
            column->addWidget(switchView_);
            column->addStretch();
        }
        button->setMinimumWidth(Pixels(Metrics::ButtonWidth));
        button->setEnabled(false);
        column->addWidget(button == improve_ ? static_cast<QWidget*>(improveButtons_) : button);
        // On a low screen the gaps go first.
        column->addSpacerItem(new QSpacerItem(0, button == back_ ? 0 : Pixels(Metrics::Spacing),
                                              QSizePolicy::Minimum, QSizePolicy::Maximum));
    }
    return column;
}

/// From the top down.
std::array<QPushButton*, 8> EstimateScreen::Buttons() const {
    return {openPanel_, improve_, order_, paste_, redraw_, print_, save_, back_};
}

/// Children of what they belong to, which pop up without waiting, so that the screen may close
/// under them.
void EstimateScreen::BuildFileMenus() {
    pictureMenu_ = new QMenu(picture_);
    AddToMenu(*pictureMenu_, Controls::pictureAsPdf, SaveAsPdfCaption,
              [this] { SaveEstimateAsPdf(Shared(), estimate_, picture_->Shown()); });
    AddToMenu(*pictureMenu_, Controls::pictureAsSvg, SaveAsSvgCaption,
              [this] { SaveEstimateAsSvg(Shared(), picture_->Shown(), FromQt(windowTitle())); });
    picture_->ContextMenu = [this](QPoint global) { pictureMenu_->popup(global); };

    RollView& roll = views_->Roll().View();
    auto* rollMenu = new QMenu(&roll);
    AddToMenu(*rollMenu, Controls::rollAsDxf, SaveAsDxfCaption,
              [this] { SaveEstimateAsDxf(Shared(), estimate_.value()); });
    roll.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&roll, &QWidget::customContextMenuRequested, rollMenu,
            [rollMenu, &roll](QPoint at) { rollMenu->popup(roll.viewport()->mapToGlobal(at)); });
}

void EstimateScreen::AddToMenu(QMenu& menu, const char* name, std::string_view caption,
                               std::function<void()> save) {
    QAction* action = menu.addAction(ToQt(caption));
    action->setObjectName(name);
    connect(action, &QAction::triggered, this,
            [this, save = std::move(save)] { Guard(PictureFailure, save); });
}

void EstimateScreen::Connect() {
    OnClick(panel_->OkButton(), EstimateFailure, [this] { AcceptChoices(); });
    OnClick(panel_->CancelButton(), EstimateFailure, [this] {
        firstChoices_.reset();
        EnableButtons();
        ClosePanel();
    });
    OnClick(panel_->LastButton(), EstimateFailure, [this] { ChooseLast(); });
    OnClick(*openPanel_, EstimateFailure, [this] { OpenPanel(); });
    OnClick(*paste_, DrawingFailure, [this] { SetPasting(true); });
    OnClick(*redraw_, DrawingFailure, [this] { RedrawLayout(); });
    // What a press means is what the button says as it begins.
    connect(improve_, &QPushButton::pressed, this, [this] { takesShorter_ = OffersShorter(); });
    OnClick(*improve_, DrawingFailure, [this] { ImproveLayout(); });
    OnClick(improveButtons_->Undo(), DrawingFailure, [this] { UndoImprovement(); });
    OnClick(improvePanel_->TakeButton(), DrawingFailure, [this] { TakeKept(); });
    OnClick(improvePanel_->LeaveButton(), DrawingFailure, [this] { LeaveKept(); });
    OnClick(*order_, OrderFailure, [this] {
        Shared().Go.ShowOrder(estimate_ ? std::optional(estimate_->Request.Carpet) : std::nullopt);
    });
    OnClick(*print_, {}, [this] { PrintEstimate(Shared(), *this, estimate_, picture_->Shown()); });
    IgnoreSecondClick(*print_);
    OnClick(*save_, std::string(NotSavedMessage), [this] { SaveRooms(); });
    OnClick(*back_, LeaveFailure, [this] { Leave(); });
    picture_->MouseDown = [this](Double x, Double y) { return PasteCutList(x, y); };
    OnClick(*switchView_, DrawingFailure, [this] { SwitchView(); });
    views_->OnArranged = [this] { OfferViews(); };
    ConnectKeys();
}

void EstimateScreen::ConnectKeys() {
    PressOnKeys(*save_, QKeySequence(Qt::CTRL | Qt::Key_S), *this);
    PressOnKeys(*print_, QKeySequence(Qt::CTRL | Qt::Key_P), *this);
    PressOnKeys(improveButtons_->Undo(), QKeySequence(Qt::CTRL | Qt::Key_Z), *this);
    const auto onKeys = [this](const QKeySequence& keys, void (EstimateScreen::*act)()) {
        auto* shortcut = new QShortcut(keys, this);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this,
                [this, act] { Guard(DrawingFailure, [&] { (this->*act)(); }); });
    };
    onKeys(QKeySequence(Qt::CTRL | Qt::Key_Y), &EstimateScreen::RedoImprovement);
    onKeys(QKeySequence(Qt::Key_Escape), &EstimateScreen::Escape);
    onKeys(QKeySequence(Qt::Key_D), &EstimateScreen::SwitchView);
}

/// Closes what is in front, or takes a waiting paste back.
void EstimateScreen::Escape() {
    if (improvePanel_->IsRunning()) {
        improvePanel_->Stop();
    } else if (!panel_->isHidden()) {
        panel_->CancelButton().click();
    } else if (kept_) {
        LeaveKept();
    } else {
        SetPasting(false);
    }
}

void EstimateScreen::keyPressEvent(QKeyEvent* event) {
    if (panel_->isVisible() && PressesFromOption(*event)) {
        panel_->OkButton().click(); // whose handler is under the guard
        return;
    }
    Screen::keyPressEvent(event);
}

QWidget* EstimateScreen::FirstFocus() {
    return panel_->isHidden() ? back_ : &panel_->FirstFocus();
}

/// The project's name beside the hint ends in dots where it must.
void EstimateScreen::OnBodyRoom() {
    WrapWithin(*zoomHint_, BodyRoom() - 3 * Pixels(Metrics::Margin) - TextPixels(LeastProjectName));
}

std::string_view EstimateScreen::GuidePage() const {
    if (!improvePanel_->isHidden()) {
        return GuidePages::improving;
    }
    return panel_->isHidden() ? GuidePages::result : GuidePages::choices;
}

void EstimateScreen::OnUncover() {
    ShowProjectName(); // another one, if it was saved as a new project meanwhile
    ShowUnitsWarning();
    if (panel_->isHidden()) {
        FocusResult();
    }
}

bool EstimateScreen::eventFilter(QObject* watched, QEvent* event) {
    const bool resized = event->type() == QEvent::Resize && watched == &Body();
    if (resized || event->type() == QEvent::LayoutRequest ||
        event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) {
        Guard(DrawingFailure, [&] {
            if (resized) {
                views_->Arrange();
            }
            PlacePanels();
        });
    }
    return Screen::eventFilter(watched, event);
}

/// The panels float over the middle of the screen, which scrolls where the open choices do not fit.
void EstimateScreen::PlacePanels() {
    const QSize improveSize = improvePanel_->sizeHint().expandedTo(improvePanel_->minimumSize());
    improvePanel_->setGeometry(
        QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, improveSize, Body().rect()));
    if (panel_->isHidden()) {
        Body().setMinimumSize(0, 0);
        return;
    }
    const QSize size = panel_->sizeHint();
    const int margins = 2 * Pixels(Metrics::Margin);
    const int beside = std::clamp(BodyRoom() - size.width(), 0, margins); // where it has room
    const QSize least = size + QSize(beside, margins);
    Body().setMinimumSize(least.expandedTo(Body().layout()->minimumSize()));
    const QSize left = Body().size() - size;
    panel_->setGeometry(QRect(QPoint(left.width() / 2, left.height() / 2), size));
}

void EstimateScreen::OpenPanel() {
    DropKept();
    panel_->show();
    panel_->raise();
    OfferViews();
    panel_->FocusCarpet();
}

void EstimateScreen::ClosePanel() {
    panel_->hide();
    OfferViews();
    FocusResult();
}

void EstimateScreen::EnableButtons() {
    for (QPushButton* button : Buttons()) {
        button->setEnabled(true);
    }
    EnableImprove();
}

void EstimateScreen::EnableImprove() {
    // An estimate becomes ready while the whole screen is still disabled below the options.
    const bool usable = openPanel_->isEnabledTo(&Body());
    improve_->setEnabled(usable && estimate_ && !estimate_->Fills.Layout.empty());
    improveButtons_->Undo().setEnabled(usable && history_.CanUndo());
    ShowOffer();
}

void EstimateScreen::FocusResult() {
    QWidget* view = views_->InFront();
    (view == nullptr ? openPanel_ : view)->setFocus();
}

/// What can be seen instead stands on the button.
void EstimateScreen::OfferViews() {
    const bool rollAlone = views_->ShowsRollAlone();
    SetCaption(*switchView_, rollAlone ? DrawingCaption : RollCaption);
    switchView_->setVisible(views_->MaySwitch());
    switchView_->setEnabled(views_->MaySwitch() && panel_->isHidden() &&
                            !improvePanel_->IsRunning());
    zoomHint_->setVisible(!rollAlone && !picture_->Shown().Steps().empty());
}

void EstimateScreen::SwitchView() {
    if (switchView_->isEnabled()) {
        views_->Switch();
        FocusResult();
    }
}

void EstimateScreen::ShowDrawing(Drawing drawing, bool fromStart) {
    if (fromStart) {
        picture_->ShowFromStart(std::move(drawing));
    } else {
        picture_->ShowChanged(std::move(drawing));
    }
    OfferDrawing();
}

void EstimateScreen::OfferDrawing() {
    const bool drawn = !picture_->Shown().Steps().empty();
    OfferViews();
    EnableImprove();
    for (QAction* action : pictureMenu_->actions()) {
        action->setEnabled(drawn);
    }
}

void EstimateScreen::AcceptChoices() {
    EnableButtons();
    const EstimateChoices choices = panel_->Choices();
    const auto request = RequestOf(choices, ShownUnits());
    if (const auto* refusal = std::get_if<ChoicesRefusal>(&request)) {
        panel_->FocusRefused(*refusal); // first, so that the box keeps clear of it
        Shared().Boxes.Message(std::string(RefusalMessage(*refusal)));
        return;
    }
    NoEstimate();
    accepted_ = choices;
    Begin(std::get<EstimateRequest>(request));
    firstChoices_.reset();
    ClosePanel();
}

void EstimateScreen::ChooseLast() {
    if (const auto last = Shared().Project.LastChosen()) {
        panel_->Choose(last->Choices);
        firstChoices_ = last->Fills;
    }
}

void EstimateScreen::KeepChoices(const Estimate& estimate) {
    LastChoices last{ShownUnits(), accepted_, std::nullopt};
    if (!estimate.Job.Pieces.empty()) {
        last.Fills = {estimate.Request.ShortestPart, estimate.Request.PiecesPerFill};
    }
    Shared().Project.Chosen[OpenedProject().Name] = std::move(last);
    panel_->LastButton().setEnabled(true);
}

/// The options complete a request that leaves fills; cuts alone are estimated at once. For rooms
/// without an area there is no estimate.
void EstimateScreen::Begin(const EstimateRequest& request) {
    const RoomCuts parts = CutAcrossRoll(OpenedProject(), request);
    if (!parts.Fills.empty()) {
        Shared().Go.ShowOptions(request, *this);
    } else if (!parts.Cuts.empty()) {
        SearchObserver nobody;
        EstimateReady(MakeEstimate(OpenedProject(), request, nobody));
    }
}

void EstimateScreen::EstimateReady(const Estimate& estimate) {
    ShowEstimate(estimate);
    ForgetImprovements();
    KeepChoices(estimate);
    if (!estimate.Fills.Layout.empty()) {
        quiet_.Begin(estimate);
    }
}

/// Every change is drawn into a copy first: a failure leaves the picture, and what it shows, as
/// they were.
void EstimateScreen::ShowEstimate(const Estimate& estimate) {
    Drawing drawing = picture_->Shown();
    DrawLayout(drawing, estimate);
    DrawCutList(drawing, estimate, CutListX, CutListY);
    RollChart roll = ChartOf(estimate, OpenedProject());
    estimate_ = estimate;
    ShowDrawing(std::move(drawing), true);
    views_->ShowRoll(std::move(roll));
}

void EstimateScreen::NoEstimate() {
    estimate_.reset();
    ForgetImprovements();
    Drawing drawing = picture_->Shown();
    drawing.Clear();
    ShowDrawing(std::move(drawing), true);
    views_->ShowRoll({});
}

void EstimateScreen::RedrawLayout() {
    const bool fromStart = picture_->Shown().Steps().empty();
    Drawing drawing = picture_->Shown();
    if (estimate_) {
        DrawLayout(drawing, *estimate_);
    } else {
        DrawNoFills(drawing);
    }
    ShowDrawing(std::move(drawing), fromStart);
    views_->ShowPicture();
}

/// Another estimate is shown, or none.
void EstimateScreen::ForgetImprovements() {
    quiet_.Drop();
    shorter_.reset();
    DropKept();
    history_.Clear();
    EnableImprove();
}

void EstimateScreen::OfferShorter(const Estimate& estimate, const Estimate& better) {
    const std::string by = ShorterText(estimate, better);
    if (!by.empty()) {
        shorter_ = {estimate, better, by};
        ShowOffer();
    }
}

bool EstimateScreen::OffersShorter() const {
    return shorter_ && estimate_ == shorter_->Of;
}

void EstimateScreen::ShowOffer() {
    improveButtons_->Offer(OffersShorter() ? shorter_->By : std::string());
}

ShownEstimate EstimateScreen::ShownNow() const {
    return {*estimate_, picture_->Shown()};
}

void EstimateScreen::ImproveLayout() {
    const bool takes = std::exchange(takesShorter_, false);
    SetPasting(false);
    if (!estimate_) {
        return;
    }
    DropKept();
    if (takes && OffersShorter()) {
        TakeImprovement(Estimate(shorter_->Better));
        FocusResult();
    } else {
        quiet_.Drop();
        SearchLong();
    }
}

void EstimateScreen::SearchLong() {
    const Estimate before = *estimate_; // events are handled while the search runs
    std::optional<ImprovedEstimate> improved;
    Guard(ImproveFailure, [&] {
        const OthersDisabled others(Body(), *improvePanel_);
        improved =
            improvePanel_->Run([&before](const ImproveLimits& limits, ImproveObserver& observer) {
                return ImproveEstimate(before, limits, observer);
            });
    });
    FocusResult();
    if (!improved) {
        return;
    }
    // Without a better layout the list may still know a better bound.
    if (improved->Value != before) {
        TakeImprovement(improved->Value);
    }
    if (improved->Result.Kept) {
        OfferKept(improved->Result);
    } else if (!improved->Result.Improved) {
        Shared().Boxes.Message(NothingBetterText(improved->Result));
    }
}

/// What keeps the minimum cut where the estimate's own layout does not.
void EstimateScreen::OfferKept(const ImproveResult& result) {
    kept_ = KeepingMinCut(*estimate_, result);
    improvePanel_->Offer(KeptText(result, estimate_->Request), NothingBetterReason(result));
}

void EstimateScreen::DropKept() {
    if (kept_) {
        kept_.reset();
        improvePanel_->hide();
    }
}

void EstimateScreen::TakeKept() {
    if (const auto kept = kept_) {
        TakeImprovement(*kept);
        FocusResult();
    }
}

void EstimateScreen::LeaveKept() {
    DropKept();
    FocusResult();
}

void EstimateScreen::TakeImprovement(const Estimate& better) {
    ShownEstimate before = ShownNow();
    DropKept();
    ShowEstimate(better);
    history_.Add(std::move(before));
    EnableImprove();
}

void EstimateScreen::UndoImprovement() {
    if (auto before = history_.Undo(ShownNow())) {
        Restore(std::move(*before));
    }
}

/// Its keys have no button that would be out of use while an improving search runs.
void EstimateScreen::RedoImprovement() {
    if (estimate_ && !improvePanel_->IsRunning()) {
        if (auto after = history_.Redo(ShownNow())) {
            Restore(std::move(*after));
        }
    }
}

void EstimateScreen::Restore(ShownEstimate shown) {
    SetPasting(false);
    DropKept();
    RollChart roll = ChartOf(shown.Value, OpenedProject());
    estimate_ = std::move(shown.Value);
    ShowDrawing(std::move(shown.Picture), true);
    views_->ShowRoll(std::move(roll));
    FocusResult();
}

void EstimateScreen::SetPasting(bool pasting) {
    pasting_ = pasting;
    picture_->SetWaiting(pasting);
    if (pasting) {
        views_->ShowPicture();
        if (!picture_->isHidden()) {
            picture_->setFocus();
        }
    }
}

/// Answers whether a press at (x, y) of the picture, twips, was waited for.
bool EstimateScreen::PasteCutList(Double x, Double y) {
    if (!pasting_) {
        return false;
    }
    Guard(DrawingFailure, [&] {
        if (estimate_) {
            Drawing drawing = picture_->Shown();
            DrawCutList(drawing, *estimate_, x, y);
            ShowDrawing(std::move(drawing), false);
        }
        SetPasting(false);
    });
    return true;
}

void EstimateScreen::SaveRooms() {
    if (const auto emptyRooms = SaveOrAsk(Shared())) {
        ShowProjectName();
        ShowUnitsWarning();
        Shared().Boxes.Message(std::string(SavedMessage), *emptyRooms);
    }
}

/// Closing while a search improves the layout ends the search alone.
void EstimateScreen::OnCloseByFrame() {
    if (improvePanel_->IsRunning()) {
        improvePanel_->Stop();
        return;
    }
    Leave();
}

/// Loading the menu sets the units to feet and inches; when that fails this screen goes on in its
/// own.
void EstimateScreen::Leave() {
    const Units shown = ShownUnits();
    try {
        if (fromMenu_) {
            Shared().Go.ShowMenu(MenuEntry::Returning);
        } else {
            Shared().Go.Return();
        }
    } catch (...) {
        Shared().Project.Shown = shown;
        throw;
    }
}

} // namespace tarn
