#include "screens/order/OrderScreen.h"

#include "base/Words.h"
#include "files/QtText.h"
#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/ElidedLabel.h"
#include "screens/Narrowing.h"
#include "screens/SaveProject.h"
#include "screens/Theme.h"
#include "screens/order/ComparisonPanel.h"
#include "screens/order/OrderChoicePanel.h"
#include "screens/order/OrderOutput.h"
#include "screens/roll/RollList.h"
#include "screens/roll/RollPanel.h"
#include "screens/roll/RollView.h"

#include <QAction>
#include <QEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

constexpr auto OrderFailure = Words("The order could not be made.");
constexpr auto ChoiceFailure = Words("The choices could not be taken.");
constexpr auto FileFailure = Words("The order could not be saved.");
constexpr auto LeaveFailure = Words("The screen could not be closed.");

constexpr auto Comparing = Words("Comparing. STOP keeps the best so far.");
constexpr auto Compared = Words("Compared.");
constexpr auto Stopped = Words("Stopped: the best so far.");
constexpr auto OutOfDate = Words("OUT OF DATE: the choices have changed. Press COMPARE.");
constexpr auto AllRefused = Words("Every roll and lay is refused: the notes say why.");

/// From which width on all parts stand side by side, twips; larger text takes more.
constexpr double WideFrom = 16500;

std::string OtherUnitsNote(Units shown) {
    return shown == Units::Metric
               ? Words("The request that is kept for this carpet is in feet and inches and is not "
                       "used. What you change takes its place.")
               : Words("The request that is kept for this carpet is in metric and is not used. "
                       "What you change takes its place.");
}

} // namespace

OrderScreen::OrderScreen(Session& session, std::optional<Byte> carpet)
    : Screen(session, Controls::orderScreen) {
    Build();
    Connect();
    Begin(carpet);
}

/// The fields tell of themselves once more when they lose the focus as they go, and nobody listens
/// then.
OrderScreen::~OrderScreen() {
    choices_->OnChange = [] {};
    choices_->OnSettled = [] {};
    choices_->OnEnter = [] {};
    choices_->OnCarpet = [] {};
}

void OrderScreen::Build() {
    auto* rows = new QVBoxLayout(&Body());
    SetSpacing(*rows, Metrics::Margin);
    rows->addLayout(BuildTitle());
    rows->addLayout(BuildParts(), 1);
    state_ = NewLabel(&Body(), Controls::comparisonState, {});
    state_->setWordWrap(true);
    rows->addWidget(state_);
    rows->addLayout(BuildButtons());
    ShowTitle();
    SetTabOrder();
    ShowPart(Comparison);
}

QBoxLayout* OrderScreen::BuildTitle() {
    title_ = new ElidedLabel(&Body());
    NameControl(*title_, Controls::formTitle, {});
    SetRole(*title_, TextRole::FormTitle);
    title_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    unitsWarning_ = NewLabel(&Body(), Controls::titleWarning, "");
    SetRole(*unitsWarning_, TextRole::Warning);
    tabs_ = new QTabBar(&Body());
    NameControl(*tabs_, Controls::orderParts, ToQt(Words("Parts of the screen")));
    for (const Phrase caption : {Words("CHOICES"), Words("COMPARISON"), Words("ROLL")}) {
        tabs_->addTab(ToQt(caption));
    }
    tabs_->setDrawBase(false);
    tabs_->setUsesScrollButtons(false);
    auto* line = new QHBoxLayout;
    line->setSpacing(Pixels(Metrics::Margin));
    line->addWidget(title_);
    line->addWidget(unitsWarning_);
    line->addStretch();
    line->addWidget(&GuideButton());
    auto* rows = new QVBoxLayout;
    rows->addLayout(line);
    rows->addWidget(tabs_);
    return rows;
}

QBoxLayout* OrderScreen::BuildParts() {
    choices_ = new OrderChoicePanel(&Body(), ShownUnits());
    comparison_ = new ComparisonPanel(&Body());
    roll_ = new RollPanel(&Body(), Shared().Boxes);
    roll_->SetListBeside(true);
    roll_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored); // it takes what is left
    results_ = new QWidget(&Body());
    auto* results = new QVBoxLayout(results_);
    SetSpacing(*results, 0);
    results->addWidget(comparison_);
    results->addWidget(roll_, 1);
    columns_ = new QHBoxLayout;
    columns_->setSpacing(Pixels(Metrics::Margin));
    columns_->addWidget(choices_);
    columns_->addWidget(results_, 1);
    return columns_;
}

QLayout* OrderScreen::BuildButtons() {
    compare_ = NewButton(&Body(), Controls::compare, Words("CO&MPARE"));
    stop_ = NewButton(&Body(), Controls::stopComparing, Words("S&TOP"));
    print_ = NewButton(&Body(), Controls::printOrder, Words("PR&INT"));
    saveAs_ = NewButton(&Body(), Controls::saveOrderAs, Words("&SAVE AS"));
    back_ = NewButton(&Body(), Controls::leaveOrder, Words("&BACK"));
    SetPrimary(*compare_);
    BuildFiles();
    buttons_ = new WrappingRow;
    for (QPushButton* button : {compare_, stop_, print_, saveAs_, back_}) {
        buttons_->Add(*button, button == back_);
    }
    return buttons_;
}

void OrderScreen::BuildFiles() {
    files_ = new QMenu(saveAs_);
    files_->setObjectName(Controls::orderFiles);
    for (std::size_t kind = 0; kind < OrderFiles().size(); ++kind) {
        const OrderFile& file = OrderFiles()[kind];
        QAction* action = files_->addAction(ToQt(file.Caption));
        action->setObjectName(Controls::orderFileActions[kind]);
        connect(action, &QAction::triggered, this,
                [this, &file] { Guard(FileFailure, [&] { SaveTaken(file); }); });
    }
    saveAs_->setMenu(files_);
}

void OrderScreen::Connect() {
    const auto guarded = [this](void (OrderScreen::*body)()) {
        return [this, body] { Guard(ChoiceFailure, [&] { (this->*body)(); }); };
    };
    choices_->OnChange = guarded(&OrderScreen::NoteChoices);
    choices_->OnSettled = guarded(&OrderScreen::Settle);
    choices_->OnEnter = guarded(&OrderScreen::Compare);
    choices_->OnCarpet = [this] {
        Guard(ChoiceFailure, [this] { OpenCarpet(choices_->Carpet()); });
    };
    comparison_->OnRow = [this](std::size_t row) { Guard(OrderFailure, [&] { ChooseRow(row); }); };
    connect(tabs_, &QTabBar::currentChanged, this,
            [this](int part) { ShowPart(static_cast<Part>(part)); });
    OnClick(*compare_, OrderFailure, [this] { Compare(); });
    OnClick(*stop_, OrderFailure, [this] { StopComparing(); });
    OnClick(*print_, {}, [this] { PrintTaken(); });
    IgnoreSecondClick(*print_);
    OnClick(*back_, LeaveFailure, [this] { Leave(); });
    PressOnKeys(*print_, QKeySequence::Print, *this);
    auto* save = new QShortcut(QKeySequence::Save, this);
    save->setAutoRepeat(false);
    connect(save, &QShortcut::activated, this,
            [this] { Guard(std::string(NotSavedMessage), [this] { SaveProject(); }); });
}

void OrderScreen::SetTabOrder() {
    std::vector<QWidget*> order{tabs_};
    order.insert(order.end(), choices_->TabOrder().begin(), choices_->TabOrder().end());
    order.push_back(&comparison_->Table());
    order.insert(order.end(),
                 {&roll_->View(), &roll_->List(), compare_, stop_, print_, saveAs_, back_});
    SetTabOrders(order);
}

void OrderScreen::ShowTitle() {
    setWindowTitle(ToQt(Words("ORDER FOR PROJECT: %1", Shared().Project.Now.Name)));
    SetText(*title_, FromQt(windowTitle()));
    const std::string_view words = UnitsWarning(Shared().Project);
    SetText(*unitsWarning_, FromQt(WithoutMark(words)));
    unitsWarning_->setVisible(!words.empty());
}

void OrderScreen::OnBodyRoom() {
    Arrange();
    const int room = BodyRoom() - 2 * Pixels(Metrics::Margin);
    buttons_->SetRoom(room);
    choices_->SetRoom(room);
}

void OrderScreen::Arrange() {
    const bool isWide = width() >= TextPixels(WideFrom);
    if (isWide != isWide_) {
        isWide_ = isWide;
        ShowPart(static_cast<Part>(tabs_->currentIndex()));
    }
}

void OrderScreen::ShowPart(Part part) {
    tabs_->setCurrentIndex(part); // which comes back here
    tabs_->setVisible(!isWide_);
    choices_->SetBesideResults(isWide_);
    columns_->setStretchFactor(choices_, isWide_ ? 0 : 1);
    choices_->setVisible(isWide_ || part == Choices);
    results_->setVisible(isWide_ || part != Choices);
    comparison_->setVisible(isWide_ || part == Comparison);
    roll_->setVisible(isWide_ || part == Roll);
}

QWidget* OrderScreen::FirstFocus() {
    return compare_->isEnabled() ? static_cast<QWidget*>(&comparison_->Table()) : back_;
}

void OrderScreen::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        back_->click();
    } else {
        Screen::keyPressEvent(event);
    }
}

void OrderScreen::Begin(std::optional<Byte> carpet) {
    const std::vector<Byte> carpets = CarpetsToOrder(Shared().Project.Now);
    if (carpets.empty()) {
        for (QWidget* control :
             {static_cast<QWidget*>(choices_), static_cast<QWidget*>(compare_)}) {
            control->setEnabled(false);
        }
        ShowState();
        EnableButtons();
        return;
    }
    const bool isThere = std::find(carpets.begin(), carpets.end(), carpet) != carpets.end();
    choices_->OfferCarpets(carpets, isThere ? *carpet : carpets.front());
    OpenCarpet(choices_->Carpet());
}

/// Shows the carpet's request, with which the comparison starts by itself.
void OrderScreen::OpenCarpet(Byte carpet) {
    DropComparison();
    carpet_ = carpet;
    ShowChoices();
    asked_ = RequestOf(choices_->Typed());
    if (const auto* asked = std::get_if<OrderRequest>(&asked_)) {
        Start(*asked);
    } else {
        Settle();
    }
}

/// What was typed last, where it could not be taken; else the request that is kept, or offered.
void OrderScreen::ShowChoices() {
    const OpenProject& project = Shared().Project;
    const CarpetRequest request = RequestFor(project.Now.Orders, carpet_, ShownUnits());
    const auto typed = project.TypedOrders.find(carpet_);
    const bool hasTyped = typed != project.TypedOrders.end() && typed->second.In == ShownUnits();
    choices_->Show(hasTyped ? typed->second : TypedOf(request.Value));
    choices_->ShowNote(request.InOtherUnits ? OtherUnitsNote(ShownUnits()) : std::string());
    choices_->ShowRefusal({});
}

/// A change ends the comparison that it does not count for. What makes sense is kept as a request,
/// anything else as it is typed.
void OrderScreen::NoteChoices() {
    OpenProject& project = Shared().Project;
    const TypedOrder typed = choices_->Typed();
    asked_ = RequestOf(typed);
    if (const auto* asked = std::get_if<OrderRequest>(&asked_)) {
        KeepRequest(project.Now.Orders, project.Saved.Orders, carpet_, *asked);
        project.TypedOrders.erase(carpet_);
        choices_->ShowNote({});
        choices_->ShowRefusal({});
    } else {
        project.TypedOrders.insert_or_assign(carpet_, typed);
    }
    Shared().Drafts.NoteChange();
    if (run_ && !IsComparedRequest()) {
        StopComparing();
    }
    ShowState();
    EnableButtons();
}

void OrderScreen::Settle() {
    const auto* fault = std::get_if<OrderRequestFault>(&asked_);
    choices_->ShowRefusal(fault != nullptr ? fault->Reason : std::string());
}

void OrderScreen::Compare() {
    asked_ = RequestOf(choices_->Typed());
    if (const auto* fault = std::get_if<OrderRequestFault>(&asked_)) {
        ShowPart(Choices);
        Settle();
        choices_->FocusFault(*fault);
        return;
    }
    Start(std::get<OrderRequest>(asked_));
    ShowPart(Comparison);
    comparison_->Table().setFocus();
}

void OrderScreen::Start(const OrderRequest& request) {
    DropComparison();
    compared_ = request;
    OrderLimits limits;
    limits.Seconds = request.Seconds;
    run_ = std::make_unique<OrderRun>(
        Shared().Project.Now, carpet_, request, limits,
        OrderRun::Callbacks{
            [this](const Order& order) { Guard(OrderFailure, [&] { TakeProgress(order); }); },
            [this](const std::exception_ptr& fault) {
                Guard(OrderFailure, [&] { TakeEnd(fault); });
            }});
    ShowState();
    EnableButtons();
}

void OrderScreen::TakeProgress(const Order& order) {
    order_ = order;
    ShowOrder();
}

void OrderScreen::TakeEnd(const std::exception_ptr& fault) {
    run_.reset();
    const auto after = std::exchange(afterRun_, nullptr);
    if (fault) {
        DropComparison();
        std::rethrow_exception(fault);
    }
    ShowState();
    EnableButtons();
    if (after) {
        after();
    }
}

void OrderScreen::StopComparing() {
    if (run_) {
        wasStopped_ = true;
        run_->Stop();
    }
}

void OrderScreen::DropComparison() {
    run_.reset();
    afterRun_ = nullptr;
    leavesAfterRun_ = false;
    wasStopped_ = false;
    order_.reset();
    drawn_.reset();
    chosen_.reset();
    compared_.reset();
    comparison_->Clear();
    roll_->Clear();
    ShowState();
    EnableButtons();
}

bool OrderScreen::IsComparedRequest() const {
    const auto* asked = std::get_if<OrderRequest>(&asked_);
    return asked != nullptr && compared_ && AskForTheSame(*asked, *compared_);
}

std::optional<std::size_t> OrderScreen::TakenRow() const {
    return chosen_ || !order_ ? chosen_ : order_->Best;
}

bool OrderScreen::HasTaken() const {
    const auto row = TakenRow();
    return row && order_->Candidates[*row].Figures && IsComparedRequest();
}

void OrderScreen::ChooseRow(std::size_t row) {
    chosen_ = order_->Best == row ? std::nullopt : std::optional(row);
    ShowOrder();
}

void OrderScreen::ShowOrder() {
    const auto taken = TakenRow();
    comparison_->Show(*order_, taken);
    const OrderCandidate* candidate = taken ? &order_->Candidates[*taken] : nullptr;
    if (candidate == nullptr) {
        roll_->Clear();
        drawn_.reset();
    } else if (drawn_ != *candidate) {
        roll_->Show(ChartOf(*order_, *taken, Shared().Project.Now));
        drawn_ = *candidate;
    }
    ShowState();
    EnableButtons();
}

void OrderScreen::ShowState() {
    const auto [words, isWarning] = StateWords();
    if (FromQt(state_->text()) != words) {
        SetText(*state_, words);
        SetRole(*state_, isWarning ? TextRole::Warning : TextRole::Hint);
    }
}

/// How far the comparison is, and whether the user should notice it.
std::pair<std::string_view, bool> OrderScreen::StateWords() const {
    if (!choices_->isEnabled()) {
        return {NothingToOrder, true};
    }
    if (compared_ && !IsComparedRequest()) {
        return {OutOfDate, true};
    }
    if (run_) {
        return {Comparing, false};
    }
    if (!order_) {
        return {};
    }
    if (!order_->Best) {
        return {AllRefused, true};
    }
    return {wasStopped_ ? Stopped : Compared, false};
}

void OrderScreen::EnableButtons() {
    const bool stopHadFocus = stop_->hasFocus();
    stop_->setEnabled(run_ != nullptr);
    if (stopHadFocus && !run_) {
        comparison_->Table().setFocus();
    }
    for (QPushButton* button : {print_, saveAs_}) {
        button->setEnabled(HasTaken());
    }
}

/// Do something with the order of the row that is taken, once the comparison is at its end: it
/// would be another one by then.
void OrderScreen::WithTaken(std::function<void(const OrderDocument&)> act) {
    choices_->Typed(); // what is being typed in a roll counts
    if (!HasTaken() || leavesAfterRun_) {
        return;
    }
    auto take = [this, act = std::move(act)] {
        if (HasTaken()) {
            Order order = *order_;
            order.Best = TakenRow();
            act(DocumentOf(Shared(), std::move(order)));
        }
    };
    if (run_) {
        afterRun_ = std::move(take);
        StopComparing();
    } else {
        take();
    }
}

void OrderScreen::PrintTaken() {
    WithTaken([this](const OrderDocument& document) { PrintOrder(Shared(), *this, document); });
}

void OrderScreen::SaveTaken(const OrderFile& file) {
    WithTaken(
        [this, &file](const OrderDocument& document) { SaveOrderAs(Shared(), document, file); });
}

void OrderScreen::SaveProject() {
    choices_->Typed();
    if (const auto emptyRooms = SaveOrAsk(Shared())) {
        ShowTitle();
        Shared().Boxes.Message(std::string(SavedMessage), *emptyRooms);
    }
}

void OrderScreen::OnCloseByFrame() {
    Leave();
}

void OrderScreen::Leave() {
    choices_->Typed();
    if (run_ && afterRun_) { // what was asked for before is done first
        if (!leavesAfterRun_) {
            leavesAfterRun_ = true;
            afterRun_ = [this, first = std::move(afterRun_)] {
                leavesAfterRun_ = false;
                first();
                Leave();
            };
            StopComparing();
        }
        return;
    }
    StopComparing();
    Shared().Drafts.Flush();
    Shared().Go.Return();
}

} // namespace tarn
