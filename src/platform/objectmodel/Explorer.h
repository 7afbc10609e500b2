#pragma once

#include "base/Subscription.h"
#include "platform/commandbars/CommandBars.h"
#include "platform/objectmodel/MAPIFolder.h"
#include "platform/objectmodel/Selection.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tempodial {

/// What happens to a window that shows a folder.
struct ExplorerEvents
{
    std::function<void()> Activate;
    /// The window has gone to another folder.
    std::function<void()> FolderSwitch;
    std::function<void()> SelectionChange;
    std::function<void()> Close;
};

/// A window that shows a folder. Every member fails (462) when the window is gone.
class Explorer
{
public:
    using Events = ExplorerEvents;

    virtual ~Explorer() = default;

    virtual std::string Caption() const = 0;
    virtual Ref<MAPIFolder> CurrentFolder() = 0;
    /// Goes to a folder.
    virtual void SetCurrentFolder(const Ref<MAPIFolder>& folder) = 0;
    /// The name of the view shown.
    virtual std::string CurrentView() = 0;
    /// Applies the view of that name; an unknown name fails.
    virtual void SetCurrentView(const std::string& name) = 0;
    virtual Ref<tempodial::Selection> Selection() = 0;
    /// True when the window shows that folder, alone or as one of several side by side; nothing fails (91).
    virtual bool IsFolderSelected(const Ref<MAPIFolder>& folder) = 0;
    virtual Ref<tempodial::CommandBars> CommandBars() = 0;

    virtual Subscription Subscribe(ExplorerEvents events) = 0;
};

/// What happens to the windows that show folders.
struct ExplorersEvents
{
    /// A window has come into being; it isn't on the screen yet.
    std::function<void(const Ref<Explorer>& explorer)> NewExplorer;
};

/// The explorers that are open.
class Explorers
{
public:
    using Events = ExplorersEvents;

    virtual ~Explorers() = default;

    virtual std::int32_t Count() = 0;
    /// The explorer at a position from 1; out of range fails (9).
    virtual Ref<Explorer> Item(std::int32_t index) = 0;

    virtual Subscription Subscribe(ExplorersEvents events) = 0;
};

}
