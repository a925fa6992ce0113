#include "screens/order/RollTable.h"

#include "base/Words.h"
#include "files/QtText.h"
#include "project/TypedText.h"
#include "screens/Theme.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include <utility>

namespace tarn {

namespace {

constexpr int LongestText = 60;   ///< characters of a cell
constexpr int LeastRows = 3;      ///< in sight; more where there is room
constexpr double RowHeight = 400; ///< twips
constexpr double WidthColumn = 1250;
constexpr double PriceColumn = 1350;

/// Makes the fields in which cells are typed.
class CellDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override {
        QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
        if (auto* field = qobject_cast<QLineEdit*>(editor)) {
            field->setMaxLength(LongestText);
            field->setAccessibleName(
                index.model()->headerData(index.column(), Qt::Horizontal).toString().simplified());
        }
        return editor;
    }
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& /*index*/) const override {
        editor->setMinimumHeight(0);
        editor->setGeometry(option.rect);
    }
};

/// A text as a field of one line keeps it.
QString Kept(const QString& text) {
    return FromCharacters(OneLineText(text.toStdU32String())).left(LongestText);
}

} // namespace

RollTable::RollTable(QWidget* parent, Units units)
    : QTableWidget(0, Columns, parent) {
    const Phrase price =
        units == Units::Metric ? Words("Price per\nsq. m") : Words("Price per\nsq. yd");
    setHorizontalHeaderLabels({ToQt(Words("Width")), ToQt(Words("Name")), ToQt(price)});
    setItemDelegate(new CellDelegate(this));
    setTabKeyNavigation(false); // it leads on to the next control
    setSelectionMode(SingleSelection);
    setEditTriggers(DoubleClicked | SelectedClicked | EditKeyPressed | AnyKeyPressed);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(TextPixels(RowHeight));
    verticalHeader()->setMinimumSectionSize(TextPixels(RowHeight));
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionResizeMode(Name, QHeaderView::Stretch);
    setColumnWidth(Width, TextPixels(WidthColumn));
    setColumnWidth(Price, TextPixels(PriceColumn));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QTableWidget::cellChanged, this,
            [this](int row, int column) { CellChanged(row, column); });
    Show({});
}

void RollTable::Show(const std::vector<TypedRoll>& rolls) {
    const QSignalBlocker silent(this);
    setRowCount(0);
    for (const TypedRoll& roll : rolls) {
        AddRow(roll);
    }
    KeepEmptyRow();
    setCurrentCell(0, Width);
}

std::vector<TypedRoll> RollTable::Rolls() {
    CommitTyping();
    std::vector<TypedRoll> rolls;
    rolls.reserve(static_cast<std::size_t>(rowCount()));
    for (int row = 0; row < rowCount(); ++row) {
        rolls.push_back(RollIn(row));
    }
    return rolls;
}

void RollTable::FocusRoll(std::size_t roll, bool price) {
    setCurrentCell(static_cast<int>(roll), price ? Price : Width);
    setFocus();
}

void RollTable::RemoveCurrent() {
    const int row = currentRow();
    if (row < 0 || RollIn(row) == TypedRoll{}) {
        return;
    }
    const int column = currentColumn();
    {
        const QSignalBlocker silent(this);
        removeRow(row);
        KeepEmptyRow();
        setCurrentCell(row, column);
    }
    OnChange();
}

void RollTable::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete) {
        RemoveCurrent();
        return;
    }
    QTableWidget::keyPressEvent(event);
}

void RollTable::AddRow(const TypedRoll& roll) {
    const int row = rowCount();
    insertRow(row);
    int column = 0;
    for (const std::string& text : {roll.Width, roll.Name, roll.Price}) {
        setItem(row, column++, new QTableWidgetItem(ToQt(text)));
    }
}

void RollTable::KeepEmptyRow() {
    const int rows = rowCount();
    const bool hasEmpty = rows > 0 && RollIn(rows - 1) == TypedRoll{};
    if (!hasEmpty && rows < static_cast<int>(MostRolls)) {
        AddRow({});
    }
}

void RollTable::CellChanged(int row, int column) {
    {
        const QSignalBlocker silent(this);
        QTableWidgetItem& cell = *item(row, column);
        cell.setText(Kept(cell.text()));
        KeepEmptyRow();
    }
    const bool wasTaking = std::exchange(isTaking_, true);
    OnChange();
    isTaking_ = wasTaking;
}

void RollTable::CommitTyping() {
    if (isTaking_ || state() != EditingState) {
        return;
    }
    isTaking_ = true;
    if (QWidget* editor = indexWidget(currentIndex())) {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
    isTaking_ = false;
}

TypedRoll RollTable::RollIn(int row) const {
    const auto text = [&](int column) { return FromQt(item(row, column)->text()); };
    return {text(Width), text(Name), text(Price)};
}

QSize RollTable::sizeHint() const {
    const int frame = 2 * frameWidth();
    const int nameColumn = TextPixels(WidthColumn);
    return {TextPixels(WidthColumn) + nameColumn + TextPixels(PriceColumn) + frame,
            horizontalHeader()->sizeHint().height() + LeastRows * TextPixels(RowHeight) + frame};
}

QSize RollTable::minimumSizeHint() const {
    return sizeHint();
}

} // namespace tarn
