#include "screens/projects/ChoiceList.h"

#include "files/QtText.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

namespace tarn {

ChoiceList::ChoiceList(QWidget* parent)
    : QListWidget(parent) {
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    connect(this, &QListWidget::itemSelectionChanged, this, [this] {
        if (Chosen() >= 0 && OnChosen) {
            OnChosen();
        }
    });
}

void ChoiceList::SetEntries(const std::vector<std::string>& names) {
    const QSignalBlocker quiet(this);
    clear();
    for (const std::string& name : names) {
        addItem(ToQt(name));
    }
}

void ChoiceList::Add(const std::string& name) {
    const QSignalBlocker quiet(this);
    addItem(ToQt(name));
    scrollToItem(item(count() - 1));
}

void ChoiceList::ScrollTo(const std::string& name) {
    const auto found = findItems(ToQt(name), Qt::MatchFixedString);
    if (!found.isEmpty()) {
        scrollToItem(found.constFirst());
    }
}

void ChoiceList::SetEntry(int row, const std::string& name) {
    const QSignalBlocker quiet(this);
    item(row)->setText(ToQt(name));
}

void ChoiceList::Remove(int row) {
    const QSignalBlocker quiet(this);
    delete takeItem(row);
    Choose(-1);
}

int ChoiceList::Chosen() const {
    const auto chosen = selectedItems();
    return chosen.isEmpty() ? -1 : row(chosen.constFirst());
}

std::optional<std::string> ChoiceList::ChosenName() const {
    const int chosen = Chosen();
    if (chosen < 0) {
        return std::nullopt;
    }
    return FromQt(item(chosen)->text());
}

void ChoiceList::Choose(int row) {
    const QSignalBlocker quiet(this);
    clearSelection();
    setCurrentRow(row);
    if (row >= 0) {
        scrollToItem(item(row));
    }
}

QSize ChoiceList::sizeHint() const {
    return minimumSizeHint(); // the panel says how large it is
}

QItemSelectionModel::SelectionFlags ChoiceList::selectionCommand(const QModelIndex& index,
                                                                 const QEvent* event) const {
    const auto command = QListWidget::selectionCommand(index, event);
    const bool unselects = command.testFlag(QItemSelectionModel::Deselect) ||
                           command.testFlag(QItemSelectionModel::Toggle);
    return unselects ? QItemSelectionModel::SelectionFlags(QItemSelectionModel::NoUpdate) : command;
}

bool ChoiceList::IsChosenAt(const QMouseEvent& event) const {
    const QListWidgetItem* at = itemAt(event.position().toPoint());
    return event.button() == Qt::LeftButton && at != nullptr && row(at) == Chosen();
}

void ChoiceList::mousePressEvent(QMouseEvent* event) {
    const bool again = IsChosenAt(*event);
    QListWidget::mousePressEvent(event);
    if (again && OnChosen) {
        OnChosen();
    }
}

void ChoiceList::mouseDoubleClickEvent(QMouseEvent* event) {
    const bool onChosen = IsChosenAt(*event);
    QListWidget::mouseDoubleClickEvent(event);
    if (onChosen && OnRename) {
        OnRename();
    }
}

void ChoiceList::keyPressEvent(QKeyEvent* event) {
    const bool chosen = Chosen() >= 0;
    if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_F2) {
        const auto& action = event->key() == Qt::Key_Delete ? OnDelete : OnRename;
        if (chosen && !event->isAutoRepeat() && action) {
            action();
        }
        return;
    }
    // The first arrow key in a list where nothing is chosen begins at its top.
    const bool arrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    if (!chosen && arrow && count() > 0) {
        setCurrentRow(0, QItemSelectionModel::ClearAndSelect);
        return;
    }
    QListWidget::keyPressEvent(event);
}

} // namespace tarn
