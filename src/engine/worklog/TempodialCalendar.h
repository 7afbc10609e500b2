#pragma once

#include "base/Watched.h"
#include "engine/core/TempodialMain.h"
#include "engine/foundation/TracedObject.h"
#include "platform/objectmodel/Application.h"
#include "platform/objectmodel/Items.h"

#include <memory>
#include <string>

namespace tempodial {

/// Brings recurring appointments of the main calendar into the work log; it stands ready, and nothing creates it.
class TempodialCalendar final : public TracedObject, public std::enable_shared_from_this<TempodialCalendar>
{
public:
    explicit TempodialCalendar(Ref<const Platform> platform);

    std::string mTempodialID;
    Ref<NameSpace> mNamespace;
    std::string mErrorText;

    /// Watches the items of the main calendar.
    void Initialize(const Ref<TempodialMain>& main, const Ref<Application>& application,
        const Ref<NameSpace>& nameSpace, const Ref<TempodialDebugLog>& log);
    void Terminate();

    /// An appointment has arrived in the main calendar: a copy of a recurring one goes to the work log.
    void mCalendarItems_ItemAdd(const Ref<OutlookItem>& item);

private:
    Ref<TempodialMain> mMain;
    Ref<Application> mApplication;
    Watched<Items> mCalendarItems;
};

}
