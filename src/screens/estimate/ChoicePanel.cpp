#include "screens/estimate/ChoicePanel.h"

#include "base/Words.h"
#include "estimate/RollWidth.h"
#include "files/QtText.h"
#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Guard.h"
#include "screens/Theme.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace tarn {

namespace {

constexpr int OtherWidth = static_cast<int>(Controls::standardWidths.size());
constexpr double BoxWidth = 900; ///< twips
constexpr auto ChoiceFailure = Words("The choice could not be shown.");

/// What stands behind the boxes, and the letters that go to the boxes of a free width. Those are
/// read as feet and inches in every unit (see OtherRollWidth).
struct UnitLabels {
    Phrase OtherMajor;
    Phrase OtherMinor;
    Phrase Repeat;
};
constexpr UnitLabels ImperialLabels{Words("&FEET"), Words("I&NCHES"), Words("INCHES")};
constexpr UnitLabels MetricLabels{Words("ME&TER"), Words("CM"), Words("CMS")};

const UnitLabels& LabelsOf(Units units) {
    return units == Units::Metric ? MetricLabels : ImperialLabels;
}

void AddOption(QBoxLayout& column, QButtonGroup& group, int id, const char* name,
               std::string_view caption) {
    auto* option = new QRadioButton;
    option->setObjectName(name);
    SetCaption(*option, caption);
    group.addButton(option, id);
    column.addWidget(option);
}

void SpaceOut(QLayout& layout) {
    SetSpacing(layout, 0, Metrics::Spacing / 2);
}

} // namespace

ChoicePanel::ChoicePanel(QWidget* parent, Dialogs& boxes, Units units)
    : QFrame(parent)
    , boxes_(boxes)
    , units_(units) {
    NameControl(*this, Controls::choicePanel, ToQt(Words("Estimate choices")));
    SetPanel(*this);
    auto* rows = new QVBoxLayout(this);
    SetSpacing(*rows, Metrics::Margin, Metrics::Margin);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(Pixels(2 * Metrics::Margin));
    columns->addLayout(BuildCarpets());
    columns->addLayout(BuildWidths());
    rows->addLayout(columns);
    rows->addLayout(BuildLayAndMatch());
    rows->addLayout(BuildButtons());
    SetTabOrder();
    Connect();
    lays_.button(static_cast<int>(Lay::Down))->setChecked(true);
    MatchClicked();
    other_->hide();
}

QBoxLayout* ChoicePanel::BuildCarpets() {
    auto* column = new QVBoxLayout;
    SpaceOut(*column);
    for (std::size_t code = 0; code < Controls::carpets.size(); ++code) {
        const std::string number = std::to_string(code + 1);
        AddOption(*column, carpets_, static_cast<int>(code), Controls::carpets[code],
                  Words("CARPET - &%1", number));
    }
    column->addStretch();
    return column;
}

QBoxLayout* ChoicePanel::BuildWidths() {
    auto* column = new QVBoxLayout;
    SpaceOut(*column);
    const auto& captions = WidthCaptions(units_);
    for (std::size_t i = 0; i < captions.size(); ++i) {
        AddOption(*column, widths_, static_cast<int>(i), Controls::standardWidths[i], captions[i]);
    }
    AddOption(*column, widths_, OtherWidth, Controls::otherWidth, Words("CARPET WIDT&H OTHER"));
    column->addWidget(BuildOther());
    column->addStretch();
    return column;
}

QWidget* ChoicePanel::BuildOther() {
    other_ = new QWidget;
    other_->setObjectName(Controls::otherWidthBoxes);
    KeepRoom(*other_);
    auto* rows = new QGridLayout(other_);
    SpaceOut(*rows);
    const UnitLabels& labels = LabelsOf(units_);
    otherBoxes_ = {NewBox(Controls::otherWidthMajor), NewBox(Controls::otherWidthMinor)};
    rows->addWidget(otherBoxes_[0], 0, 0);
    rows->addWidget(
        NewLabelFor(*otherBoxes_[0], other_, Controls::otherWidthMajorUnit, labels.OtherMajor), 0,
        1);
    rows->addWidget(otherBoxes_[1], 0, 2);
    rows->addWidget(
        NewLabelFor(*otherBoxes_[1], other_, Controls::otherWidthMinorUnit, labels.OtherMinor), 0,
        3);
    otherHint_ = NewLabel(other_, Controls::otherWidthHint, "");
    SetRole(*otherHint_, TextRole::Warning);
    rows->addWidget(otherHint_, 1, 0, 1, 4);
    rows->setColumnStretch(3, 1);
    return other_;
}

QBoxLayout* ChoicePanel::BuildLayAndMatch() {
    auto* rows = new QVBoxLayout;
    SpaceOut(*rows);
    auto* lays = new QHBoxLayout;
    lays->setSpacing(Pixels(2 * Metrics::Margin));
    AddOption(*lays, lays_, static_cast<int>(Lay::Down), Controls::downLay, Words("&DOWN LAY"));
    AddOption(*lays, lays_, static_cast<int>(Lay::Cross), Controls::crossLay, Words("CROSS &LAY"));
    lays->addStretch();
    rows->addLayout(lays);
    match_ = new QCheckBox(this);
    match_->setObjectName(Controls::matchPattern);
    SetCaption(*match_, Words("&MATCH PATTERN"));
    rows->addWidget(match_, 0, Qt::AlignLeft);
    auto* repeat = new QHBoxLayout;
    SpaceOut(*repeat);
    const std::string_view unit = LabelsOf(units_).Repeat;
    repeatBoxes_[0] = AddRepeat(
        *repeat, {Controls::repeatWidth, Controls::repeatWidthCaption, Controls::repeatWidthUnit},
        Words("&WIDTH:"), unit);
    repeat->addSpacing(Pixels(Metrics::Margin));
    repeatBoxes_[1] = AddRepeat(
        *repeat,
        {Controls::repeatLength, Controls::repeatLengthCaption, Controls::repeatLengthUnit},
        Words("LEN&GTH:"), unit);
    repeat->addStretch();
    rows->addLayout(repeat);
    return rows;
}

QLineEdit* ChoicePanel::AddRepeat(QBoxLayout& row, const RepeatNames& names,
                                  std::string_view caption, std::string_view unit) {
    QLineEdit* box = NewBox(names.Box);
    row.addWidget(NewLabelFor(*box, this, names.Caption, caption));
    row.addWidget(box);
    row.addWidget(NewLabel(this, names.Unit, unit));
    return box;
}

QBoxLayout* ChoicePanel::BuildButtons() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Pixels(Metrics::Spacing));
    last_ = NewButton(this, Controls::lastChoices, Words("L&AST CHOICES"));
    last_->setEnabled(false);
    row->addWidget(last_);
    row->addStretch();
    ok_ = NewButton(this, Controls::acceptChoices, Words("&OK"));
    cancel_ = NewButton(this, Controls::cancelChoices, Words("&CANCEL"));
    SetPrimary(*ok_);
    for (QPushButton* button : {ok_, cancel_}) {
        button->setMinimumWidth(Pixels(Metrics::ButtonWidth));
        row->addWidget(button);
    }
    return row;
}

QLineEdit* ChoicePanel::NewBox(const char* name) {
    auto* box = new QLineEdit(this);
    box->setObjectName(name);
    KeepTextWidth(*box, BoxWidth);
    box->installEventFilter(this);
    return box;
}

void ChoicePanel::SetTabOrder() {
    std::vector<QWidget*> order;
    const auto add = [&order](const QButtonGroup& group) {
        for (QAbstractButton* option : group.buttons()) {
            order.push_back(option);
        }
    };
    add(carpets_);
    add(widths_);
    order.insert(order.end(), otherBoxes_.begin(), otherBoxes_.end());
    add(lays_);
    order.insert(order.end(), {match_, repeatBoxes_[0], repeatBoxes_[1], last_, ok_, cancel_});
    SetTabOrders(order);
}

void ChoicePanel::Connect() {
    for (QButtonGroup* group : {&carpets_, &widths_, &lays_}) {
        KeepTabAtChosen(*group);
    }
    for (QButtonGroup* group : {&carpets_, &widths_}) {
        const auto clicked = [this, group] {
            Guarded(boxes_, ChoiceFailure, [&] { OptionClicked(*group); });
        };
        connect(group, &QButtonGroup::idClicked, this, clicked);
        // The program's own choices count as clicks.
        connect(group, &QButtonGroup::idToggled, this, [clicked](int, bool checked) {
            if (checked) {
                clicked();
            }
        });
    }
    connect(match_, &QCheckBox::toggled, this,
            [this] { Guarded(boxes_, ChoiceFailure, [this] { MatchClicked(); }); });
    for (const QLineEdit* box : otherBoxes_) {
        connect(box, &QLineEdit::textChanged, this,
                [this] { Guarded(boxes_, ChoiceFailure, [this] { ShowOtherHint(); }); });
    }
}

void ChoicePanel::OfferCarpets(const CarpetsFound& carpets) {
    for (QAbstractButton* option : carpets_.buttons()) {
        const auto code = static_cast<std::size_t>(carpets_.id(option));
        option->setEnabled(carpets.HasRooms[code]);
        SetMarked(*option, false);
    }
    if (carpets.Lowest) {
        carpets_.button(*carpets.Lowest)->setChecked(true);
    }
}

void ChoicePanel::ChooseDefaultWidth() {
    QAbstractButton& option = *widths_.button(static_cast<int>(DefaultWidth));
    option.setChecked(true);
    SetMarked(option, true);
}

EstimateChoices ChoicePanel::Choices() const {
    EstimateChoices choices;
    choices.Direction = static_cast<Lay>(lays_.checkedId());
    choices.Carpet = static_cast<Byte>(carpets_.checkedId());
    const int width = widths_.checkedId();
    if (width >= 0 && width != OtherWidth) {
        choices.StandardWidth = static_cast<std::size_t>(width);
    }
    choices.OtherFeet = FromQt(otherBoxes_[0]->text());
    choices.OtherInches = FromQt(otherBoxes_[1]->text());
    choices.Match = match_->isChecked();
    choices.MatchWidth = FromQt(repeatBoxes_[0]->text());
    choices.MatchLength = FromQt(repeatBoxes_[1]->text());
    return choices;
}

void ChoicePanel::Choose(const EstimateChoices& choices) {
    QAbstractButton& carpet = *carpets_.button(choices.Carpet);
    if (carpet.isEnabled()) {
        carpet.setChecked(true);
    }
    const int width = choices.StandardWidth ? static_cast<int>(*choices.StandardWidth) : OtherWidth;
    widths_.button(width)->setChecked(true);
    OptionClicked(widths_); // also where it was chosen before: as a click
    lays_.button(static_cast<int>(choices.Direction))->setChecked(true);
    match_->setChecked(choices.Match);
    otherBoxes_[0]->setText(ToQt(choices.OtherFeet));
    otherBoxes_[1]->setText(ToQt(choices.OtherInches));
    repeatBoxes_[0]->setText(ToQt(choices.MatchWidth));
    repeatBoxes_[1]->setText(ToQt(choices.MatchLength));
    ok_->setFocus();
}

QWidget& ChoicePanel::FirstFocus() const {
    QAbstractButton* carpet = carpets_.checkedButton();
    return carpet != nullptr ? static_cast<QWidget&>(*carpet) : *ok_;
}

void ChoicePanel::FocusCarpet() {
    FirstFocus().setFocus();
}

void ChoicePanel::FocusRefused(const ChoicesRefusal& refusal) {
    const bool width = refusal.What == ChoicesRefusal::Kind::Width;
    (width ? otherBoxes_ : repeatBoxes_)[refusal.Box]->setFocus();
}

/// The option clicked gets no further mark.
void ChoicePanel::OptionClicked(const QButtonGroup& group) {
    for (QAbstractButton* option : group.buttons()) {
        SetMarked(*option, false);
    }
    if (&group == &widths_) {
        other_->setVisible(widths_.checkedId() == OtherWidth);
    }
}

void ChoicePanel::MatchClicked() {
    for (QLineEdit* box : repeatBoxes_) {
        box->setEnabled(match_->isChecked());
    }
}

void ChoicePanel::ShowOtherHint() {
    if (units_ == Units::Metric) {
        SetText(*otherHint_,
                OtherWidthHint(FromQt(otherBoxes_[0]->text()), FromQt(otherBoxes_[1]->text())));
    }
}

/// Enter goes on to the next box, from the last one to OK. Answers whether `box` is one of those.
bool ChoicePanel::PressEnter(const QObject* box) {
    for (const auto& boxes : {otherBoxes_, repeatBoxes_}) {
        if (box == boxes[0] || box == boxes[1]) {
            QWidget* next = box == boxes[0] ? static_cast<QWidget*>(boxes[1]) : ok_;
            next->setFocus();
            return true;
        }
    }
    return false;
}

/// Enter in a box is swallowed here: it would press the button that it moves the focus to.
bool ChoicePanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent*>(event)->key();
        bool swallowed = false;
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            Guarded(boxes_, ChoiceFailure, [&] { swallowed = PressEnter(watched); });
        }
        if (swallowed) {
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

} // namespace tarn
