#include "desktop/qt/ActivityAccess.h"

#include "desktop/qt/Afterwards.h"
#include "desktop/qt/AgendaView.h"

#include <QStringList>

namespace tempodial {

namespace {

constexpr auto OpenAction = "Open";
constexpr auto SetProjectAction = "Set Project";
constexpr auto DeleteAction = "Delete";

}

ActivityAccess::ActivityAccess(AgendaView& view, const PaintedTable& table, std::size_t piece)
    : ActionCell(view, table)
    , mView(view)
    , mPiece(piece)
{
}

bool ActivityAccess::isValid() const
{
    return ActionCell::isValid() && mPiece < mView.Scene().Layout().Pieces().size();
}

QString ActivityAccess::Name() const
{
    return mView.SpokenOf(mView.ActivityOf(mPiece));
}

QString ActivityAccess::Description() const
{
    return mView.DescribedOf(mPiece);
}

QString ActivityAccess::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Help && isValid() ? mView.ToolTipOf(mView.ActivityOf(mPiece)) : ActionCell::text(kind);
}

QRectF ActivityAccess::Box() const
{
    return mView.InView(mView.Scene().Geometry().BoxOf(mView.Scene().Layout().Pieces()[mPiece]));
}

QRect ActivityAccess::rect() const
{
    if (!isValid()) {
        return {};
    }
    const auto box = Box();
    return { mView.viewport()->mapToGlobal(box.topLeft().toPoint()), box.size().toSize() };
}

QAccessible::State ActivityAccess::state() const
{
    auto state = ActionCell::state();
    if (state.invalid) {
        return state;
    }
    state.focusable = true;
    state.selectable = true;
    state.multiSelectable = true;
    state.selected = mView.Selected().contains(mView.ActivityOf(mPiece).number);
    state.focused = mView.hasFocus() && mView.Focus() == mPiece;
    state.offscreen = !Box().intersects(mView.viewport()->rect());
    return state;
}

int ActivityAccess::columnIndex() const
{
    return isValid() ? mView.Scene().Layout().Pieces()[mPiece].day : -1;
}

int ActivityAccess::rowIndex() const
{
    return isValid() ? static_cast<int>(mPiece - mView.Scene().Layout().OfDay(columnIndex()).begin) : -1;
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
    const auto number = mView.ActivityOf(mPiece).number;
    const auto day = columnIndex();
    // Whoever asked waits for an answer, and a menu or a message would keep it back until it is closed.
    Afterwards(mView, [view = &mView, number, day, name] {
        if (name == OpenAction) {
            view->mWishes.open(number);
            return;
        }
        view->setFocus();
        if (const auto piece = view->PieceOf(number, day)) {
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
