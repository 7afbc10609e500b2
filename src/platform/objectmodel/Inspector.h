#pragma once

#include "base/Subscription.h"
#include "platform/commandbars/CommandBars.h"
#include "platform/objectmodel/OutlookItem.h"
#include "platform/objectmodel/Pages.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tempodial {

/// What happens to a window that shows an item.
struct InspectorEvents
{
    std::function<void()> Close;
};

/// A window that shows an item. Every member fails (462) when the window is gone.
class Inspector
{
public:
    using Events = InspectorEvents;

    virtual ~Inspector() = default;

    virtual std::string Caption() const = 0;
    /// The item shown.
    virtual Ref<OutlookItem> CurrentItem() = 0;
    virtual Ref<tempodial::CommandBars> CommandBars() = 0;
    /// The pages that the item's form has of its own.
    virtual Ref<Pages> ModifiedFormPages() = 0;

    virtual Subscription Subscribe(InspectorEvents events) = 0;
};

/// What happens to the windows that show items.
struct InspectorsEvents
{
    /// A window has come into being; it isn't on the screen yet.
    std::function<void(const Ref<Inspector>& inspector)> NewInspector;
};

/// The inspectors that are open.
class Inspectors
{
public:
    using Events = InspectorsEvents;

    virtual ~Inspectors() = default;

    virtual std::int32_t Count() = 0;
    /// The inspector at a position from 1; out of range fails (9).
    virtual Ref<Inspector> Item(std::int32_t index) = 0;

    virtual Subscription Subscribe(InspectorsEvents events) = 0;
};

}
