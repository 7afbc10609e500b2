#include "desktop/qt/AgendaAccess.h"

#include "desktop/qt/ActivityAccess.h"
#include "desktop/qt/AgendaView.h"

namespace tempodial {

namespace {

QAccessibleInterface* MakeAgendaAccess(const QString& /*className*/, QObject* object)
{
    auto* view = dynamic_cast<AgendaView*>(object);
    return view == nullptr ? nullptr : new AgendaAccess(*view);
}

}

void AgendaAccess::Install()
{
    QAccessible::installFactory(MakeAgendaAccess);
}

AgendaAccess::AgendaAccess(AgendaView& view)
    : QAccessibleWidget(&view, QAccessible::List, view.accessibleName())
{
    view.mWhenFollowed = [this] { Follow(); };
}

AgendaAccess::~AgendaAccess()
{
    // An agenda that goes takes this with it.
    if (auto* view = dynamic_cast<AgendaView*>(object())) {
        view->mWhenFollowed = nullptr;
    }
    Forget();
}

void AgendaAccess::Follow()
{
    auto shown = Shown();
    if (shown == mPieces) {
        return;
    }
    mPieces = std::move(shown);
    Forget();
    QAccessibleEvent event(this, QAccessible::ObjectReorder);
    QAccessible::updateAccessibility(&event);
}

AgendaAccess::Pieces AgendaAccess::Shown() const
{
    Pieces shown;
    for (const auto& piece : View().Scene().Layout().Pieces()) {
        shown.emplace_back(View().Scene().ActivityOf(piece).number, piece.day);
    }
    return shown;
}

void AgendaAccess::Forget()
{
    for (const auto& [piece, id] : mChildren) {
        QAccessible::deleteAccessibleInterface(id);
    }
    mChildren.clear();
}

AgendaView& AgendaAccess::View() const
{
    return dynamic_cast<AgendaView&>(*object());
}

int AgendaAccess::childCount() const
{
    return static_cast<int>(View().Scene().Layout().Pieces().size());
}

QAccessibleInterface* AgendaAccess::child(int index) const
{
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    const auto known = mChildren.find(index);
    if (known != mChildren.end()) {
        return QAccessible::accessibleInterface(known->second);
    }
    auto* made = new ActivityAccess(View(), static_cast<std::size_t>(index));
    mChildren.emplace(index, QAccessible::registerAccessibleInterface(made));
    return made;
}

int AgendaAccess::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* activity = dynamic_cast<const ActivityAccess*>(child);
    return activity == nullptr ? -1 : static_cast<int>(activity->Piece());
}

QAccessibleInterface* AgendaAccess::childAt(int x, int y) const
{
    const auto place = View().InScene(View().viewport()->mapFromGlobal(QPoint(x, y)));
    const auto hit = View().Scene().Hits().At(place.x(), place.y());
    const bool isPiece
        = hit.part == AgendaHit::Part::Body || hit.part == AgendaHit::Part::Start || hit.part == AgendaHit::Part::End;
    return isPiece ? child(static_cast<int>(hit.index)) : nullptr;
}

QAccessibleInterface* AgendaAccess::focusChild() const
{
    const auto focus = View().Focus();
    return View().hasFocus() && focus ? child(static_cast<int>(*focus)) : QAccessibleWidget::focusChild();
}

}
