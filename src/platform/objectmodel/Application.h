#pragma once

#include "base/Subscription.h"
#include "platform/objectmodel/AppointmentItem.h"
#include "platform/objectmodel/Explorer.h"
#include "platform/objectmodel/Inspector.h"
#include "platform/objectmodel/MailItem.h"
#include "platform/objectmodel/NameSpace.h"

#include <functional>
#include <string>

namespace tempodial {

/// What happens to the application as a whole.
struct ApplicationEvents
{
    std::function<void()> MapiLogonComplete;
    std::function<void()> Quit;
};

/// Outlook, or what stands in for it.
class Application
{
public:
    using Events = ApplicationEvents;

    virtual ~Application() = default;

    /// The version, such as "16.0.0.1".
    virtual std::string Version() const = 0;
    virtual Ref<tempodial::Explorers> Explorers() = 0;
    virtual Ref<tempodial::Inspectors> Inspectors() = 0;
    /// The mail session; only the type "MAPI" exists, another fails (5).
    virtual Ref<NameSpace> GetNamespace(const std::string& type) = 0;
    /// The explorer in front, nothing when there is none.
    virtual Ref<Explorer> ActiveExplorer() = 0;
    /// The inspector in front, nothing when there is none.
    virtual Ref<Inspector> ActiveInspector() = 0;
    /// A new mail, not yet saved or shown.
    virtual Ref<MailItem> CreateItem() = 0;
    /// A new unsaved item of a form template, to live in a folder; fails as opening a file does.
    virtual Ref<AppointmentItem> CreateItemFromTemplate(const std::string& path, const Ref<MAPIFolder>& folder) = 0;

    virtual Subscription Subscribe(ApplicationEvents events) = 0;
};

}
