#pragma once

#include "base/Units.h"
#include "project/RoomDraft.h"
#include "project/RoomEntry.h"
#include "screens/Dialogs.h"
#include "screens/rooms/EntryField.h"

#include <QGroupBox>
#include <QString>

#include <array>
#include <cstddef>
#include <optional>
#include <string>

class QBoxLayout;
class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;

namespace tarn {

class WrappingRow;

/// The fields of one room and the buttons of the room entry. It shows and gives what stands in the
/// fields, takes Enter from field to field, empties a size field that holds no size, spreads a
/// length that was typed whole over its two fields, and has a wrong wall base corrected; what the
/// buttons do is the screen's.
class RoomEntryFrame : public QGroupBox {
  public:
    /// The fields that take a text; the covering is chosen between LengthMinor and Base.
    enum TextIndex { WidthMajor, WidthMinor, LengthMajor, LengthMinor, Base, Number, Remark };
    static constexpr int SizeTexts = 4;
    static constexpr int Texts = 7;

    /// `project` is part of the caption; the sizes are named as `shown` has them. `boxes` tell what
    /// is wrong with a wall base, and must outlive the frame.
    RoomEntryFrame(const std::string& project, Units shown, Dialogs& boxes);

    EntryField& Text(int index) { return *texts_.at(static_cast<std::size_t>(index)); }
    QComboBox& Covering() { return *covering_; }
    QPushButton& Next() { return *next_; }
    QPushButton& Previous() { return *previous_; }
    QPushButton& Delete() { return *delete_; }
    QPushButton& Estimate() { return *estimate_; }
    QPushButton& Report() { return *report_; }

    RoomDraft Draft() const;
    /// Spread the lengths that stand whole in one field over the two of their size, as leaving the
    /// field does.
    void SpreadSizes();
    /// Show a room. A text that a field would not take is shown as it is and may be kept.
    void Show(const RoomDraft& draft);
    /// Empty the texts for a new room. The covering stays; where none is chosen, the first one is.
    void ShowNewRoom();
    void SetItemNumber(std::size_t number);
    /// The project's name, a part of the caption.
    void SetProject(const std::string& project);

    /// Say below the sizes what became of the typing; it stands there until the next change of a
    /// field, or until a room is shown.
    void SetHint(const QString& hint);
    /// Say there what the user has to know of the room, before the hint; it stands there until it
    /// is replaced. Empty for nothing.
    void SetWarning(const QString& warning);

    /// A long project name asks for no room of its own: the caption is shortened where it does not
    /// fit, and then shown whole as the caption's tool tip.
    QSize sizeHint() const override { return QWidget::sizeHint(); }
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): a group box asks for room for its caption
    QSize minimumSizeHint() const override { return QWidget::minimumSizeHint(); }

    /// Make do with a width, pixels: buttons on further rows, the groups of fields below each
    /// other.
    void SetRoom(int room);

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void MakeFields();
    void MakeButtons();
    QGroupBox* NewSizeGroup(Units shown);
    QGroupBox* NewItemGroup();
    QWidget* NewItemNumberRow();
    QLabel* NewNote();
    void Arrange(Units shown);
    void FitCaption();

    void ShowNote();
    void ConnectFields();
    /// Which text this is; nothing for any other object.
    std::optional<int> IndexOf(const QObject* object) const;
    void EnterFrom(const QObject& field);
    /// A size field changed: empty it when it holds no size, and say what became of the typing.
    void TestTypedSize(int index);
    /// The focus left a size field, for another one or for good as `moved` says: nothing stays
    /// behind in it that is no size, and a whole length is spread.
    void TestLeftSize(int index, bool moved);
    /// Spread one size, the width's or the length's, and say what became of it or what is wrong.
    void SpreadSide(std::size_t side);
    /// Empty the field when it holds no size, but for the small unit of a length; answers whether
    /// it did.
    bool EmptyWithoutSize(int index);
    /// What there is to say of the typing in a size field, which made `erased` an empty size.
    std::string SizeNote(int index, bool erased) const;
    /// What there is to say of the sizes as they came.
    std::string NoteOfSizes() const;
    /// The size of one side as it stands in the fields: 0 the width, 1 the length.
    SizeParts SizeOf(std::size_t side) const;
    /// Which sizes are empty: width, length.
    std::array<bool, 2> EmptySizes() const;
    void TestTypedBase();
    void TestEnteredBase();

    Dialogs& boxes_;
    std::array<EntryField*, Texts> texts_{};
    QComboBox* covering_ = nullptr;
    QPushButton* next_ = nullptr;
    QPushButton* previous_ = nullptr;
    QPushButton* delete_ = nullptr;
    QPushButton* estimate_ = nullptr;
    QPushButton* report_ = nullptr;
    std::array<QLabel*, 2> sizeCaptions_{};
    QBoxLayout* groups_ = nullptr;
    WrappingRow* buttons_ = nullptr;
    QLabel* itemNumber_ = nullptr;
    QLabel* note_ = nullptr; ///< the line below the sizes
    QString warning_;
    QString hint_;
    Units units_;
    RoomDraft shown_; ///< as it was shown last
    /// What was taken off each size field since another field was typed in.
    std::array<std::string, SizeTexts> dropped_;
    std::array<bool, 2> emptySizes_{true, true}; ///< EmptySizes before the change in hand
    bool changing_ = false;                      ///< the frame itself changes a size field
};

} // namespace tarn
