#pragma once

#include "screens/Dialogs.h"
#include "screens/roll/RollChart.h"

#include <QWidget>

class QBoxLayout;

namespace tarn {

class RollList;
class RollView;

/// The whole view of a roll with the list by which it is cut. A piece and its line mark each other:
/// under the pointer, and by the arrow keys in either of the two.
class RollPanel : public QWidget {
  public:
    RollPanel(QWidget* parent, Dialogs& boxes);

    /// Show a roll and its list; nothing is marked then.
    void Show(RollChart chart);
    /// Show nothing.
    void Clear() { Show({}); }

    RollView& View() { return *view_; }
    RollList& List() { return *list_; }

    /// Whether the list stands beside the view; else, as at first, it stands below.
    void SetListBeside(bool beside);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    RollView* view_;
    RollList* list_;
    QBoxLayout* parts_;
};

} // namespace tarn
