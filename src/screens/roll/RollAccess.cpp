#include "screens/roll/RollAccess.h"

#include "files/QtText.h"
#include "screens/roll/RollView.h"

#include <QAccessibleActionInterface>
#include <QAccessibleInterface>
#include <QAccessibleWidget>
#include <QPointer>

#include <vector>

namespace tarn {

namespace {

/// One piece.
class PieceAccess : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    PieceAccess(RollView& view, int number)
        : view_(&view)
        , number_(number) {}

    bool isValid() const override {
        return view_ != nullptr && Number() < view_->Shown().Pieces.size();
    }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(view_);
    }
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name && isValid()
                   ? ToQt(view_->Shown().Pieces[Number()].Description)
                   : QString();
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

    QRect rect() const override {
        if (!isValid()) {
            return {};
        }
        const QRect box = view_->BoxOf(Number());
        return {view_->viewport()->mapToGlobal(box.topLeft()), box.size()};
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const bool isCurrent = view_->Current() == Number();
        state.selectable = true;
        state.focusable = true;
        state.selected = isCurrent;
        state.focused = isCurrent && view_->hasFocus();
        state.disabled = !view_->isEnabled();
        state.invisible = !view_->isVisible();
        state.offscreen = !view_->viewport()->rect().intersects(view_->BoxOf(Number()));
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {setFocusAction()}; }
    void doAction(const QString& name) override {
        if (name == setFocusAction() && isValid() && view_->isEnabled()) {
            view_->setFocus();
            view_->Choose(Number());
        }
    }
    QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

  private:
    std::size_t Number() const { return static_cast<std::size_t>(number_); }

    QPointer<RollView> view_;
    int number_;
};

/// The view. Its children are made when they are first asked for.
class RollAccess : public QAccessibleWidget {
  public:
    explicit RollAccess(RollView& view)
        : QAccessibleWidget(&view, QAccessible::List)
        , view_(view) {}
    ~RollAccess() override { Forget(); }
    RollAccess(const RollAccess&) = delete;
    RollAccess& operator=(const RollAccess&) = delete;

    void Forget() {
        for (const QAccessible::Id id : children_) {
            if (id != 0) {
                QAccessible::deleteAccessibleInterface(id);
            }
        }
        children_.clear();
    }

    int childCount() const override { return static_cast<int>(view_.Shown().Pieces.size()); }
    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount()) {
            return nullptr;
        }
        children_.resize(view_.Shown().Pieces.size(), 0);
        QAccessible::Id& id = children_[static_cast<std::size_t>(index)];
        if (id == 0) {
            id = QAccessible::registerAccessibleInterface(new PieceAccess(view_, index));
        }
        return QAccessible::accessibleInterface(id);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        for (std::size_t i = 0; i < children_.size(); ++i) {
            if (children_[i] != 0 && QAccessible::accessibleInterface(children_[i]) == child) {
                return static_cast<int>(i);
            }
        }
        return -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const QPointF place = view_.viewport()->mapFromGlobal(QPointF(x, y));
        const auto piece = view_.PieceAt(place);
        return piece ? child(static_cast<int>(*piece)) : nullptr;
    }
    QAccessibleInterface* focusChild() const override {
        const auto current = view_.Current();
        return current && view_.hasFocus() ? child(static_cast<int>(*current)) : nullptr;
    }

  private:
    RollView& view_;
    mutable std::vector<QAccessible::Id> children_; ///< 0 for one that was not asked for
};

QAccessibleInterface* NewRollAccess(const QString& /*className*/, QObject* object) {
    auto* view = dynamic_cast<RollView*>(object);
    return view == nullptr ? nullptr : new RollAccess(*view);
}

} // namespace

void InstallRollAccess() {
    QAccessible::installFactory(&NewRollAccess); // which leaves out what is there already
}

void ForgetPieces(RollView& view) {
    if (auto* access = dynamic_cast<RollAccess*>(QAccessible::queryAccessibleInterface(&view))) {
        access->Forget();
    }
}

} // namespace tarn
