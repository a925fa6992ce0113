#pragma once

#include "project/RoomChange.h"
#include "screens/OpenProject.h"

#include <QPointer>
#include <QUndoStack>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace tarn {

/// Every change of the open project's rooms since its last load, to be taken back and made again.
/// The units in which the rooms were typed go with them. It outlives the screens and the saves:
/// after a save what is taken back is unsaved.
class RoomHistory {
  public:
    /// `project` must outlive the history.
    explicit RoomHistory(OpenProject& project);

    /// Run `action`. What it changes of the rooms is one step, whether it raises or not; nothing
    /// when it changes none. `about` is the room that it is about (see ChangeBetween), `name` what
    /// the user reads of it; where it is empty the change's own (see NameOf).
    void Do(std::size_t about, const std::function<void()>& action, std::string name = {});

    bool CanUndo() const { return steps_.canUndo(); }
    bool CanRedo() const { return steps_.canRedo(); }
    /// What would be taken back, or made again: "delete room 3"; empty for nothing.
    std::string UndoName() const;
    std::string RedoName() const;
    /// The rooms as Undo would leave them; as they are when there is nothing to take back.
    std::vector<Room> RoomsAfterUndo() const;

    /// Take the last step back, or make the next again. Answers the room that it is about, 0 ..
    /// number of rooms. There must be one (see CanUndo, CanRedo). Raises as RequireExtents, with
    /// nothing changed.
    std::size_t Undo();
    std::size_t Redo();

    /// How many steps there are to take back.
    int Position() const { return steps_.index(); }
    /// The rooms were put back, by other means, to what they were at that position: forget the
    /// steps behind it.
    void ForgetBehind(int position);

    /// The project was saved: the store may have changed a text that it does not take, the name,
    /// or the units of a project without rooms. That is no step.
    void NoteSaved();
    /// Forget all steps unless the rooms are those of the last one, in the same project.
    void Follow();
    void Clear();

    /// Have `told` called whenever what can be taken back or made again changes, until `context` is
    /// gone or another takes its place.
    void OnChange(QObject& context, std::function<void()> told);

  private:
    const RoomChange& ChangeAt(int step) const;
    std::size_t Step(bool back);
    /// The rooms' units at the present position are those of now.
    void NoteUnits();
    void TakeState();
    void Tell();

    OpenProject& project_;
    QUndoStack steps_;
    std::vector<Units> entered_; ///< the units of the rooms, at each position
    std::string name_;           ///< the project as the last step left it, and its rooms
    std::vector<Room> rooms_;
    QPointer<QObject> context_;
    std::function<void()> told_;
};

} // namespace tarn
