#pragma once

#include <QListWidget>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// A list of names of which one or none is chosen. The user's own doing calls back; the functions
/// that change the list do not.
class ChoiceList : public QListWidget {
  public:
    explicit ChoiceList(QWidget* parent);

    /// None of these may raise.
    /// An entry was chosen, by mouse or keys; also when the chosen one is clicked again.
    std::function<void()> OnChosen;
    /// The chosen entry is to have another name: it was double-clicked, or F2 was pressed.
    std::function<void()> OnRename;
    /// The Delete key was pressed while an entry is chosen.
    std::function<void()> OnDelete;

    /// Replace all entries; none is chosen then.
    void SetEntries(const std::vector<std::string>& names);
    /// Add an entry at the end and scroll to it.
    void Add(const std::string& name);
    /// Scroll to an entry, in whatever case it is written; nothing when there is none.
    void ScrollTo(const std::string& name);
    void SetEntry(int row, const std::string& name);
    /// Remove an entry; none is chosen then.
    void Remove(int row);

    /// The chosen row; -1 for none.
    int Chosen() const;
    std::optional<std::string> ChosenName() const;
    /// Choose a row and scroll to it; -1 for none.
    void Choose(int row);

    QSize sizeHint() const override;

  protected:
    QItemSelectionModel::SelectionFlags
    selectionCommand(const QModelIndex& index, const QEvent* event = nullptr) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool IsChosenAt(const QMouseEvent& event) const;
};

} // namespace tarn
