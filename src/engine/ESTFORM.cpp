#include "engine/ESTFORM.h"

#include "app/Arrangement.h"
#include "app/Controls.h"
#include "app/Display.h"
#include "app/Numbers.h"
#include "app/QtText.h"
#include "app/Theme.h"
#include "engine/MultiEstimate.h"
#include "engine/SearchProgress.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>
#include <span>

namespace tarn {

namespace {

constexpr const char* SearchFailure = "The fills could not be laid out.";
constexpr const char* EmptyFailure = "The estimate could not be emptied.";

QFrame* NewFrame(QWidget* parent, const char* name) {
    auto* frame = new QFrame(parent);
    frame->setObjectName(QString::fromLatin1(name));
    return frame;
}

/// The caption and "SELECT" above a group of options.
void AddHeading(QVBoxLayout& layout, QWidget& frame, const char* captionName,
                std::string_view caption, const char* selectName) {
    QLabel* label = NewLabel(&frame, QString::fromLatin1(captionName), caption);
    SetRole(*label, TextRole::Heading);
    layout.addWidget(label);
    QLabel* select = NewLabel(&frame, QString::fromLatin1(selectName), "SELECT");
    SetRole(*select, TextRole::Hint);
    layout.addWidget(select);
    frame.setAccessibleName(ToQt(caption));
}

/// The position of the chosen option; 0 when none is.
Integer FirstChosen(std::span<QRadioButton* const> options) {
    const auto chosen =
        std::find_if(options.begin(), options.end(),
                     [](const QRadioButton* option) { return option->isChecked(); });
    return chosen == options.end() ? Integer{0} : ToInteger(chosen - options.begin());
}

} // namespace

ESTFORM::ESTFORM(Session& session, FillsClient& client)
    : TitledScreen(session, QStringLiteral("ESTFORM"), "*ESTIMATION OPTIONS*")
    , client_(client) {
    BuildFrame();
}

void ESTFORM::BuildMinCuts(QWidget& frame) {
    auto* layout = new QVBoxLayout(&frame);
    AddHeading(*layout, frame, "Label1", "MINIMUM CUT LENGTH", "Label4");
    auto* group = new QButtonGroup(&frame);
    const auto& captions = State().IsMetric() ? MetricMinCutCaptions : ImperialMinCutCaptions;
    for (std::size_t i = 0; i < minCuts_.size(); ++i) {
        const auto index = static_cast<Integer>(i);
        auto* option = new QRadioButton(&frame);
        option->setObjectName(IndexedName("Option2", index));
        SetCaption(*option, captions[i]);
        option->setToolTip(
            ToQt("No part of a fill becomes shorter than " + MinCutInForce(State(), index)));
        group->addButton(option);
        layout->addWidget(option);
        minCuts_[i] = option;
    }
    layout->addStretch();
    minCuts_.front()->setChecked(true);
}

void ESTFORM::BuildPieces(QWidget& frame) {
    auto* layout = new QVBoxLayout(&frame);
    AddHeading(*layout, frame, "Label2", "MAXIMUM NUMBER OF PIECES PER FILL", "Label3");
    auto* group = new QButtonGroup(&frame);
    auto* grid = new QGridLayout;
    constexpr int Rows = 3;
    for (std::size_t i = 0; i < pieces_.size(); ++i) {
        const int index = static_cast<int>(i);
        const std::string caption = std::to_string(index + 1);
        auto* option = new QRadioButton(&frame);
        option->setObjectName(IndexedName("Option1", index));
        SetCaption(*option, caption, caption.front());
        group->addButton(option);
        grid->addWidget(option, index % Rows, index / Rows);
        pieces_[i] = option;
        OnClick(*option, {}, [this] { continue_->setEnabled(search_ == nullptr); });
    }
    layout->addLayout(grid);
    layout->addStretch();
}

void ESTFORM::BuildFrame() {
    QFrame* frame10 = NewFrame(&Body(), "Frame10");
    SetPanel(*frame10);
    auto* layout = new QVBoxLayout(frame10);
    SetSpacing(*layout, Metrics::Margin);

    QLabel* heading = NewLabel(frame10, QStringLiteral("Label5"), "ESTIMATING FILLS MENU");
    SetRole(*heading, TextRole::Heading);
    heading->setAlignment(Qt::AlignHCenter);
    layout->addWidget(heading);

    auto* choices = new QHBoxLayout;
    choices->setSpacing(2 * Pixels(Metrics::Margin));
    QFrame* frame2 = NewFrame(frame10, "Frame2");
    BuildMinCuts(*frame2);
    choices->addWidget(frame2);
    QFrame* frame1 = NewFrame(frame10, "Frame1");
    BuildPieces(*frame1);
    choices->addWidget(frame1);
    layout->addLayout(choices);

    auto* bottom = new QHBoxLayout;
    bar_ = new QProgressBar(frame10);
    bar_->setTextVisible(false);
    NameControl(*bar_, QStringLiteral("ProgressBar1"), QStringLiteral("Search progress"));
    percentage_ = NewLabel(frame10, QStringLiteral("Label6"), "");
    percentage_->ensurePolished(); // gives it the type that it is measured in
    percentage_->setMinimumWidth(
        percentage_->fontMetrics().horizontalAdvance(QStringLiteral("100%")));
    for (QWidget* progress : {static_cast<QWidget*>(bar_), static_cast<QWidget*>(percentage_)}) {
        KeepRoom(*progress);
        progress->hide();
    }
    continue_ = NewButton(frame10, QStringLiteral("Command1"), "Continue", 'C');
    continue_->setEnabled(false);
    SetPrimary(*continue_);
    OnClick(*continue_, SearchFailure, [this] { Continue(); });
    bottom->addWidget(bar_, 1);
    bottom->addWidget(percentage_);
    bottom->addWidget(continue_);
    layout->addLayout(bottom);
    AddPanel(*frame10);
}

Integer ESTFORM::ChosenOption() const {
    const Integer minCut = FirstChosen(minCuts_);
    const Integer pieces = FirstChosen(pieces_);
    return PackEstOption(minCut, ToInteger(pieces + 1));
}

void ESTFORM::EnableChoices(bool enabled) {
    continue_->setEnabled(enabled);
    for (QRadioButton* option : minCuts_) {
        option->setEnabled(enabled);
    }
    for (QRadioButton* option : pieces_) {
        option->setEnabled(enabled);
    }
}

void ESTFORM::Continue() {
    State().EstOption = ChosenOption();
    EnableChoices(false);
    SearchProgress progress(*bar_, *percentage_, [this] { client_.LayoutReady(); });
    search_ = &progress;
    bool done = false;
    Guard(SearchFailure, [&] {
        done = Shared().Engine.PieceCount > 0 &&
               MultiEstimate(State(), Shared().Engine, progress) == SearchOutcome::Done &&
               !progress.Stopped();
    });
    search_ = nullptr;
    if (done) {
        Shared().Go.Return();
    } else {
        ReturnWithoutLayout();
    }
}

void ESTFORM::ReturnWithoutLayout() {
    Guard(EmptyFailure, [this] { client_.NoLayout(); });
    Shared().Go.Return();
}

void ESTFORM::OnCloseByFrame() {
    if (search_ != nullptr) {
        search_->Stop();
        return;
    }
    ReturnWithoutLayout();
}

QWidget* ESTFORM::FirstFocus() {
    return minCuts_.front();
}

} // namespace tarn
