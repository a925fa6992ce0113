#pragma once

#include "base/Types.h"
#include "project/OrderEntry.h"

#include <QFrame>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;

namespace tarn {

class RollTable;

/// What is chosen for an order: the carpet, and all that a request holds, as texts.
class OrderChoicePanel : public QFrame {
  public:
    OrderChoicePanel(QWidget* parent, Units units);

    /// The carpets to choose from, by their covering codes, and the one that is shown.
    void OfferCarpets(const std::vector<Byte>& carpets, Byte shown);
    Byte Carpet() const;

    /// Show these choices; calls nothing back.
    void Show(const TypedOrder& typed);
    /// The choices as they stand.
    TypedOrder Typed();

    /// What there is to say of the choices shown; empty for nothing.
    void ShowNote(std::string_view note);
    /// Say under the fields why the choices are not taken; nothing for an empty reason. Nothing
    /// moves for it.
    void ShowRefusal(std::string_view reason);
    /// Take the focus to the field of a fault.
    void FocusFault(const OrderRequestFault& fault);

    /// Whether the results stand beside the choices. The fields are below the rolls then, and else
    /// beside them, where the room takes both.
    void SetBesideResults(bool beside);
    /// Make do with a width, pixels.
    void SetRoom(int room);
    /// The controls in the order of the Tab key.
    const std::vector<QWidget*>& TabOrder() const { return tabOrder_; }

    // None of these may raise.

    /// The user changed a choice, by as much as a letter.
    std::function<void()> OnChange = [] {};
    /// The user left a field, or is otherwise done with a change.
    std::function<void()> OnSettled = [] {};
    /// Enter was pressed in a field.
    std::function<void()> OnEnter = [] {};
    /// Another carpet was chosen.
    std::function<void()> OnCarpet = [] {};

  private:
    QBoxLayout* BuildRolls();
    QBoxLayout* BuildFields();
    QCheckBox* NewBox(const char* name, std::string_view caption);
    void OfferParts();
    void Connect();
    void NotePattern();
    void Arrange();
    void WrapCaptions(int room);

    Units units_;
    int room_ = QWIDGETSIZE_MAX;
    bool isBesideResults_ = false;
    bool showing_ = false; ///< what changes is not the user's doing
    QBoxLayout* columns_ = nullptr;
    QGridLayout* grid_ = nullptr;   ///< of the fields
    std::vector<QLabel*> captions_; ///< of the fields
    QComboBox* carpet_ = nullptr;
    QLabel* note_ = nullptr;
    RollTable* rolls_ = nullptr;
    QCheckBox* down_ = nullptr;
    QCheckBox* cross_ = nullptr;
    QComboBox* parts_ = nullptr;
    QCheckBox* join_ = nullptr;
    QCheckBox* halfDrop_ = nullptr;
    QLabel* patternHint_ = nullptr;
    QLabel* refusal_ = nullptr;
    std::map<std::string, QLineEdit*> fields_; ///< by their options
    std::vector<QWidget*> tabOrder_;
};

} // namespace tarn
