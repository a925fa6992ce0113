#pragma once

#include "app/Dialogs.h"
#include "estimate/EstimateChoices.h"

#include <QButtonGroup>
#include <QFrame>

#include <array>

class QBoxLayout;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace tarn {

/// The panel `Frame7` on which an estimate's carpet, roll width, lay and match pattern are chosen.
class ChoicePanel : public QFrame {
  public:
    /// With the captions and unit labels of the unit in force, DOWN LAY chosen and nothing else.
    ChoicePanel(QWidget* parent, Dialogs& boxes, bool metric);

    /// Offer the carpets found and choose the lowest.
    void LoadCData(const CarpetsFound& carpets);
    /// Choose the standard width of the start and mark it.
    void ChooseDefaultWidth();

    /// What is chosen and typed.
    EstimateChoices Choices() const;

    /// Put the focus on the chosen carpet, or into the box that was refused.
    void FocusCarpet();
    void FocusRefused(const ChoicesRefusal& refusal);
    QWidget& FirstFocus() const;

    QPushButton& OkButton() { return *ok_; }
    QPushButton& CancelButton() { return *cancel_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QBoxLayout* BuildCarpets();
    QBoxLayout* BuildWidths();
    QWidget* BuildOther();
    QBoxLayout* BuildLayAndMatch();
    void AddRepeat(QBoxLayout& row, int index, const char* caption, char mnemonic);
    QBoxLayout* BuildButtons();
    QLineEdit* NewBox(const char* array, int index);
    void SetTabOrder();
    void Connect();

    void OptionClicked(const QButtonGroup& group);
    void MatchClicked();
    void ShowOtherHint();
    bool PressEnter(const QObject* box);

    Dialogs& boxes_;
    bool metric_;
    QButtonGroup carpets_; ///< Option1, 0 .. 7
    QButtonGroup widths_;  ///< Option1, 11 .. 15
    QButtonGroup lays_;    ///< Option2, 0 and 1
    QWidget* other_ = nullptr;
    std::array<QLineEdit*, 2> otherBoxes_{}; ///< Text1: feet, inches
    QLabel* otherHint_ = nullptr;
    QCheckBox* match_ = nullptr;              ///< Check1
    std::array<QLineEdit*, 2> repeatBoxes_{}; ///< Text2: width, length
    QPushButton* ok_ = nullptr;               ///< Command1(0)
    QPushButton* cancel_ = nullptr;           ///< Command1(1)
};

} // namespace tarn
