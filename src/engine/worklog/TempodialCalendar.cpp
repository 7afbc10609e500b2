#include "engine/worklog/TempodialCalendar.h"

#include "engine/foundation/GuardedHandler.h"

namespace tempodial {

TempodialCalendar::TempodialCalendar(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
{
}

void TempodialCalendar::Initialize(const Ref<TempodialMain>& main, const Ref<Application>& application,
    const Ref<NameSpace>& nameSpace, const Ref<TempodialDebugLog>& log)
{
    const auto attempt = Failing("new appt ", LineShape::TextOnly);
    mMain = main;
    mApplication = application;
    mNamespace = nameSpace;
    mLog = log;
    mTraceInfo = "TDCalendar";
    Trace("revision 1 TempodialCalendar");
    attempt([&] {
        mCalendarItems.Set(mNamespace->GetDefaultFolder(DefaultFolder::Calendar)->Items(),
            { .ItemAdd = GuardedHandler(shared_from_this(), &TempodialCalendar::mCalendarItems_ItemAdd) });
    });
}

void TempodialCalendar::Terminate()
{
    mCalendarItems.Clear();
    mNamespace = nullptr;
    mApplication = nullptr;
    mMain = nullptr;
    mLog = nullptr;
}

void TempodialCalendar::mCalendarItems_ItemAdd(const Ref<OutlookItem>& item)
{
    const auto attempt = Failing("new appt ", LineShape::TextOnly);
    const auto appointment = item.As<AppointmentItem>();
    if (!attempt.Get([&] { return appointment->IsRecurring(); })) {
        return;
    }
    attempt.Say([&] { return "new item add: " + mPlatform->formats->General(appointment->Start()); });
    const auto copy = attempt.Get([&] { return appointment->Copy(); });
    attempt([&] { copy->Move(mMain->GetWorkLog()); });
}

}
