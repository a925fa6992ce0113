#pragma once

#include <QWidget>

#include <string>

class QPushButton;

namespace tarn {

/// IMPROVE, and UNDO below it. When a shorter layout is there for the taking IMPROVE says so in two
/// lines, in the place of both: there is nothing to take back then. So no button ever moves, and
/// the column becomes no wider.
class ImproveButtons : public QWidget {
  public:
    explicit ImproveButtons(QWidget* parent);

    QPushButton& Improve() { return *improve_; }
    QPushButton& Undo() { return *undo_; }

    /// Have IMPROVE say by how much (see ShorterText); empty while it offers nothing.
    void Offer(const std::string& shorter);

  private:
    QPushButton* improve_;
    QPushButton* undo_;
};

} // namespace tarn
