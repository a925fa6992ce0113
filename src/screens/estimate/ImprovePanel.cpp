#include "screens/estimate/ImprovePanel.h"

#include "base/Lengths.h"
#include "base/Numbers.h"
#include "base/Words.h"
#include "estimate/Improvement.h"
#include "files/QtText.h"
#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tarn {

namespace {

constexpr qint64 ShowInterval = 100; ///< between two looks at the figures, milliseconds
constexpr int MillisecondsPerSecond = 1000;
constexpr double PanelWidth = 5400; ///< at least, twips

QLabel* NewLine(ImprovePanel& panel, const char* name, TextRole role) {
    QLabel* label = NewLabel(&panel, name, {});
    SetRole(*label, role);
    return label;
}

/// A bound in whole inches or centimetres, never more than is proven but for the tolerance of
/// equal lengths.
std::string BoundText(Double inches, Units units) {
    const Double whole = units == Units::Metric ? inches * CentimetresPerInch : inches;
    const Long length = ToLong(static_cast<long long>(Int(whole + LengthTolerance)));
    return WholeLengthText(length, units);
}

} // namespace

ImprovePanel::ImprovePanel(QWidget* parent, Units units)
    : QFrame(parent)
    , units_(units) {
    NameControl(*this, Controls::improvePanel, ToQt(Words("IMPROVE")));
    SetPanel(*this);
    setMinimumWidth(Pixels(PanelWidth));
    auto* rows = new QVBoxLayout(this);
    SetSpacing(*rows, Metrics::Margin);
    best_ = NewLine(*this, Controls::improvedSoFar, TextRole::Heading);
    least_ = NewLine(*this, Controls::improveBound, TextRole::Label);
    gap_ = NewLine(*this, Controls::improveGap, TextRole::Hint);
    for (QLabel* line : {best_, least_, gap_}) {
        rows->addWidget(line);
    }
    time_ = new QProgressBar(this);
    NameControl(*time_, Controls::improveTime, ToQt(Words("Time used")));
    time_->setRange(0, Seconds * MillisecondsPerSecond);
    time_->setTextVisible(false);
    rows->addWidget(time_);
    stop_ = NewButton(this, Controls::stopImproving, Words("STOP"));
    connect(stop_, &QPushButton::clicked, this, [this] { Stop(); });
    rows->addWidget(stop_, 0, Qt::AlignRight);
    take_ = NewButton(this, Controls::takeKept, Words("TAKE IT"));
    IgnoreSecondClick(*take_); // which was for STOP
    leave_ = NewButton(this, Controls::leaveKept, Words("LEAVE IT"));
    auto* answers = new QHBoxLayout;
    answers->setSpacing(Pixels(Metrics::Spacing));
    answers->addStretch();
    answers->addWidget(take_);
    answers->addWidget(leave_);
    rows->addLayout(answers);
    hide();
}

void ImprovePanel::ShowControls(bool ofSearch) {
    for (QWidget* control : {static_cast<QWidget*>(time_), static_cast<QWidget*>(stop_)}) {
        control->setVisible(ofSearch);
    }
    for (QPushButton* button : {take_, leave_}) {
        button->setVisible(!ofSearch);
    }
}

void ImprovePanel::Offer(const std::string& kept, const std::string& reason) {
    SetText(*best_, kept);
    SetText(*least_, Words("can be laid instead of the layout shown."));
    SetText(*gap_, reason);
    ShowControls(false);
    show();
    raise();
    take_->setFocus();
}

ImprovedEstimate ImprovePanel::Run(const Search& search) {
    struct InView {
        explicit InView(ImprovePanel& panel)
            : Panel(panel) {
            Panel.running_ = true;
            Panel.stopped_ = false;
            Panel.shown_ = false;
            SetText(*Panel.best_, Words("Looking for a better layout"));
            SetText(*Panel.least_, {});
            SetText(*Panel.gap_, {});
            Panel.time_->setValue(0);
            Panel.ShowControls(true);
            Panel.show();
            Panel.raise();
            Panel.stop_->setFocus();
            Panel.sinceStart_.start();
            Panel.yield_ = EventYield();
        }
        ~InView() {
            Panel.running_ = false;
            Panel.hide();
        }
        InView(const InView&) = delete;
        InView& operator=(const InView&) = delete;

        ImprovePanel& Panel;
    };
    const InView inView(*this);
    ImproveLimits limits;
    limits.Seconds = Seconds;
    ImprovedEstimate result = search(limits, *this);
    // A close that came until now was meant for the search.
    yield_.Now();
    return result;
}

bool ImprovePanel::Progress(const ImproveProgress& progress) {
    if (!shown_ || sinceShown_.elapsed() >= ShowInterval) {
        Show(progress);
        shown_ = true;
        sinceShown_.start();
    }
    yield_.WhenDue();
    return !stopped_;
}

void ImprovePanel::Show(const ImproveProgress& progress) {
    SetText(*best_, Words("Fills so far: %1", LengthText(progress.Best, units_)));
    const bool proven = progress.Bound > 0 && !progress.StartBelowRules;
    SetText(*least_, proven
                         ? Words("No layout takes less than: %1", BoundText(progress.Bound, units_))
                         : std::string());
    SetText(*gap_, GapText(progress));
    time_->setValue(static_cast<int>(
        std::min<qint64>(sinceStart_.elapsed(), qint64{Seconds} * MillisecondsPerSecond)));
}

} // namespace tarn
