#include "screens/estimate/OptionsScreen.h"

#include "base/Words.h"
#include "estimate/MakeEstimate.h"
#include "files/QtText.h"
#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Narrowing.h"
#include "screens/Theme.h"
#include "screens/estimate/SearchProgress.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <span>

namespace tarn {

namespace {

constexpr auto SearchFailure = Words("The fills could not be laid out.");
constexpr auto EmptyFailure = Words("The estimate could not be emptied.");

QFrame* NewFrame(QWidget* parent, const char* name) {
    auto* frame = new QFrame(parent);
    frame->setObjectName(name);
    return frame;
}

/// The caption and "SELECT" above a group of options.
QLabel* AddHeading(QVBoxLayout& layout, QWidget& frame, const char* captionName,
                   std::string_view caption, const char* selectName) {
    QLabel* label = NewLabel(&frame, captionName, caption);
    SetRole(*label, TextRole::Heading);
    layout.addWidget(label);
    QLabel* select = NewLabel(&frame, selectName, Words("SELECT"));
    SetRole(*select, TextRole::Hint);
    layout.addWidget(select);
    frame.setAccessibleName(ToQt(caption));
    return label;
}

/// The position of the chosen option; 0 when none is.
std::size_t FirstChosen(std::span<QRadioButton* const> options) {
    const auto chosen =
        std::find_if(options.begin(), options.end(),
                     [](const QRadioButton* option) { return option->isChecked(); });
    return chosen == options.end() ? 0 : static_cast<std::size_t>(chosen - options.begin());
}

} // namespace

OptionsScreen::OptionsScreen(Session& session, const EstimateRequest& request,
                             EstimateClient& client)
    : TitledScreen(session, Controls::optionsScreen, Words("*ESTIMATION OPTIONS*"))
    , request_(request)
    , client_(client) {
    BuildPanel();
    if (const auto first = client.FirstChoices()) {
        Choose(*first);
    }
    auto* escape = new QShortcut(Qt::Key_Escape, this);
    escape->setAutoRepeat(false);
    connect(escape, &QShortcut::activated, this, [this] { CloseByFrame(); });
}

void OptionsScreen::Choose(const FillChoices& choices) {
    const auto minCut = std::find(AllMinCuts.begin(), AllMinCuts.end(), choices.ShortestPart);
    minCuts_.at(static_cast<std::size_t>(minCut - AllMinCuts.begin()))->setChecked(true);
    pieces_.at(static_cast<std::size_t>(choices.PiecesPerFill - 1))->setChecked(true);
    continue_->setEnabled(true);
}

void OptionsScreen::BuildMinCuts(QWidget& frame) {
    auto* layout = new QVBoxLayout(&frame);
    headings_.push_back(AddHeading(*layout, frame, Controls::minCutHeading,
                                   Words("MINIMUM CUT LENGTH"), Controls::minCutSelect));
    auto* group = new QButtonGroup(&frame);
    KeepTabAtChosen(*group);
    for (std::size_t i = 0; i < minCuts_.size(); ++i) {
        const MinCut minCut = AllMinCuts[i];
        auto* option = new QRadioButton(&frame);
        option->setObjectName(Controls::minCuts[i]);
        SetCaption(*option, MinCutCaption(minCut, request_.In));
        option->setToolTip(
            ToQt(Words("No part of a fill becomes shorter than %1",
                       MinCutInForce(minCut, request_.In, Shared().Project.Now.Scale))));
        group->addButton(option);
        layout->addWidget(option);
        minCuts_[i] = option;
    }
    layout->addStretch();
    minCuts_.front()->setChecked(true);
}

void OptionsScreen::BuildPieces(QWidget& frame) {
    auto* layout = new QVBoxLayout(&frame);
    headings_.push_back(AddHeading(*layout, frame, Controls::piecesHeading,
                                   Words("MAXIMUM NUMBER OF PIECES PER FILL"),
                                   Controls::piecesSelect));
    auto* group = new QButtonGroup(&frame);
    KeepTabAtChosen(*group);
    auto* grid = new QGridLayout;
    constexpr int Rows = 3;
    for (std::size_t i = 0; i < pieces_.size(); ++i) {
        const int index = static_cast<int>(i);
        const std::string caption = std::to_string(index + 1);
        auto* option = new QRadioButton(&frame);
        option->setObjectName(Controls::piecesPerFill[i]);
        SetCaption(*option, "&" + caption);
        group->addButton(option);
        grid->addWidget(option, index % Rows, index / Rows);
        pieces_[i] = option;
        OnClick(*option, {}, [this] { continue_->setEnabled(search_ == nullptr); });
    }
    layout->addLayout(grid);
    layout->addStretch();
}

QLayout* OptionsScreen::BuildProgress(QWidget& frame) {
    auto* row = new QHBoxLayout;
    bar_ = new QProgressBar(&frame);
    bar_->setTextVisible(false);
    NameControl(*bar_, Controls::searchProgress, ToQt(Words("Search progress")));
    percentage_ = NewLabel(&frame, Controls::searchPercentage, "");
    percentage_->ensurePolished(); // gives it the type that it is measured in
    percentage_->setMinimumWidth(
        percentage_->fontMetrics().horizontalAdvance(QStringLiteral("100%")));
    for (QWidget* progress : {static_cast<QWidget*>(bar_), static_cast<QWidget*>(percentage_)}) {
        KeepRoom(*progress);
        progress->hide();
    }
    continue_ = NewButton(&frame, Controls::layOutFills, Words("&Continue"));
    continue_->setEnabled(false);
    SetPrimary(*continue_);
    OnClick(*continue_, SearchFailure, [this] { Continue(); });
    row->addWidget(bar_, 1);
    row->addWidget(percentage_);
    row->addWidget(continue_);
    return row;
}

void OptionsScreen::BuildPanel() {
    QFrame* panel = NewFrame(&Body(), Controls::optionsPanel);
    SetPanel(*panel);
    auto* layout = new QVBoxLayout(panel);
    SetSpacing(*layout, Metrics::Margin);

    QLabel* heading = NewLabel(panel, Controls::optionsHeading, Words("ESTIMATING FILLS MENU"));
    SetRole(*heading, TextRole::Heading);
    heading->setAlignment(Qt::AlignHCenter);
    layout->addWidget(heading);

    groups_ = new QHBoxLayout;
    groups_->setSpacing(2 * Pixels(Metrics::Margin));
    QFrame* minCuts = NewFrame(panel, Controls::minCutGroup);
    BuildMinCuts(*minCuts);
    groups_->addWidget(minCuts);
    QFrame* pieces = NewFrame(panel, Controls::piecesGroup);
    BuildPieces(*pieces);
    groups_->addWidget(pieces);
    layout->addLayout(groups_);

    layout->addLayout(BuildProgress(*panel));
    AddPanel(*panel);
}

void OptionsScreen::OnBodyRoom() {
    const int inside = PanelRoom() - 2 * Pixels(Metrics::Margin);
    for (QLabel* heading : headings_) {
        const QMargins around = heading->parentWidget()->layout()->contentsMargins();
        WrapWithin(*heading, inside - around.left() - around.right());
    }
    SetStacked(*groups_, NaturalWidth(*groups_) > inside);
}

void OptionsScreen::TakeChoices() {
    request_.ShortestPart = AllMinCuts[FirstChosen(minCuts_)];
    request_.PiecesPerFill = static_cast<Integer>(FirstChosen(pieces_) + 1);
}

void OptionsScreen::EnableChoices(bool enabled) {
    continue_->setEnabled(enabled);
    for (QRadioButton* option : minCuts_) {
        option->setEnabled(enabled);
    }
    for (QRadioButton* option : pieces_) {
        option->setEnabled(enabled);
    }
}

void OptionsScreen::Continue() {
    TakeChoices();
    EnableChoices(false);
    SearchProgress progress(*bar_, *percentage_);
    search_ = &progress;
    bool made = false;
    Guard(SearchFailure, [&] { made = MakeEstimate(progress); });
    search_ = nullptr;
    if (made) {
        Shared().Go.Return();
    } else {
        ReturnWithoutEstimate();
    }
}

/// Make the estimate and hand it over. False when it was stopped.
bool OptionsScreen::MakeEstimate(SearchProgress& progress) {
    try {
        const Estimate estimate = tarn::MakeEstimate(Shared().Project.Now, request_, progress);
        if (progress.CatchUp()) {
            return false;
        }
        client_.EstimateReady(estimate);
        return true;
    } catch (const SearchStopped&) {
        return false;
    }
}

void OptionsScreen::ReturnWithoutEstimate() {
    Guard(EmptyFailure, [this] { client_.NoEstimate(); });
    Shared().Go.Return();
}

void OptionsScreen::OnCloseByFrame() {
    if (search_ != nullptr) {
        search_->Stop();
        return;
    }
    ReturnWithoutEstimate();
}

QWidget* OptionsScreen::FirstFocus() {
    return minCuts_.at(FirstChosen(minCuts_));
}

void OptionsScreen::keyPressEvent(QKeyEvent* event) {
    if (PressesFromOption(*event)) {
        continue_->click(); // whose handler is under the guard
        return;
    }
    TitledScreen::keyPressEvent(event);
}

} // namespace tarn
