#include "screens/order/OrderChoicePanel.h"

#include "base/Text.h"
#include "base/Words.h"
#include "files/QtText.h"
#include "project/Coverings.h"
#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Narrowing.h"
#include "screens/Theme.h"
#include "screens/order/RollTable.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace tarn {

namespace {

constexpr double FieldWidth = 1150; ///< twips
constexpr int LongestField = 20;    ///< characters of a field
constexpr int RefusalLines = 2;     ///< kept free, so that nothing jumps
constexpr auto PatternHint = Words(
    "Across is the distance to the next column of the pattern. With a half drop, which sets it "
    "half a repeat further along, that is half the repeat of makers who name the whole design.");

/// A field of the panel by the option of the request that it is for.
struct FieldOf {
    const char* Option;
    const char* Name;
    const char* CaptionName;
    Phrase Caption;
    std::string TypedOrder::*Text;
    int Row; ///< in the grid of fields
    int Column;
};
constexpr std::array<FieldOf, 9> Fields{
    {{"selvage", Controls::orderSelvage, Controls::orderSelvageCaption, Words("SELVA&GE"),
      &TypedOrder::Selvage, 0, 0},
     {"step", Controls::orderStep, Controls::orderStepCaption, Words("STEP"), &TypedOrder::Step, 0,
      1},
     {"trim along", Controls::orderTrimAlong, Controls::orderTrimAlongCaption, Words("TRIM &ALONG"),
      &TypedOrder::TrimAlong, 1, 0},
     {"trim across", Controls::orderTrimAcross, Controls::orderTrimAcrossCaption,
      Words("TRIM ACR&OSS"), &TypedOrder::TrimAcross, 1, 1},
     {"shortest part", Controls::orderShortestPart, Controls::orderShortestPartCaption,
      Words("S&HORTEST PART"), &TypedOrder::ShortestPart, 2, 1},
     {"pattern across", Controls::orderPatternAcross, Controls::orderPatternAcrossCaption,
      Words("PATTER&N ACROSS"), &TypedOrder::PatternAcross, 4, 0},
     {"pattern along", Controls::orderPatternAlong, Controls::orderPatternAlongCaption,
      Words("PATT&ERN ALONG"), &TypedOrder::PatternAlong, 4, 1},
     {"pattern drift", Controls::orderPatternDrift, Controls::orderPatternDriftCaption,
      Words("DRIFT %"), &TypedOrder::PatternDrift, 5, 1},
     {"seconds", Controls::orderSeconds, Controls::orderSecondsCaption, Words("SECONDS"),
      &TypedOrder::Seconds, 7, 1}}};
constexpr int PartsRow = 2;
constexpr int JoinRow = 3;
constexpr int HalfDropRow = 5;
constexpr int HintRow = 6;

const FieldOf& FieldFor(std::string_view option) {
    return *std::find_if(Fields.begin(), Fields.end(),
                         [&](const FieldOf& field) { return field.Option == option; });
}

/// A control with its label before it.
QBoxLayout* Labelled(QLabel* label, QWidget* control) {
    auto* row = new QHBoxLayout;
    SetSpacing(*row, 0, Metrics::Spacing / 2);
    row->addWidget(label, 1);
    row->addWidget(control);
    return row;
}

} // namespace

OrderChoicePanel::OrderChoicePanel(QWidget* parent, Units units)
    : QFrame(parent)
    , units_(units) {
    NameControl(*this, Controls::orderChoices, ToQt(Words("Order choices")));
    SetPanel(*this);
    columns_ = new QBoxLayout(QBoxLayout::TopToBottom);
    SetSpacing(*columns_, 0, Metrics::Spacing);
    columns_->addLayout(BuildRolls(), 1);
    columns_->addLayout(BuildFields());
    refusal_ = NewLabel(this, Controls::orderRefusal, {});
    SetRole(*refusal_, TextRole::Warning);
    refusal_->setWordWrap(true);
    refusal_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    refusal_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    refusal_->ensurePolished(); // gives it the type that it is measured in
    refusal_->setMinimumHeight(RefusalLines * refusal_->fontMetrics().lineSpacing());
    KeepRoom(*refusal_);
    refusal_->hide();
    auto* rows = new QVBoxLayout(this);
    SetSpacing(*rows, Metrics::Spacing);
    rows->addLayout(columns_, 1);
    rows->addWidget(refusal_);
    const TypedOrder usual = UsualTexts(units_);
    for (const FieldOf& field : Fields) {
        fields_.at(field.Option)->setPlaceholderText(ToQt(usual.*field.Text));
    }
    Connect();
}

QBoxLayout* OrderChoicePanel::BuildRolls() {
    auto* rows = new QVBoxLayout;
    SetSpacing(*rows, 0, Metrics::Spacing / 2);
    carpet_ = new QComboBox(this);
    carpet_->setObjectName(Controls::orderCarpet);
    rows->addLayout(Labelled(
        NewLabelFor(*carpet_, this, Controls::orderCarpetCaption, Words("&CARPET")), carpet_));
    note_ = NewLabel(this, Controls::orderNote, {});
    SetRole(*note_, TextRole::Warning);
    note_->setWordWrap(true);
    note_->hide();
    rows->addWidget(note_);
    rolls_ = new RollTable(this, units_);
    rolls_->setObjectName(Controls::orderRolls);
    auto* remove = NewButton(this, Controls::removeRoll, Words("REMO&VE ROLL"));
    connect(remove, &QPushButton::clicked, this, [this] { rolls_->RemoveCurrent(); });
    rows->addLayout(
        Labelled(NewLabelFor(*rolls_, this, Controls::orderRollsCaption, Words("&ROLLS")), remove));
    rows->addWidget(rolls_, 1);
    down_ = NewBox(Controls::orderDownLay, Words("&DOWN LAY"));
    cross_ = NewBox(Controls::orderCrossLay, Words("CROSS &LAY"));
    auto* lays = new QHBoxLayout;
    lays->addWidget(down_);
    lays->addWidget(cross_);
    lays->addStretch();
    rows->addLayout(lays);
    tabOrder_ = {carpet_, rolls_, remove, down_, cross_};
    return rows;
}

QBoxLayout* OrderChoicePanel::BuildFields() {
    auto* grid = grid_ = new QGridLayout;
    grid->setHorizontalSpacing(Pixels(Metrics::Margin));
    grid->setVerticalSpacing(Pixels(Metrics::Spacing / 2));
    const auto add = [&](const char* option) {
        const FieldOf& field = FieldFor(option);
        QLineEdit* box = fields_[option] = new QLineEdit(this);
        box->setObjectName(field.Name);
        box->setMaxLength(LongestField);
        KeepTextWidth(*box, FieldWidth);
        captions_.push_back(NewLabelFor(*box, this, field.CaptionName, field.Caption));
        grid->addLayout(Labelled(captions_.back(), box), field.Row, field.Column);
        tabOrder_.push_back(box);
    };
    const auto addBox = [&](QCheckBox* box, int row, int columns) {
        grid->addWidget(box, row, 0, 1, columns);
        tabOrder_.push_back(box);
    };
    for (const char* option : {"selvage", "step", "trim along", "trim across"}) {
        add(option);
    }
    OfferParts();
    captions_.push_back(
        NewLabelFor(*parts_, this, Controls::orderPartingCaption, Words("&PARTS AT MOST")));
    grid->addLayout(Labelled(captions_.back(), parts_), PartsRow, 0);
    tabOrder_.push_back(parts_);
    add("shortest part");
    join_ = NewBox(Controls::orderJoinRooms, Words("&JOIN ROOMS NO WIDER THAN THE ROLL"));
    addBox(join_, JoinRow, 2);
    add("pattern across");
    add("pattern along");
    halfDrop_ = NewBox(Controls::orderHalfDrop, Words("HAL&F DROP"));
    addBox(halfDrop_, HalfDropRow, 1);
    add("pattern drift");
    patternHint_ = NewLabel(this, Controls::orderPatternHint, PatternHint);
    SetRole(*patternHint_, TextRole::Hint);
    patternHint_->setWordWrap(true);
    // The fields are wide enough.
    patternHint_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    grid->addWidget(patternHint_, HintRow, 0, 1, 2);
    add("seconds");
    auto* rows = new QVBoxLayout;
    rows->addLayout(grid);
    rows->addStretch();
    return rows;
}

QCheckBox* OrderChoicePanel::NewBox(const char* name, std::string_view caption) {
    auto* box = new QCheckBox(this);
    box->setObjectName(name);
    SetCaption(*box, caption);
    return box;
}

void OrderChoicePanel::OfferParts() {
    parts_ = new QComboBox(this);
    parts_->setObjectName(Controls::orderParting);
    KeepTextWidth(*parts_, FieldWidth);
    for (Long parts = 1; parts <= MostPartsOfStrip; ++parts) {
        parts_->addItem(QString::number(parts));
    }
}

void OrderChoicePanel::Connect() {
    const auto change = [this] {
        if (!showing_) {
            OnChange();
        }
    };
    const auto settle = [this, change] {
        change();
        if (!showing_) {
            OnSettled();
        }
    };
    for (const auto& [option, field] : fields_) {
        connect(field, &QLineEdit::textChanged, this, change);
        connect(field, &QLineEdit::editingFinished, this, [this] { OnSettled(); });
        connect(field, &QLineEdit::returnPressed, this, [this] { OnEnter(); });
    }
    for (const char* option : {"pattern across", "pattern along"}) {
        connect(fields_.at(option), &QLineEdit::textChanged, this, [this] { NotePattern(); });
    }
    connect(halfDrop_, &QCheckBox::toggled, this, [this] { NotePattern(); });
    rolls_->OnChange = settle;
    for (QCheckBox* box : {down_, cross_, join_, halfDrop_}) {
        connect(box, &QCheckBox::toggled, this, settle);
    }
    connect(parts_, &QComboBox::currentIndexChanged, this, settle);
    connect(carpet_, &QComboBox::currentIndexChanged, this, [this] {
        if (!showing_) {
            OnCarpet();
        }
    });
}

void OrderChoicePanel::OfferCarpets(const std::vector<Byte>& carpets, Byte shown) {
    showing_ = true;
    carpet_->clear();
    for (const Byte carpet : carpets) {
        carpet_->addItem(ToQt(CoveringCaption(carpet)), QVariant(carpet));
    }
    carpet_->setCurrentIndex(carpet_->findData(QVariant(shown)));
    showing_ = false;
}

Byte OrderChoicePanel::Carpet() const {
    return static_cast<Byte>(carpet_->currentData().toUInt());
}

void OrderChoicePanel::Show(const TypedOrder& typed) {
    showing_ = true;
    rolls_->Show(typed.Rolls);
    down_->setChecked(typed.DownLay);
    cross_->setChecked(typed.CrossLay);
    for (const FieldOf& field : Fields) {
        fields_.at(field.Option)->setText(ToQt(typed.*field.Text));
    }
    parts_->setCurrentIndex(static_cast<int>(typed.MostParts) - 1);
    join_->setChecked(typed.JoinRooms);
    halfDrop_->setChecked(typed.HalfDrop);
    showing_ = false;
    NotePattern();
}

TypedOrder OrderChoicePanel::Typed() {
    TypedOrder typed;
    typed.In = units_;
    typed.Rolls = rolls_->Rolls();
    typed.DownLay = down_->isChecked();
    typed.CrossLay = cross_->isChecked();
    for (const FieldOf& field : Fields) {
        typed.*field.Text = FromQt(fields_.at(field.Option)->text());
    }
    typed.MostParts = parts_->currentIndex() + 1;
    typed.JoinRooms = join_->isChecked();
    typed.HalfDrop = halfDrop_->isChecked();
    return typed;
}

/// What stands for the drift while nothing is typed goes with the pattern; and only where there is
/// one it has to be told how a pattern is measured.
void OrderChoicePanel::NotePattern() {
    TypedOrder pattern;
    pattern.In = units_;
    pattern.PatternAcross = FromQt(fields_.at("pattern across")->text());
    pattern.PatternAlong = FromQt(fields_.at("pattern along")->text());
    pattern.HalfDrop = halfDrop_->isChecked();
    fields_.at("pattern drift")->setPlaceholderText(ToQt(UsualDriftText(pattern)));
    patternHint_->setVisible(HasPattern(pattern));
}

void OrderChoicePanel::ShowNote(std::string_view note) {
    SetText(*note_, note);
    note_->setVisible(!note.empty());
}

void OrderChoicePanel::ShowRefusal(std::string_view reason) {
    SetText(*refusal_, reason);
    refusal_->setVisible(!reason.empty());
}

void OrderChoicePanel::FocusFault(const OrderRequestFault& fault) {
    const auto field = fields_.find(fault.Option);
    if (field != fields_.end()) {
        field->second->setFocus();
        field->second->selectAll();
    } else if (fault.Option == "lay") {
        down_->setFocus();
    } else if (fault.Option == "half drop") {
        halfDrop_->setFocus();
    } else if (fault.Option == "parts") {
        parts_->setFocus();
    } else {
        rolls_->FocusRoll(fault.Roll, fault.Option == "price");
    }
}

void OrderChoicePanel::SetBesideResults(bool beside) {
    isBesideResults_ = beside;
    Arrange();
}

void OrderChoicePanel::SetRoom(int room) {
    room_ = room;
    Arrange();
}

/// Captions are broken only where that is needed with the fields below the rolls, too.
void OrderChoicePanel::Arrange() {
    const QMargins around = layout()->contentsMargins();
    const int inside = room_ - around.left() - around.right() - 2 * frameWidth();
    WrapCaptions(inside);
    SetStacked(*columns_, isBesideResults_ || LeastWidth(*columns_) > inside);
}

/// In each of the two columns of fields.
void OrderChoicePanel::WrapCaptions(int room) {
    const int field = TextPixels(FieldWidth) + Pixels(Metrics::Spacing / 2);
    const int column = (room - grid_->horizontalSpacing()) / 2;
    for (QLabel* caption : captions_) {
        WrapWithin(*caption, column - field);
    }
    WrapWithin(*join_, room);
}

} // namespace tarn
