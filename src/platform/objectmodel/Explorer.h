#pragma once

#include "platform/objectmodel/MAPIFolder.h"
#include "platform/objectmodel/Selection.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// A window that shows a folder. Every member fails (462) when the window is gone.
class Explorer
{
public:
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
};

/// The explorers that are open.
class Explorers
{
public:
    virtual ~Explorers() = default;

    virtual std::int32_t Count() = 0;
    /// The explorer at a position from 1; out of range fails (9).
    virtual Ref<Explorer> Item(std::int32_t index) = 0;
};

}
