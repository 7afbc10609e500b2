#include "desktop/qt/AgendaAccess.h"

#include "desktop/qt/AccessVoice.h"
#include "desktop/qt/ActivityAccess.h"
#include "desktop/qt/DayHeadAccess.h"

#include <QLabel>
#include <vector>

namespace tempodial {

AgendaAccess::AgendaAccess(AgendaView& view)
    : QAccessibleWidget(&view, QAccessible::Table)
    , mTable(view)
{
    view.mWhenFollowed = [this] { Follow(); };
}

AgendaAccess::~AgendaAccess()
{
    // An agenda that goes takes this with it.
    if (auto* view = dynamic_cast<AgendaView*>(object())) {
        view->mWhenFollowed = nullptr;
    }
}

void AgendaAccess::Follow()
{
    if (mTable.Follow()) {
        QAccessibleTableModelChangeEvent event(this, QAccessibleTableModelChangeEvent::ModelReset);
        AccessVoice::Tell(event);
    }
}

int AgendaAccess::IndexOf(const AgendaView& view, std::size_t piece)
{
    return view.Scene().Layout().Days() + static_cast<int>(piece);
}

void AgendaAccess::TellFocus(AgendaView& view)
{
    if (!view.hasFocus() || !AccessVoice::IsHeard()) {
        return;
    }
    QAccessibleEvent event(&view, QAccessible::Focus);
    if (const auto piece = view.Focus()) {
        event.setChild(IndexOf(view, *piece));
    }
    AccessVoice::Tell(event);
}

void AgendaAccess::TellSelection(AgendaView& view, const AgendaView::Numbers& before)
{
    if (!AccessVoice::IsHeard()) {
        return;
    }
    // More are told as one change, since nobody listens to each.
    constexpr std::size_t MostTold = 16;
    std::vector<std::size_t> changed;
    for (std::size_t i = 0; i < view.Scene().Layout().Pieces().size(); ++i) {
        const auto number = view.ActivityOf(i).number;
        if (view.Selected().contains(number) != before.contains(number)) {
            changed.push_back(i);
        }
    }
    if (changed.empty() || changed.size() > MostTold) {
        QAccessibleEvent event(&view, QAccessible::SelectionWithin);
        AccessVoice::Tell(event);
        return;
    }
    for (const auto piece : changed) {
        const bool isSelected = view.Selected().contains(view.ActivityOf(piece).number);
        QAccessibleEvent event(&view, isSelected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
        event.setChild(IndexOf(view, piece));
        AccessVoice::Tell(event);
    }
}

AgendaView& AgendaAccess::View() const
{
    return dynamic_cast<AgendaView&>(*object());
}

int AgendaAccess::childCount() const
{
    const auto cells = IndexOf(View(), View().Scene().Layout().Pieces().size());
    return cells + (View().Note().isHidden() ? 0 : 1);
}

QAccessibleInterface* AgendaAccess::child(int index) const
{
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    const auto heads = IndexOf(View(), 0);
    if (index < heads) {
        return mTable.HeadOf(index);
    }
    const auto piece = static_cast<std::size_t>(index - heads);
    return piece < View().Scene().Layout().Pieces().size() ? mTable.CellOf(piece) : mTable.summary();
}

int AgendaAccess::indexOfChild(const QAccessibleInterface* child) const
{
    if (const auto* activity = dynamic_cast<const ActivityAccess*>(child)) {
        return IndexOf(View(), activity->Piece());
    }
    if (const auto* head = dynamic_cast<const DayHeadAccess*>(child)) {
        return head->columnIndex();
    }
    return child != nullptr && child == mTable.summary() ? childCount() - 1 : -1;
}

QAccessibleInterface* AgendaAccess::childAt(int x, int y) const
{
    auto& view = View();
    const QPoint place(x, y);
    if (auto* note = mTable.summary(); note != nullptr && note->rect().contains(place)) {
        return note;
    }
    if (const auto inHead = view.Head().mapFromGlobal(place); view.Head().rect().contains(inHead)) {
        return mTable.HeadOf(static_cast<int>(view.Head().DayAt(inHead.x())));
    }
    const auto inScene = view.InScene(view.viewport()->mapFromGlobal(place));
    const auto hit = view.Scene().Hits().At(inScene.x(), inScene.y());
    const bool isPiece
        = hit.part == AgendaHit::Part::Body || hit.part == AgendaHit::Part::Start || hit.part == AgendaHit::Part::End;
    return isPiece ? mTable.CellOf(hit.index) : nullptr;
}

QAccessibleInterface* AgendaAccess::focusChild() const
{
    const auto focus = View().Focus();
    return View().hasFocus() && focus ? mTable.CellOf(*focus) : QAccessibleWidget::focusChild();
}

void* AgendaAccess::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(&mTable)
                                               : QAccessibleWidget::interface_cast(type);
}

}
