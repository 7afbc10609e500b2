#include "desktop/qt/HostWindows.h"

#include "desktop/qt/AgendaAccess.h"
#include "desktop/qt/MainWindow.h"

#include <algorithm>

namespace tempodial {

namespace {

/// Lets the windows go whose number none of the models has.
template <class Windows, class Models> void DropGone(Windows& windows, const Models& models)
{
    for (auto window = windows.begin(); window != windows.end();) {
        const auto isIt = [&](const auto& model) { return model->Number() == window->first; };
        window = std::any_of(models.begin(), models.end(), isIt) ? std::next(window) : windows.erase(window);
    }
}

}

void HostWindows::Later::operator()(QWidget* window) const
{
    window->hide();
    window->deleteLater();
}

HostWindows::HostWindows(Desk& desk)
    : mDesk(desk)
    , mEvents(desk.Subscribe({ .Changed = [this] { Follow(); } }))
{
    AgendaAccess::Install();
    Follow();
}

HostWindows::~HostWindows() = default;

void HostWindows::Follow()
{
    const auto& explorers = mDesk.Windows().OpenExplorers();
    const bool hadAny = !mExplorers.empty();
    DropGone(mExplorers, explorers);
    for (const auto& explorer : explorers) {
        auto& window = mExplorers[explorer->Number()];
        if (!window) {
            window.reset(new MainWindow(mDesk, explorer));
            window->show();
        }
    }
    if (hadAny && mExplorers.empty() && mWhenAllClosed) {
        mWhenAllClosed();
    }
}

MainWindow* HostWindows::WindowOf(const Ref<HostExplorer>& explorer) const
{
    const auto found = mExplorers.find(explorer->Number());
    return found == mExplorers.end() ? nullptr : found->second.get();
}

}
