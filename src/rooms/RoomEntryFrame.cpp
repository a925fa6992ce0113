#include "rooms/RoomEntryFrame.h"

#include "app/Arrangement.h"
#include "app/Controls.h"
#include "app/Display.h"
#include "app/QtText.h"
#include "app/Text.h"
#include "app/Theme.h"
#include "rooms/Coverings.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyleOptionGroupBox>
#include <QToolTip>

#include <algorithm>
#include <limits>

namespace tarn {

namespace {

/// Width of a size field, twips.
constexpr double SizeFieldWidth = 1050;

/// A title as it is written, without mnemonics.
void SetPlainTitle(QGroupBox& group, QString title) {
    group.setTitle(title.replace(QLatin1Char('&'), QLatin1String("&&")));
}

void SetGroupCaption(QGroupBox& group, const QString& name, const QString& caption) {
    NameControl(group, name, caption);
    SetPlainTitle(group, caption);
}

/// What each Text1 takes.
FieldRule RuleOf(int index) {
    using Breaks = FieldRule::Breaks;
    switch (index) {
    case RoomEntryFrame::Base:
        return {MaxBaseTextLength, Breaks::EndOnly};
    case RoomEntryFrame::RoomNo:
        return {MaxRoomNoLength, Breaks::Blanks};
    case RoomEntryFrame::Remark:
        return {MaxRemarkLength, Breaks::Blanks};
    default:
        return {std::numeric_limits<std::size_t>::max(), Breaks::EndOnly};
    }
}

/// The text of a field; as it was stored while nothing else is typed, for a widget's text need not
/// hold each of its characters (such as a byte-order mark).
std::string TextOf(const QLineEdit& field, const std::string& stored) {
    return field.text() == ToQt(stored) ? stored : FromQt(field.text());
}

} // namespace

RoomEntryFrame::RoomEntryFrame(const std::string& project, bool metric) {
    SetGroupCaption(*this, QStringLiteral("Frame1"), ToQt("PROJECT: " + project).toUpper());
    SetPanel(*this);
    MakeFields();
    MakeButtons();
    Arrange(metric);
    ShowNewRoom();
}

void RoomEntryFrame::MakeFields() {
    for (int i = 0; i < Texts; ++i) {
        auto* text = new EntryField(this, RuleOf(i));
        text->setObjectName(IndexedName("Text1", i));
        texts_.at(static_cast<std::size_t>(i)) = text;
        if (i < SizeTexts) {
            text->setFixedWidth(Pixels(SizeFieldWidth));
        }
    }
    covering_ = new QComboBox(this);
    covering_->setObjectName(QStringLiteral("Combo1"));
    covering_->setFocusPolicy(Qt::StrongFocus);
    covering_->setMaxVisibleItems(LastTileCode + 1);
    for (Byte code = 0; code <= LastTileCode; ++code) {
        covering_->addItem(ToQt(CoveringCaption(code)));
    }
}

void RoomEntryFrame::MakeButtons() {
    buttons_ = {NewButton(this, IndexedName("Command1", Next), "NEXT ROOM", 'N'),
                NewButton(this, IndexedName("Command1", Previous), "PREVIOUS ROOM", 'P'),
                NewButton(this, IndexedName("Command1", Delete), "DELETE ", 'D')};
    estimate_ = NewButton(this, QStringLiteral("Command3"), "ESTIMATE", 'E');
    report_ = NewButton(this, QStringLiteral("RepMnu"), "REPORT", 'R');
    SetPrimary(*buttons_[Next]);
}

void RoomEntryFrame::AddSizeRow(QGridLayout& grid, int row, bool metric) {
    const bool isWidth = row == 0;
    const int firstLabel = row * 3;
    QLineEdit& major = Text(row * 2);
    QLineEdit& minor = Text(row * 2 + 1);
    const std::string_view caption = isWidth ? "ROOM   WIDTH" : "ROOM LENGTH";
    grid.addWidget(
        NewLabelFor(major, this, IndexedName("Label1", firstLabel), caption, isWidth ? 'W' : 'L'),
        row, 0);
    grid.addWidget(&major, row, 1);
    const std::string_view majorUnit = metric ? "M" : "FEET";
    const std::string_view minorUnit = metric ? "CM" : "INCHES";
    grid.addWidget(NewLabel(this, IndexedName("Label1", firstLabel + 1), majorUnit), row, 2);
    grid.addWidget(&minor, row, 3);
    grid.addWidget(NewLabelFor(minor, this, IndexedName("Label1", firstLabel + 2), minorUnit), row,
                   4);
    major.setAccessibleDescription(ToQt(caption) + QLatin1Char(' ') + ToQt(majorUnit));
    minor.setAccessibleDescription(ToQt(caption) + QLatin1Char(' ') + ToQt(minorUnit));
}

QGroupBox* RoomEntryFrame::NewSizeGroup(bool metric) {
    auto* group = new QGroupBox(this);
    SetGroupCaption(*group, QStringLiteral("Frame2"), QStringLiteral("ROOM SIZE"));
    auto* grid = new QGridLayout(group);
    SetSpacing(*grid, Metrics::Spacing);
    AddSizeRow(*grid, 0, metric);
    AddSizeRow(*grid, 1, metric);
    grid->setColumnStretch(4, 1);
    return group;
}

QGroupBox* RoomEntryFrame::NewItemGroup() {
    auto* group = new QGroupBox(this);
    SetGroupCaption(*group, QStringLiteral("Frame3"), QStringLiteral("ITEM INFO"));
    auto* grid = new QGridLayout(group);
    SetSpacing(*grid, Metrics::Spacing);
    const struct {
        QWidget* Control;
        std::string_view Caption;
        int Label;
        char Mnemonic;
    } rows[] = {{covering_, "CARPET TYPE", 6, 'T'},
                {&Text(Base), "BASE", 7, 'A'},
                {&Text(RoomNo), "ROOM No.", 8, 'O'},
                {&Text(Remark), "REMARK", 9, 'K'}};
    int row = 0;
    for (const auto& each : rows) {
        QLabel* label = NewLabelFor(*each.Control, this, IndexedName("Label1", each.Label),
                                    each.Caption, each.Mnemonic);
        grid->addWidget(label, row, 0);
        grid->addWidget(each.Control, row, 1);
        if (each.Control == &Text(Base)) {
            const QString example = QStringLiteral("EXAMPLE: W2L1");
            label->setToolTip(example);
            each.Control->setToolTip(example);
        }
        ++row;
    }
    grid->setColumnStretch(1, 1);
    return group;
}

QWidget* RoomEntryFrame::NewItemNumberRow() {
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    SetSpacing(*layout, 0);
    QLabel* caption = NewLabel(row, IndexedName("Label1", 10), "PROJECT ITEM No.");
    itemNumber_ = NewLabel(row, IndexedName("Label1", 11), "");
    SetRole(*caption, TextRole::Hint);
    SetRole(*itemNumber_, TextRole::Heading);
    layout->addWidget(caption);
    layout->addWidget(itemNumber_, 1);
    return row;
}

void RoomEntryFrame::Arrange(bool metric) {
    auto* grid = new QGridLayout(this);
    SetSpacing(*grid, Metrics::Margin, Metrics::Margin);
    grid->addWidget(NewSizeGroup(metric), 0, 0);
    grid->addWidget(NewItemNumberRow(), 1, 0, Qt::AlignCenter);
    grid->addWidget(NewItemGroup(), 0, 1, 2, 1);
    grid->setColumnStretch(1, 1);
    auto* row = new QHBoxLayout;
    row->setSpacing(Pixels(Metrics::Spacing));
    for (QPushButton* button :
         {buttons_[Next], buttons_[Previous], buttons_[Delete], estimate_, report_}) {
        button->ensurePolished();
        button->setMinimumWidth(std::max(Pixels(Metrics::ButtonWidth), button->sizeHint().width()));
        row->addWidget(button);
    }
    grid->addLayout(row, 2, 0, 1, 2);
}

void RoomEntryFrame::resizeEvent(QResizeEvent* event) {
    QGroupBox::resizeEvent(event);
    FitCaption();
}

void RoomEntryFrame::changeEvent(QEvent* event) {
    QGroupBox::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        FitCaption();
    }
}

bool RoomEntryFrame::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        QStyleOptionGroupBox option;
        initStyleOption(&option);
        const QRect caption =
            style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, this);
        if (!caption.contains(static_cast<QHelpEvent*>(event)->pos())) {
            QToolTip::hideText(); // also over a control without a tool tip of its own
            return true;
        }
    }
    return QGroupBox::event(event);
}

void RoomEntryFrame::FitCaption() {
    const QString caption = accessibleName();
    const int room = contentsRect().width() - 2 * Pixels(Metrics::Margin);
    const QString fitting = fontMetrics().elidedText(caption, Qt::ElideRight, room);
    SetPlainTitle(*this, fitting);
    SetToolTip(*this, fitting == caption ? QString() : caption);
}

std::optional<int> RoomEntryFrame::IndexOf(const QObject* object) const {
    const auto* const found = std::find(texts_.begin(), texts_.end(), object);
    return found == texts_.end() ? std::nullopt
                                 : std::optional<int>(static_cast<int>(found - texts_.begin()));
}

RoomFields RoomEntryFrame::Fields() const {
    const auto text = [this](std::size_t index) { return FromQt(texts_.at(index)->text()); };
    RoomFields fields{{text(WidthMajor), text(WidthMinor)},
                      {text(LengthMajor), text(LengthMinor)},
                      std::nullopt,
                      text(Base),
                      TextOf(*texts_[RoomNo], shown_.RoomNo),
                      TextOf(*texts_[Remark], shown_.Remark)};
    if (covering_->currentIndex() >= 0) {
        fields.Covering = static_cast<Byte>(covering_->currentIndex());
    }
    return fields;
}

void RoomEntryFrame::Show(const RoomFields& fields) {
    shown_ = fields;
    const std::array<const std::string*, SizeTexts> sizes{
        &fields.Width.Major, &fields.Width.Minor, &fields.Length.Major, &fields.Length.Minor};
    for (int i = 0; i < SizeTexts; ++i) {
        Text(i).Show(ToQt(*sizes.at(static_cast<std::size_t>(i))));
    }
    Text(Base).Show(ToQt(fields.Base));
    Text(RoomNo).Show(ToQt(fields.RoomNo));
    Text(Remark).Show(ToQt(fields.Remark));
    covering_->setCurrentIndex(fields.Covering ? *fields.Covering : -1);
}

void RoomEntryFrame::ShowNewRoom() {
    RoomFields fields;
    fields.Covering = static_cast<Byte>(std::max(covering_->currentIndex(), 0));
    Show(fields);
}

void RoomEntryFrame::SetItemNumber(Integer number) {
    SetText(*itemNumber_, TrimStr(number));
}

} // namespace tarn
