#include "engine/worklog/TempodialWorkLog.h"

#include "engine/foundation/TempodialStrings.h"

namespace tempodial {

TempodialWorkLog::TempodialWorkLog(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
{
}

void TempodialWorkLog::Initialize(const Ref<TempodialMain>& main, const Ref<Application>& application,
    const Ref<NameSpace>& nameSpace, const Ref<TempodialDebugLog>& log)
{
    mMain = main;
    mApplication = application;
    mNamespace = nameSpace;
    mLog = log;
    mTraceInfo = "TDWorklog";
    mCurrentView = mMain->mStrings->mCalendarViewName;
    Trace("revision 1 TempodialWorkLog");
}

void TempodialWorkLog::Terminate()
{
    const auto attempt = Failing("", LineShape::Silent);
    attempt([&] { HandleFolderChange(nullptr); });
    mFolder = nullptr;
    mLogItems.Clear();
    mNamespace = nullptr;
    mApplication = nullptr;
    mMain = nullptr;
    mLog = nullptr;
    mStage.clear();
}

}
