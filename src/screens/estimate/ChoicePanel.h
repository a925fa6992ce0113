#pragma once

#include "estimate/EstimateChoices.h"
#include "screens/Dialogs.h"

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

/// The panel on which an estimate's carpet, roll width, lay and match pattern are chosen.
class ChoicePanel : public QFrame {
  public:
    /// With the captions and unit labels of the units in force, DOWN LAY chosen and nothing else.
    ChoicePanel(QWidget* parent, Dialogs& boxes, Units units);

    /// Offer the carpets found and choose the lowest.
    void OfferCarpets(const CarpetsFound& carpets);
    /// Choose the standard width of the start and mark it.
    void ChooseDefaultWidth();

    /// What is chosen and typed. One of the carpets must have been offered.
    EstimateChoices Choices() const;

    /// Choose and type all that again, but for a carpet that is not offered.
    void Choose(const EstimateChoices& choices);

    /// Put the focus on the chosen carpet, or into the box that was refused.
    void FocusCarpet();
    void FocusRefused(const ChoicesRefusal& refusal);
    QWidget& FirstFocus() const;

    QPushButton& OkButton() { return *ok_; }
    QPushButton& CancelButton() { return *cancel_; }
    /// Out of use until there is something to choose again.
    QPushButton& LastButton() { return *last_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    /// The controls of one side of a pattern repeat.
    struct RepeatNames {
        const char* Box;
        const char* Caption;
        const char* Unit;
    };

    QBoxLayout* BuildCarpets();
    QBoxLayout* BuildWidths();
    QWidget* BuildOther();
    QBoxLayout* BuildLayAndMatch();
    QLineEdit* AddRepeat(QBoxLayout& row, const RepeatNames& names, std::string_view caption,
                         std::string_view unit);
    QBoxLayout* BuildButtons();
    QLineEdit* NewBox(const char* name);
    void SetTabOrder();
    void Connect();

    void OptionClicked(const QButtonGroup& group);
    void MatchClicked();
    void ShowOtherHint();
    bool PressEnter(const QObject* box);

    Dialogs& boxes_;
    Units units_;
    QButtonGroup carpets_; ///< by covering code
    QButtonGroup widths_;  ///< the standard ones by their number, then the free one
    QButtonGroup lays_;    ///< by Lay
    QWidget* other_ = nullptr;
    std::array<QLineEdit*, 2> otherBoxes_{}; ///< feet, inches
    QLabel* otherHint_ = nullptr;
    QCheckBox* match_ = nullptr;
    std::array<QLineEdit*, 2> repeatBoxes_{}; ///< width, length
    QPushButton* last_ = nullptr;
    QPushButton* ok_ = nullptr;
    QPushButton* cancel_ = nullptr;
};

} // namespace tarn
