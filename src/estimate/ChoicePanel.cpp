#include "estimate/ChoicePanel.h"

#include "app/Arrangement.h"
#include "app/Controls.h"
#include "app/Display.h"
#include "app/Guard.h"
#include "app/QtText.h"
#include "app/Theme.h"
#include "estimate/Picture.h"
#include "estimate/RollWidth.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace tarn {

namespace {

constexpr int FirstWidth = 11; ///< of Option1: the standard widths, then OTHER
constexpr int OtherWidth = 15;
constexpr double BoxWidth = 900; ///< twips
constexpr const char* ChoiceFailure = "The choice could not be shown.";

/// The unit labels Label1(0) .. Label1(3) and the letters that go to what they label.
struct UnitLabel {
    const char* Caption;
    char Mnemonic;
};
constexpr std::array<UnitLabel, 4> ImperialUnits{
    {{"FEET", 'F'}, {"INCHES", 'N'}, {"INCHES", 0}, {"INCHES", 0}}};
constexpr std::array<UnitLabel, 4> MetricUnits{{{"METER", 'T'}, {"CM", 0}, {"CMS", 0}, {"CMS", 0}}};

const UnitLabel& UnitOf(bool metric, std::size_t index) {
    return metric ? MetricUnits[index] : ImperialUnits[index];
}

void AddOption(QBoxLayout& column, QButtonGroup& group, const char* array, int index,
               std::string_view caption, char mnemonic) {
    auto* option = new QRadioButton;
    option->setObjectName(IndexedName(array, index));
    SetCaption(*option, caption, mnemonic);
    group.addButton(option, index);
    column.addWidget(option);
}

void SpaceOut(QLayout& layout) {
    SetSpacing(layout, 0, Metrics::Spacing / 2);
}

} // namespace

ChoicePanel::ChoicePanel(QWidget* parent, Dialogs& boxes, bool metric)
    : QFrame(parent)
    , boxes_(boxes)
    , metric_(metric) {
    NameControl(*this, QStringLiteral("Frame7"), QStringLiteral("Estimate choices"));
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
    lays_.button(0)->setChecked(true);
    MatchClicked();
    other_->hide();
}

QBoxLayout* ChoicePanel::BuildCarpets() {
    auto* column = new QVBoxLayout;
    SpaceOut(*column);
    for (int i = 0; i < FirstTileCode; ++i) {
        const std::string number = std::to_string(i + 1);
        AddOption(*column, carpets_, "Option1", i, "CARPET - " + number, number[0]);
    }
    column->addStretch();
    return column;
}

QBoxLayout* ChoicePanel::BuildWidths() {
    auto* column = new QVBoxLayout;
    SpaceOut(*column);
    int index = FirstWidth;
    for (const std::string_view caption : WidthCaptions(metric_)) {
        AddOption(*column, widths_, "Option1", index++, caption, 0);
    }
    AddOption(*column, widths_, "Option1", OtherWidth, "CARPET WIDTH OTHER", 'H');
    column->addWidget(BuildOther());
    column->addStretch();
    return column;
}

QWidget* ChoicePanel::BuildOther() {
    other_ = new QWidget;
    other_->setObjectName(QStringLiteral("OtherWidth"));
    KeepRoom(*other_);
    auto* rows = new QGridLayout(other_);
    SpaceOut(*rows);
    for (std::size_t i = 0; i < otherBoxes_.size(); ++i) {
        const int index = static_cast<int>(i);
        const UnitLabel& unit = UnitOf(metric_, i);
        otherBoxes_[i] = NewBox("Text1", index);
        rows->addWidget(otherBoxes_[i], 0, 2 * index);
        rows->addWidget(NewLabelFor(*otherBoxes_[i], other_, IndexedName("Label1", index),
                                    unit.Caption, unit.Mnemonic),
                        0, 2 * index + 1);
    }
    otherHint_ = NewLabel(other_, QStringLiteral("Label4"), "");
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
    AddOption(*lays, lays_, "Option2", 0, "DOWN LAY", 'D');
    AddOption(*lays, lays_, "Option2", 1, "CROSS LAY", 'L');
    lays->addStretch();
    rows->addLayout(lays);
    match_ = new QCheckBox(this);
    match_->setObjectName(QStringLiteral("Check1"));
    SetCaption(*match_, "MATCH PATTERN", 'M');
    rows->addWidget(match_, 0, Qt::AlignLeft);
    auto* repeat = new QHBoxLayout;
    SpaceOut(*repeat);
    AddRepeat(*repeat, 0, "WIDTH:", 'W');
    repeat->addSpacing(Pixels(Metrics::Margin));
    AddRepeat(*repeat, 1, "LENGTH:", 'G');
    repeat->addStretch();
    rows->addLayout(repeat);
    return rows;
}

void ChoicePanel::AddRepeat(QBoxLayout& row, int index, const char* caption, char mnemonic) {
    const auto i = static_cast<std::size_t>(index);
    const int unitLabel = index + 2;
    QLineEdit* box = NewBox("Text2", index);
    repeatBoxes_[i] = box;
    row.addWidget(NewLabelFor(*box, this, IndexedName("Label3", index), caption, mnemonic));
    row.addWidget(box);
    row.addWidget(NewLabel(this, IndexedName("Label1", unitLabel),
                           UnitOf(metric_, static_cast<std::size_t>(unitLabel)).Caption));
}

QBoxLayout* ChoicePanel::BuildButtons() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Pixels(Metrics::Spacing));
    row->addStretch();
    ok_ = NewButton(this, IndexedName("Command1", 0), "OK", 'O');
    cancel_ = NewButton(this, IndexedName("Command1", 1), "CANCEL", 'C');
    SetPrimary(*ok_);
    for (QPushButton* button : {ok_, cancel_}) {
        button->setMinimumWidth(Pixels(Metrics::ButtonWidth));
        row->addWidget(button);
    }
    return row;
}

QLineEdit* ChoicePanel::NewBox(const char* array, int index) {
    auto* box = new QLineEdit(this);
    box->setObjectName(IndexedName(array, index));
    box->setFixedWidth(Pixels(BoxWidth));
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
    order.insert(order.end(), {match_, repeatBoxes_[0], repeatBoxes_[1], ok_, cancel_});
    SetTabOrders(order);
}

void ChoicePanel::Connect() {
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

void ChoicePanel::LoadCData(const CarpetsFound& carpets) {
    for (QAbstractButton* option : carpets_.buttons()) {
        const auto code = static_cast<std::size_t>(carpets_.id(option));
        option->setEnabled(carpets.HasRooms[code]);
        SetForeColor(*option, static_cast<int>(QBColor::Black));
    }
    if (carpets.Lowest) {
        carpets_.button(*carpets.Lowest)->setChecked(true);
    }
}

void ChoicePanel::ChooseDefaultWidth() {
    QAbstractButton& option = *widths_.button(FirstWidth + static_cast<int>(DefaultWidth));
    option.setChecked(true);
    SetForeColor(option, static_cast<int>(QBColor::Green));
}

EstimateChoices ChoicePanel::Choices() const {
    EstimateChoices choices;
    choices.DownLay = lays_.checkedId() == 0;
    if (carpets_.checkedId() >= 0) {
        choices.Carpet = static_cast<Byte>(carpets_.checkedId());
    }
    const QAbstractButton* width = widths_.checkedButton();
    if (width != nullptr && widths_.checkedId() != OtherWidth) {
        choices.WidthCaption = FromQt(CaptionOf(*width));
    }
    choices.OtherFeet = FromQt(otherBoxes_[0]->text());
    choices.OtherInches = FromQt(otherBoxes_[1]->text());
    choices.Match = match_->isChecked();
    choices.MatchWidth = FromQt(repeatBoxes_[0]->text());
    choices.MatchLength = FromQt(repeatBoxes_[1]->text());
    return choices;
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
        SetForeColor(*option, static_cast<int>(QBColor::Black));
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
    if (metric_) {
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
