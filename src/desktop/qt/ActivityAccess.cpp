#include "desktop/qt/ActivityAccess.h"

#include "desktop/qt/AgendaView.h"

#include <QStringList>
#include <QTimer>

namespace tempodial {

namespace {

constexpr auto OpenAction = "Open";
constexpr auto SetProjectAction = "Set Project";
constexpr auto DeleteAction = "Delete";

}

ActivityAccess::ActivityAccess(AgendaView& view, std::size_t piece)
    : mAlive(&view)
    , mView(view)
    , mPiece(piece)
{
}

bool ActivityAccess::isValid() const
{
    return mAlive && mPiece < mView.Scene().Layout().Pieces().size();
}

QAccessibleInterface* ActivityAccess::parent() const
{
    return QAccessible::queryAccessibleInterface(mAlive.data());
}

QString ActivityAccess::text(QAccessible::Text kind) const
{
    if (!isValid() || (kind != QAccessible::Name && kind != QAccessible::Description)) {
        return {};
    }
    const auto& activity = mView.ActivityOf(mPiece);
    return kind == QAccessible::Name ? mView.SpokenOf(activity) : mView.ToolTipOf(activity);
}

QRect ActivityAccess::rect() const
{
    if (!isValid()) {
        return {};
    }
    const auto box = mView.InView(mView.Scene().Geometry().BoxOf(mView.Scene().Layout().Pieces()[mPiece]));
    return { mView.viewport()->mapToGlobal(box.topLeft().toPoint()), box.size().toSize() };
}

QAccessible::State ActivityAccess::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const auto& activity = mView.ActivityOf(mPiece);
    state.focusable = true;
    state.selectable = true;
    state.multiSelectable = true;
    state.selected = mView.Selected().count(activity.number) > 0;
    state.focused = mView.hasFocus() && mView.Focus() == mPiece;
    const auto box = mView.InView(mView.Scene().Geometry().BoxOf(mView.Scene().Layout().Pieces()[mPiece]));
    state.offscreen = !box.intersects(mView.viewport()->rect());
    return state;
}

void* ActivityAccess::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList ActivityAccess::actionNames() const
{
    return { OpenAction, SetProjectAction, DeleteAction, setFocusAction() };
}

void ActivityAccess::doAction(const QString& name)
{
    if (!isValid()) {
        return;
    }
    // Whoever asked waits for an answer, and a menu or a message would keep it back until it is closed.
    QTimer::singleShot(0, &mView, [view = &mView, piece = mPiece, number = mView.ActivityOf(mPiece).number, name] {
        if (name == OpenAction) {
            view->mWishes.open(number);
            return;
        }
        view->setFocus();
        if (piece < view->Scene().Layout().Pieces().size()) {
            view->SetFocusOn(piece);
        }
        view->mWishes.select({ number });
        if (name == SetProjectAction) {
            view->mWishes.chooseProject();
        } else if (name == DeleteAction) {
            view->mWishes.remove();
        }
    });
}

}
