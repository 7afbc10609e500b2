#include "desktop/ModelView.h"

#include "base/Failure.h"
#include "session/ProductFacts.h"
#include "session/WorkLogFolder.h"

#include <cstdint>
#include <string>

namespace tempodial {

ModelView::LogView ModelView::Wanted(LogView shown) const
{
    const auto views = OfLog();
    if (!views) {
        return shown;
    }
    if (IsTable(views)) {
        return LogView::List;
    }
    return shown == LogView::Day ? LogView::Day : LogView::Week;
}

void ModelView::Choose(LogView chosen) const
{
    const auto views = OfLog();
    if (!views || chosen == LogView::SortOut) {
        return;
    }
    const bool wantsTable = chosen == LogView::List;
    if (IsTable(views) != wantsTable) {
        Apply(views, wantsTable ? ViewType::Table : ViewType::Calendar);
    }
}

void ModelView::Begin(LogView first) const
{
    const auto views = OfLog();
    if (views && (first == LogView::List || first == LogView::SortOut)) {
        Apply(views, first == LogView::List ? ViewType::Table : ViewType::Calendar);
    }
}

Ref<Views> ModelView::OfLog() const
{
    try {
        const auto folder = mExplorer->CurrentFolder();
        const auto workLog = WorkLogOf(mProfile);
        return workLog && workLog->EntryID() == folder->EntryID() ? folder->Views() : nullptr;
    } catch (const Failure&) {
        // The folder may be gone, or the window.
        return nullptr;
    }
}

bool ModelView::IsTable(const Ref<Views>& views) const
{
    const auto view = views->ItemNamed(mExplorer->CurrentView());
    return view && view->ViewType() == ViewType::Table;
}

void ModelView::Apply(const Ref<Views>& views, ViewType type) const
{
    for (std::int32_t i = 1; i <= views->Count(); ++i) {
        const auto view = views->Item(i);
        // The host's own ones would be changed by the product, which knows its views by their names.
        if (view->ViewType() == type && view->Name().find(ProductName) != std::string::npos) {
            mExplorer->PickView(view->Name());
            return;
        }
    }
}

}
