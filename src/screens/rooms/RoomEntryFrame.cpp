#include "screens/rooms/RoomEntryFrame.h"

#include "base/Text.h"
#include "base/Words.h"
#include "files/QtText.h"
#include "project/Coverings.h"
#include "project/SizeNotes.h"
#include "project/WallBase.h"
#include "project/WholeLength.h"
#include "screens/Arrangement.h"
#include "screens/BoxPlace.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Guard.h"
#include "screens/Narrowing.h"
#include "screens/Theme.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyleOptionGroupBox>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace tarn {

namespace {

/// Width of a size field, twips.
constexpr double SizeFieldWidth = 1050;

constexpr auto NotTested = Words("The text could not be tested.");

/// A title as it is written, without mnemonics.
void SetPlainTitle(QGroupBox& group, QString title) {
    group.setTitle(title.replace(QLatin1Char('&'), QLatin1String("&&")));
}

void SetGroupCaption(QGroupBox& group, const char* name, const QString& caption) {
    NameControl(group, name, caption);
    SetPlainTitle(group, caption);
}

/// How many characters each text takes.
std::size_t MostCharactersOf(int index) {
    switch (index) {
    case RoomEntryFrame::Base:
        return MaxBaseTextLength;
    case RoomEntryFrame::Number:
        return MaxRoomNumberLength;
    case RoomEntryFrame::Remark:
        return MaxRemarkLength;
    default:
        return std::numeric_limits<std::size_t>::max();
    }
}

/// The text of a field; as it was stored while nothing else is typed, for a widget's text need not
/// hold each of its characters (such as a byte-order mark).
std::string TextOf(const QLineEdit& field, const std::string& stored) {
    return field.text() == ToQt(stored) ? stored : FromQt(field.text());
}

/// `text` without its last character, which may be made of two.
QString WithoutLast(QString text) {
    const bool isPair = text.size() > 1 && text.back().isLowSurrogate();
    text.chop(isPair ? 2 : 1);
    return text;
}

/// To which size a field belongs: 0 the width, 1 the length.
std::size_t SideOf(int index) {
    return index < RoomEntryFrame::LengthMajor ? 0 : 1;
}

bool IsEnter(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// Whether the focus goes to another field, and not only to a menu or another window, from which it
/// comes back to a text that is half typed.
bool Moves(Qt::FocusReason reason) {
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
           reason != Qt::MenuBarFocusReason;
}

/// One size of the room: two fields, the size's caption before them, each one's unit behind it.
struct SizeRow {
    QLineEdit& Major;
    QLineEdit& Minor;
    std::string_view Caption;
    const char* CaptionName;
    const char* MajorUnitName;
    const char* MinorUnitName;
};

/// Answers the size's caption.
QLabel* AddSizeRow(QWidget* parent, QGridLayout& grid, int at, const SizeRow& row, Units shown) {
    const std::string_view majorUnit = shown == Units::Metric ? Words("M") : Words("FEET");
    const std::string_view minorUnit = shown == Units::Metric ? Words("CM") : Words("INCHES");
    QLabel* caption = NewLabelFor(row.Major, parent, row.CaptionName, row.Caption);
    grid.addWidget(caption, at, 0);
    grid.addWidget(&row.Major, at, 1);
    grid.addWidget(NewLabel(parent, row.MajorUnitName, majorUnit), at, 2);
    grid.addWidget(&row.Minor, at, 3);
    grid.addWidget(NewLabelFor(row.Minor, parent, row.MinorUnitName, minorUnit), at, 4);
    row.Major.setAccessibleDescription(WithoutMark(row.Caption) + QLatin1Char(' ') +
                                       ToQt(majorUnit));
    row.Minor.setAccessibleDescription(WithoutMark(row.Caption) + QLatin1Char(' ') +
                                       ToQt(minorUnit));
    return caption;
}

} // namespace

RoomEntryFrame::RoomEntryFrame(const std::string& project, Units shown, Dialogs& boxes)
    : boxes_(boxes)
    , units_(shown) {
    SetProject(project);
    SetPanel(*this);
    MakeFields();
    MakeButtons();
    Arrange(shown);
    ShowNewRoom();
    ConnectFields();
}

void RoomEntryFrame::MakeFields() {
    constexpr std::array<const char*, Texts> Names{
        Controls::roomWidthMajor,  Controls::roomWidthMinor, Controls::roomLengthMajor,
        Controls::roomLengthMinor, Controls::wallBase,       Controls::roomNumber,
        Controls::remark};
    for (int i = 0; i < Texts; ++i) {
        auto* text = new EntryField(this, MostCharactersOf(i));
        text->setObjectName(Names.at(static_cast<std::size_t>(i)));
        texts_.at(static_cast<std::size_t>(i)) = text;
        if (i < SizeTexts) {
            KeepTextWidth(*text, SizeFieldWidth);
        }
    }
    covering_ = new QComboBox(this);
    covering_->setObjectName(Controls::covering);
    covering_->setFocusPolicy(Qt::StrongFocus);
    covering_->setMaxVisibleItems(LastTileCode + 1);
    for (Byte code = 0; code <= LastTileCode; ++code) {
        covering_->addItem(ToQt(CoveringCaption(code)));
    }
}

void RoomEntryFrame::MakeButtons() {
    next_ = NewButton(this, Controls::nextRoom, Words("&NEXT ROOM"));
    previous_ = NewButton(this, Controls::previousRoom, Words("&PREVIOUS ROOM"));
    delete_ = NewButton(this, Controls::deleteRoom, Words("&DELETE "));
    estimate_ = NewButton(this, Controls::estimateFromRooms, Words("&ESTIMATE"));
    report_ = NewButton(this, Controls::showReport, Words("&REPORT"));
    SetPrimary(*next_);
}

QGroupBox* RoomEntryFrame::NewSizeGroup(Units shown) {
    auto* group = new QGroupBox(this);
    SetGroupCaption(*group, Controls::roomSizes, ToQt(Words("ROOM SIZE")));
    auto* grid = new QGridLayout(group);
    SetSpacing(*grid, Metrics::Spacing);
    sizeCaptions_[0] = AddSizeRow(this, *grid, 0,
                                  {Text(WidthMajor), Text(WidthMinor), Words("ROOM   &WIDTH"),
                                   Controls::roomWidthCaption, Controls::roomWidthMajorUnit,
                                   Controls::roomWidthMinorUnit},
                                  shown);
    sizeCaptions_[1] = AddSizeRow(this, *grid, 1,
                                  {Text(LengthMajor), Text(LengthMinor), Words("ROOM &LENGTH"),
                                   Controls::roomLengthCaption, Controls::roomLengthMajorUnit,
                                   Controls::roomLengthMinorUnit},
                                  shown);
    grid->setColumnStretch(4, 1);
    return group;
}

QGroupBox* RoomEntryFrame::NewItemGroup() {
    auto* group = new QGroupBox(this);
    SetGroupCaption(*group, Controls::roomItem, ToQt(Words("ITEM INFO")));
    auto* grid = new QGridLayout(group);
    SetSpacing(*grid, Metrics::Spacing);
    const struct {
        QWidget* Control;
        std::string_view Caption;
        const char* CaptionName;
    } rows[] = {{covering_, Words("CARPE&T TYPE"), Controls::coveringCaption},
                {&Text(Base), Words("B&ASE"), Controls::wallBaseCaption},
                {&Text(Number), Words("RO&OM No."), Controls::roomNumberCaption},
                {&Text(Remark), Words("REMAR&K"), Controls::remarkCaption}};
    int row = 0;
    for (const auto& each : rows) {
        QLabel* label = NewLabelFor(*each.Control, this, each.CaptionName, each.Caption);
        grid->addWidget(label, row, 0);
        grid->addWidget(each.Control, row, 1);
        if (each.Control == &Text(Base)) {
            const QString example = ToQt(Words("EXAMPLE: W2L1"));
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
    QLabel* caption = NewLabel(row, Controls::itemNumberCaption, Words("PROJECT ITEM No."));
    itemNumber_ = NewLabel(row, Controls::itemNumber, "");
    SetRole(*caption, TextRole::Hint);
    SetRole(*itemNumber_, TextRole::Heading);
    layout->addWidget(caption);
    layout->addWidget(itemNumber_, 1);
    return row;
}

/// Two lines are kept free for it, so that nothing jumps when it comes and goes; it takes no width
/// of its own.
QLabel* RoomEntryFrame::NewNote() {
    note_ = NewLabel(this, Controls::roomNote, {});
    SetRole(*note_, TextRole::Warning);
    note_->setWordWrap(true);
    note_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    QSizePolicy policy = note_->sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Ignored);
    note_->setSizePolicy(policy);
    note_->ensurePolished(); // gives it the type that it is measured in
    note_->setMinimumHeight(2 * note_->fontMetrics().lineSpacing());
    for (int i = 0; i < SizeTexts; ++i) {
        SetNoteOn(Text(i), *note_);
    }
    return note_;
}

void RoomEntryFrame::Arrange(Units shown) {
    auto* sizes = new QVBoxLayout;
    sizes->setSpacing(Pixels(Metrics::Spacing));
    sizes->addWidget(NewSizeGroup(shown));
    sizes->addWidget(NewNote());
    sizes->addStretch();
    sizes->addWidget(NewItemNumberRow(), 0, Qt::AlignHCenter);
    groups_ = new QHBoxLayout;
    groups_->addLayout(sizes);
    groups_->addWidget(NewItemGroup(), 1);
    buttons_ = new WrappingRow;
    for (QPushButton* button : {next_, previous_, delete_, estimate_, report_}) {
        button->ensurePolished();
        button->setMinimumWidth(std::max(Pixels(Metrics::ButtonWidth), button->sizeHint().width()));
        buttons_->Add(*button);
    }
    auto* rows = new QVBoxLayout(this);
    SetSpacing(*rows, Metrics::Margin, Metrics::Margin);
    rows->addLayout(groups_);
    rows->addLayout(buttons_);
    groups_->setSpacing(Pixels(Metrics::Margin));
}

void RoomEntryFrame::SetRoom(int room) {
    const QMargins outside = contentsMargins() + layout()->contentsMargins();
    const int inside = room - outside.left() - outside.right();
    buttons_->SetRoom(inside);
    QWidget& sizes = *sizeCaptions_[0]->parentWidget();
    const int besideCaptions =
        sizes.sizeHint().width() -
        std::max(sizeCaptions_[0]->sizeHint().width(), sizeCaptions_[1]->sizeHint().width());
    for (QLabel* caption : sizeCaptions_) {
        WrapWithin(*caption, inside - besideCaptions);
    }
    SetStacked(*groups_, NaturalWidth(*groups_) > inside);
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

RoomDraft RoomEntryFrame::Draft() const {
    const auto text = [this](std::size_t index) { return FromQt(texts_.at(index)->text()); };
    RoomDraft draft{{text(WidthMajor), text(WidthMinor)},
                    {text(LengthMajor), text(LengthMinor)},
                    std::nullopt,
                    text(Base),
                    TextOf(*texts_[Number], shown_.Number),
                    TextOf(*texts_[Remark], shown_.Remark)};
    if (covering_->currentIndex() >= 0) {
        draft.Covering = static_cast<Byte>(covering_->currentIndex());
    }
    return draft;
}

void RoomEntryFrame::Show(const RoomDraft& draft) {
    shown_ = draft;
    const std::array<const std::string*, SizeTexts> sizes{&draft.Width.Major, &draft.Width.Minor,
                                                          &draft.Length.Major, &draft.Length.Minor};
    for (int i = 0; i < SizeTexts; ++i) {
        Text(i).Show(ToQt(*sizes.at(static_cast<std::size_t>(i))));
    }
    Text(Base).Show(ToQt(draft.Base));
    Text(Number).Show(ToQt(draft.Number));
    Text(Remark).Show(ToQt(draft.Remark));
    covering_->setCurrentIndex(draft.Covering ? *draft.Covering : -1);
    dropped_ = {};
    emptySizes_ = EmptySizes();
    const bool isNew = draft.Width == SizeParts() && draft.Length == SizeParts();
    SetHint(isNew ? QString() : ToQt(NoteOfSizes()));
}

void RoomEntryFrame::ShowNewRoom() {
    RoomDraft draft;
    draft.Covering = static_cast<Byte>(std::max(covering_->currentIndex(), 0));
    Show(draft);
}

void RoomEntryFrame::SetProject(const std::string& project) {
    SetGroupCaption(*this, Controls::roomPanel, ToQt(Words("PROJECT: %1", project)).toUpper());
    FitCaption();
}

void RoomEntryFrame::SetItemNumber(std::size_t number) {
    SetText(*itemNumber_, TrimStr(static_cast<long long>(number)));
}

void RoomEntryFrame::SetHint(const QString& hint) {
    hint_ = hint;
    ShowNote();
}

void RoomEntryFrame::SetWarning(const QString& warning) {
    warning_ = warning;
    ShowNote();
}

void RoomEntryFrame::ShowNote() {
    const bool both = !warning_.isEmpty() && !hint_.isEmpty();
    SetText(*note_, FromQt(warning_ + (both ? QStringLiteral("\n") : QString()) + hint_));
}

void RoomEntryFrame::ConnectFields() {
    for (const EntryField* text : texts_) {
        connect(text, &QLineEdit::textChanged, this, [this] { SetHint({}); });
    }
    connect(covering_, &QComboBox::currentIndexChanged, this, [this] { SetHint({}); });
    for (EntryField* text : texts_) {
        text->installEventFilter(this);
    }
    covering_->installEventFilter(this);
    for (int i = 0; i < SizeTexts; ++i) {
        connect(&Text(i), &QLineEdit::textChanged, this,
                [this, i] { Guarded(boxes_, NotTested, [this, i] { TestTypedSize(i); }); });
    }
    connect(&Text(Base), &QLineEdit::textChanged, this,
            [this] { Guarded(boxes_, NotTested, [this] { TestTypedBase(); }); });
}

std::optional<int> RoomEntryFrame::IndexOf(const QObject* object) const {
    const auto* const found = std::find(texts_.begin(), texts_.end(), object);
    return found == texts_.end() ? std::nullopt
                                 : std::optional<int>(static_cast<int>(found - texts_.begin()));
}

bool RoomEntryFrame::eventFilter(QObject* watched, QEvent* event) {
    const auto text = IndexOf(watched);
    if (!text && watched != covering_) {
        return QGroupBox::eventFilter(watched, event);
    }
    if (IsEnter(*event)) {
        Guarded(boxes_, NotTested, [&] { EnterFrom(*watched); });
        return true;
    }
    if (event->type() == QEvent::FocusOut && text && *text < SizeTexts) {
        const bool moved = Moves(static_cast<QFocusEvent*>(event)->reason());
        Guarded(boxes_, NotTested, [&] { TestLeftSize(*text, moved); });
    }
    if (event->type() == QEvent::Wheel && watched == covering_ && !covering_->hasFocus()) {
        event->ignore(); // a turn of the wheel in passing must not change the covering
        return true;
    }
    return false;
}

void RoomEntryFrame::EnterFrom(const QObject& field) {
    const auto text = IndexOf(&field);
    if (!text) {
        Text(Base).setFocus();
    } else if (*text == LengthMinor) {
        covering_->setFocus();
    } else if (*text == Remark) {
        next_->setFocus();
    } else {
        EntryField& next = Text(*text + 1);
        const bool wasEmpty = next.text().isEmpty();
        next.setFocus();
        if (*text < SizeTexts && wasEmpty && !next.text().isEmpty()) {
            EnterFrom(next); // a whole length filled it, too
        }
    }
    if (text && *text == Base) {
        TestEnteredBase();
    }
}

bool RoomEntryFrame::EmptyWithoutSize(int index) {
    EntryField& field = Text(index);
    const std::string text = FromQt(field.text());
    if (!IsEmptiedSizeText(text, field.hasFocus())) {
        return false;
    }
    const auto rest = WithoutZeroPart(text);
    changing_ = true;
    if (rest) {
        field.Replace(ToQt(*rest));
    } else {
        dropped_.at(static_cast<std::size_t>(index)) += text;
        field.Empty();
    }
    changing_ = false;
    return !rest;
}

void RoomEntryFrame::TestTypedSize(int index) {
    if (changing_) {
        return;
    }
    const auto typedIn = static_cast<std::size_t>(index);
    const bool emptied = EmptyWithoutSize(index);
    for (std::size_t i = 0; i < dropped_.size(); ++i) {
        if (i != typedIn || (!emptied && Text(index).text().isEmpty())) {
            dropped_.at(i).clear();
        }
    }
    const auto before = emptySizes_;
    emptySizes_ = EmptySizes();
    const std::size_t side = SideOf(index);
    SetHint(ToQt(SizeNote(index, emptySizes_.at(side) && !before.at(side))));
}

std::string RoomEntryFrame::SizeNote(int index, bool erased) const {
    const auto at = static_cast<std::size_t>(index);
    std::string note = DroppedNote(dropped_.at(at), FromQt(texts_.at(at)->text()), units_);
    if (note.empty()) {
        note = KeptNote(SizeOf(SideOf(index)), units_);
    }
    if (note.empty() && erased) {
        note = EmptySizeNote(emptySizes_[0], emptySizes_[1]);
    }
    return note;
}

std::string RoomEntryFrame::NoteOfSizes() const {
    for (int i = 0; i < SizeTexts; ++i) {
        if (std::string note = SizeNote(i, false); !note.empty()) {
            return note;
        }
    }
    for (const std::size_t side : {0U, 1U}) {
        if (std::string note = RefusedNote(SizeOf(side), units_); !note.empty()) {
            return note;
        }
    }
    return EmptySizeNote(emptySizes_[0], emptySizes_[1]);
}

void RoomEntryFrame::TestLeftSize(int index, bool moved) {
    EmptyWithoutSize(index);
    if (moved) {
        SpreadSide(SideOf(index));
    }
    const auto to = IndexOf(QApplication::focusWidget());
    const bool leaves = QApplication::focusWidget() != nullptr && (!to || *to >= SizeTexts);
    const auto [width, length] = EmptySizes();
    if (leaves && width != length && hint_.isEmpty()) {
        SetHint(ToQt(EmptySizeNote(width, length)));
    }
}

void RoomEntryFrame::SpreadSizes() {
    SpreadSide(1);
    SpreadSide(0); // last, so that what is said of the width stands
}

void RoomEntryFrame::SpreadSide(std::size_t side) {
    const SizeParts typed = SizeOf(side);
    const SpreadSize size = Spread(typed, units_);
    if (size.Why != SpreadSize::Fault::None) {
        SetHint(ToQt(RefusedNote(typed, units_)));
    } else if (size.Parts != typed) {
        changing_ = true;
        texts_.at(2 * side)->Replace(ToQt(size.Parts.Major));
        texts_.at(2 * side + 1)->Replace(ToQt(size.Parts.Minor));
        changing_ = false;
        dropped_ = {};
        emptySizes_ = EmptySizes();
        SetHint(ToQt(KeptNote(size.Parts, units_)));
    }
}

SizeParts RoomEntryFrame::SizeOf(std::size_t side) const {
    return {FromQt(texts_.at(2 * side)->text()), FromQt(texts_.at(2 * side + 1)->text())};
}

std::array<bool, 2> RoomEntryFrame::EmptySizes() const {
    return {IsEmptySize(SizeOf(0), units_), IsEmptySize(SizeOf(1), units_)};
}

void RoomEntryFrame::TestTypedBase() {
    EntryField& field = Text(Base);
    if (IsBaseText(FromQt(field.text()))) {
        return;
    }
    field.setFocus(); // before the box comes, which keeps clear of it
    boxes_.Message(BaseMessage(TypedBaseExample));
    field.setFocus();
    field.ReplaceLastChange(WithoutLast(field.text())); // a change, and so tested again
}

void RoomEntryFrame::TestEnteredBase() {
    EntryField& field = Text(Base);
    const std::string text = FromQt(field.text());
    if (IsBaseText(text)) {
        field.Replace(ToQt(UpperCaseLetters(text)));
    } else {
        field.setFocus();
        boxes_.Message(BaseMessage(EnteredBaseExample));
        field.setFocus();
    }
}

} // namespace tarn
