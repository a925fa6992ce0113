#pragma once

#include "screens/Session.h"
#include "screens/roll/RollChart.h"

#include <functional>

class QHBoxLayout;
class QWidget;

namespace tarn {

class PictureBox;
class RollPanel;

/// The two views of an estimate, the plain drawing and the whole roll with its list: beside each
/// other in a wide window; else one of them, the one that the user chose last.
class ResultViews {
  public:
    /// `body` is the screen's, which holds the views.
    ResultViews(QWidget& body, Session& session);

    /// Where the views are laid out; who made them puts it into the body's layout.
    QHBoxLayout& Layout() { return *columns_; }
    PictureBox& Picture() { return *picture_; }
    RollPanel& Roll() { return *roll_; }

    /// Show another roll, or with an empty chart none: then there is the drawing alone.
    void ShowRoll(RollChart chart);
    /// Whether both views have room beside each other.
    bool IsWide() const;
    /// Whether there are two views of which only one is shown.
    bool MaySwitch() const;
    /// Whether the roll is shown in place of the drawing.
    bool ShowsRollAlone() const;
    /// Show the other view instead, now and whenever there is room for one.
    void Switch();
    /// Show the drawing, this time.
    void ShowPicture();
    /// What takes the keys of the view in front; nothing while nothing is shown.
    QWidget* InFront();

    /// The body has another size.
    void Arrange();
    /// Called when what is shown, or may be, has changed.
    std::function<void()> OnArranged = [] {};

  private:
    Session& session_;
    QWidget& body_;
    PictureBox* picture_;
    RollPanel* roll_;
    QHBoxLayout* columns_;
    bool prefersRoll_;
    bool hasRoll_ = false;
};

} // namespace tarn
