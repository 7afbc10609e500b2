#include "desktop/qt/HostWindows.h"

#include "desktop/Neighbours.h"
#include "desktop/qt/AccessFactory.h"
#include "desktop/qt/FormWindow.h"
#include "desktop/qt/InspectorWindow.h"
#include "desktop/qt/JobStrip.h"
#include "desktop/qt/MainWindow.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/ReportWindow.h"
#include "host/windows/BuiltInCommand.h"
#include "review/ActivityReader.h"

#include <algorithm>

namespace tempodial {

namespace {

template <class Window> Window* FindWindow(const auto& windows, std::int32_t number)
{
    const auto found = windows.find(number);
    return found == windows.end() ? nullptr : found->second.get();
}

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

HostWindows::HostWindows(Desk& desk, Beginning beginning)
    : mDesk(desk)
    , mIsHidden(beginning == Beginning::Hidden)
    , mPages([&desk](const std::string& path) { desk.Profile().Surroundings().shell->Open(path); })
    , mEvents(desk.Subscribe({ .Changed = [this] { Follow(); } }))
{
    InstallAccess();
    desk.mCloseItems = [this] { return CloseItems(); };
    desk.Windows().SetOwnerCommands(ForModels());
    Follow();
}

HostWindows::~HostWindows()
{
    if (mDesk.Session().IsStarted()) {
        mDesk.Windows().SetOwnerCommands({});
    }
    mDesk.mCloseItems = nullptr;
    // The loop of events in which they would go may have ended, and what they hold of the mailbox must not outlive it.
    const auto deleteAll = [](auto& windows) {
        for (auto& [number, window] : windows) {
            delete window.release();
        }
    };
    deleteAll(mItems);
    deleteAll(mForms);
    deleteAll(mExplorers);
}

void HostWindows::Follow()
{
    const auto& explorers = mDesk.Windows().OpenExplorers();
    const bool hadAny = !mExplorers.empty();
    DropGone(mExplorers, explorers);
    for (const auto& explorer : explorers) {
        auto& window = mExplorers[explorer->Number()];
        if (!window) {
            window.reset(new MainWindow(mDesk, explorer));
            window->mRemoveExample = [this] { RemoveExample(); };
            if (const auto notice = mDesk.Notice(); !notice.empty()) {
                window->Say(ToQt(notice));
            }
            window->setVisible(!mIsHidden);
        }
    }
    FollowForms();
    FollowItems();
    if (hadAny && mExplorers.empty() && mWhenAllClosed) {
        mWhenAllClosed();
    }
}

bool HostWindows::CloseItems()
{
    // A copy, since a window that closes takes itself out.
    const auto inspectors = mDesk.Windows().OpenInspectors();
    for (auto inspector = inspectors.rbegin(); inspector != inspectors.rend(); ++inspector) {
        auto* window = WindowOf(*inspector);
        if (window != nullptr && !window->close()) {
            window->raise();
            window->activateWindow();
            return false;
        }
    }
    return true;
}

void HostWindows::RemoveExample()
{
    mRemovesExample = true;
    mDesk.Quit();
    // A window that stays keeps the example, also when the program ends later.
    mRemovesExample = mDesk.Windows().OpenExplorers().empty();
}

void HostWindows::Raise()
{
    mIsHidden = false;
    const auto active = mDesk.Windows().ActiveExplorer().As<HostExplorer>();
    if (auto* window = active ? WindowOf(active) : nullptr) {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->show();
        window->raise();
        window->activateWindow();
    }
}

void HostWindows::FollowForms()
{
    const auto forms = mDesk.Session().Forms()->Forms();
    DropGone(mForms, forms);
    for (const auto& form : forms) {
        // How far a job is stands in the window itself.
        const bool isProgress = form->Definition().className == JobStrip::FormClass;
        if (form->Visible() && mForms.count(form->Number()) == 0 && !isProgress) {
            mForms[form->Number()].reset(new FormWindow(mDesk, form));
        }
    }
}

void HostWindows::FollowItems()
{
    const auto inspectors = mDesk.Windows().OpenInspectors();
    DropGone(mItems, inspectors);
    for (const auto& inspector : inspectors) {
        auto& window = mItems[inspector->Number()];
        if (!window) {
            window.reset(NewWindow(inspector));
            window->show();
        }
    }
}

ItemWindow* HostWindows::NewWindow(const Ref<HostInspector>& inspector)
{
    if (inspector->ShownMail()) {
        return new ReportWindow(mDesk, inspector, mPages);
    }
    return new InspectorWindow(mDesk, inspector);
}

OwnerCommands HostWindows::ForModels()
{
    return { .InExplorer =
                 [this](const Ref<HostExplorer>& explorer, std::int32_t command) {
                     if (auto* window = WindowOf(explorer)) {
                         window->Commands().Run(command);
                     }
                 },
        .InInspector =
            [this](const Ref<HostInspector>& inspector, std::int32_t command) {
                if (auto* window = WindowOf(inspector); window != nullptr && command == BuiltInCommand::Print) {
                    window->Print();
                }
            },
        .ItemsBeside =
            [this](const Ref<HostInspector>& inspector, std::int32_t command) {
                std::vector<Ref<StoreItem>> items;
                const auto& item = inspector->ShownItem();
                const auto side = command == BuiltInCommand::PreviousItem ? Side::Before : Side::Behind;
                for (const auto& activity : NeighboursOf(mDesk.Profile(), item ? item->Number() : 0, side)) {
                    items.push_back(ItemNumbered(mDesk.Profile(), activity.number));
                }
                return items;
            } };
}

MainWindow* HostWindows::WindowOf(const Ref<HostExplorer>& explorer) const
{
    return FindWindow<MainWindow>(mExplorers, explorer->Number());
}

FormWindow* HostWindows::WindowOf(const Ref<FormModel>& form) const
{
    return FindWindow<FormWindow>(mForms, form->Number());
}

ItemWindow* HostWindows::WindowOf(const Ref<HostInspector>& inspector) const
{
    return FindWindow<ItemWindow>(mItems, inspector->Number());
}

}
