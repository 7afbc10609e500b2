#include "desktop/qt/PaneWalk.h"

#include <QWidget>
#include <algorithm>

namespace tempodial {

namespace {

/// The widget of a pane that takes the focus; null when none can.
QWidget* Entry(QWidget& pane)
{
    const auto takes = [](const QWidget& widget) {
        return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0;
    };
    if (takes(pane)) {
        return &pane;
    }
    const auto inside = pane.findChildren<QWidget*>();
    const auto found = std::find_if(inside.begin(), inside.end(), [&](const auto* widget) { return takes(*widget); });
    return found == inside.end() ? nullptr : *found;
}

}

void FocusNextPane(const std::vector<QWidget*>& panes, int step)
{
    const auto* focus = panes.front()->window()->focusWidget();
    const auto isIn = [focus](const QWidget* pane) { return pane == focus || pane->isAncestorOf(focus); };
    const auto current = focus == nullptr ? panes.end() : std::find_if(panes.begin(), panes.end(), isIn);
    const auto count = static_cast<int>(panes.size());
    auto place = current == panes.end() ? (step > 0 ? -1 : 0) : static_cast<int>(current - panes.begin());
    for (int turn = 0; turn < count; ++turn) {
        place = (place + step + count) % count;
        auto* entry = Entry(*panes[static_cast<std::size_t>(place)]);
        if (entry != nullptr) {
            entry->setFocus(Qt::ShortcutFocusReason);
            return;
        }
    }
}

}
