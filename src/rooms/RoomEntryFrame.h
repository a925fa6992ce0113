#pragma once

#include "rooms/EntryField.h"
#include "rooms/RoomEntry.h"

#include <QGroupBox>

#include <array>

class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;

namespace tarn {

/// Frame1: the fields of one room and the buttons that step through the rooms. It shows and gives
/// what stands in the fields; what happens on a key or a click is the screen's.
class RoomEntryFrame : public QGroupBox {
  public:
    /// Indexes of Text1.
    enum TextIndex { WidthMajor, WidthMinor, LengthMajor, LengthMinor, Base, RoomNo, Remark };
    static constexpr int SizeTexts = 4;
    static constexpr int Texts = 7;
    /// Indexes of Command1 in this frame.
    enum ButtonIndex { Next, Previous, Delete };
    static constexpr int Buttons = 3;

    /// `project` is part of the caption; the units are named as `metric` has them.
    RoomEntryFrame(const std::string& project, bool metric);

    EntryField& Text(int index) { return *texts_.at(static_cast<std::size_t>(index)); }
    QPushButton& Button(int index) { return *buttons_.at(static_cast<std::size_t>(index)); }
    QComboBox& Covering() { return *covering_; }
    QPushButton& Estimate() { return *estimate_; }
    QPushButton& Report() { return *report_; }

    /// Which Text1 this is; nothing for any other object.
    std::optional<int> IndexOf(const QObject* object) const;

    RoomFields Fields() const;
    /// Show a room. A text that a field would not take is shown as it is and may be kept.
    void Show(const RoomFields& fields);
    /// Empty the texts for a new room. The covering stays; where none is chosen, the first one is.
    void ShowNewRoom();
    void SetItemNumber(Integer number);

    /// A long project name asks for no room of its own: the caption is shortened where it does not
    /// fit, and then shown whole as the caption's tool tip.
    QSize sizeHint() const override { return QWidget::sizeHint(); }
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): a group box asks for room for its caption
    QSize minimumSizeHint() const override { return QWidget::minimumSizeHint(); }

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void MakeFields();
    void MakeButtons();
    QGroupBox* NewSizeGroup(bool metric);
    QGroupBox* NewItemGroup();
    QWidget* NewItemNumberRow();
    void AddSizeRow(QGridLayout& grid, int row, bool metric);
    void Arrange(bool metric);
    void FitCaption();

    std::array<EntryField*, Texts> texts_{};
    std::array<QPushButton*, Buttons> buttons_{};
    QComboBox* covering_ = nullptr;
    QPushButton* estimate_ = nullptr;
    QPushButton* report_ = nullptr;
    QLabel* itemNumber_ = nullptr;
    RoomFields shown_; ///< as it was shown last
};

} // namespace tarn
