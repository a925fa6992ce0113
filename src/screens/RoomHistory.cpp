#include "screens/RoomHistory.h"

#include "files/QtText.h"
#include "project/RoomExtents.h"

#include <QScopeGuard>
#include <QUndoCommand>

#include <utility>

namespace tarn {

namespace {

/// One step in the rooms of a project.
class RoomStep : public QUndoCommand {
  public:
    RoomStep(std::vector<Room>& rooms, RoomChange change, const std::string& name)
        : QUndoCommand(ToQt(name))
        , rooms_(rooms)
        , change_(std::move(change)) {}

    const RoomChange& Change() const { return change_; }
    /// Be dropped by the next undo, which changes nothing.
    void Forget() {
        setObsolete(true);
        acts_ = false;
    }

    void undo() override {
        if (acts_) {
            TakeBackChange(rooms_, change_);
        }
    }
    void redo() override {
        if (acts_) {
            MakeChange(rooms_, change_);
        }
        acts_ = true; // the toolkit makes a step that it is given; this one is made by then
    }

  private:
    std::vector<Room>& rooms_;
    RoomChange change_;
    bool acts_ = false;
};

} // namespace

RoomHistory::RoomHistory(OpenProject& project)
    : project_(project) {
    Clear();
}

void RoomHistory::Do(std::size_t about, const std::function<void()>& action, std::string name) {
    Follow();
    const auto note = qScopeGuard([&] {
        RoomChange change = ChangeBetween(rooms_, project_.Now.Rooms, about);
        if (change.IsNone()) {
            NoteUnits();
            return;
        }
        if (name.empty()) {
            name = NameOf(change);
        }
        steps_.push(new RoomStep(project_.Now.Rooms, std::move(change), name));
        entered_.resize(static_cast<std::size_t>(Position()) + 1);
        NoteUnits();
        TakeState();
        Tell();
    });
    action();
}

std::string RoomHistory::UndoName() const {
    return FromQt(steps_.undoText());
}

std::string RoomHistory::RedoName() const {
    return FromQt(steps_.redoText());
}

const RoomChange& RoomHistory::ChangeAt(int step) const {
    return static_cast<const RoomStep*>(steps_.command(step))->Change();
}

std::vector<Room> RoomHistory::RoomsAfterUndo() const {
    std::vector<Room> rooms = project_.Now.Rooms;
    if (CanUndo()) {
        TakeBackChange(rooms, ChangeAt(Position() - 1));
    }
    return rooms;
}

std::size_t RoomHistory::Undo() {
    return Step(true);
}

std::size_t RoomHistory::Redo() {
    return Step(false);
}

std::size_t RoomHistory::Step(bool back) {
    const RoomChange& change = ChangeAt(Position() - (back ? 1 : 0));
    Project after = project_.Now;
    (back ? TakeBackChange : MakeChange)(after.Rooms, change);
    RequireExtents(after, project_.Shown);
    if (back) {
        steps_.undo();
    } else {
        steps_.redo();
    }
    project_.Now.EnteredIn = entered_.at(static_cast<std::size_t>(Position()));
    TakeState();
    Tell();
    return change.Place;
}

void RoomHistory::ForgetBehind(int position) {
    while (Position() > position) {
        // The stack hands its steps out as constant ones; they are this history's own.
        auto* step = const_cast<QUndoCommand*>(steps_.command(Position() - 1));
        static_cast<RoomStep*>(step)->Forget();
        steps_.undo();
    }
    entered_.resize(static_cast<std::size_t>(position) + 1);
    TakeState();
    Tell();
}

void RoomHistory::NoteSaved() {
    TakeState();
    NoteUnits();
}

void RoomHistory::Follow() {
    if (name_ != project_.Now.Name || rooms_ != project_.Now.Rooms) {
        Clear();
    } else {
        NoteUnits();
    }
}

void RoomHistory::Clear() {
    steps_.clear();
    entered_ = {project_.Now.EnteredIn};
    TakeState();
    Tell();
}

void RoomHistory::NoteUnits() {
    entered_.at(static_cast<std::size_t>(Position())) = project_.Now.EnteredIn;
}

void RoomHistory::TakeState() {
    name_ = project_.Now.Name;
    rooms_ = project_.Now.Rooms;
}

void RoomHistory::OnChange(QObject& context, std::function<void()> told) {
    context_ = &context;
    told_ = std::move(told);
}

void RoomHistory::Tell() {
    if (context_ && told_) {
        told_();
    }
}

} // namespace tarn
