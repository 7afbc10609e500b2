#include "support/WorkLogFixture.h"

namespace tempodial {

WorkLogFixture::WorkLogFixture()
{
    mMain->mNewVersion = false;
    mMain->TempodialMain_Run();
    mWorkLog = MakeRef<TempodialWorkLog>(mPlatform);
    mWorkLog->Initialize(mMain, mApplication, mNamespace, mLog);
    mLogFolder = mWorkLog->GetSyncedWorkLog(false);
    ForgetTrace();
}

WorkLogFixture::~WorkLogFixture() = default;

Ref<AppointmentItem> WorkLogFixture::Activity(const std::string& project, const std::string& description,
    const std::string& application, const std::string& contacts)
{
    auto item = mWorkLog->CreateCalendarItem(
        project, description, application, contacts, 5, At(9, 0), At(9, 5), "", false, true);
    ForgetTrace();
    return item;
}

Ref<StoreItem> WorkLogFixture::Appointment(const std::string& subject, const std::string& body)
{
    ItemData data;
    data.messageClass = "IPM.Appointment";
    data.subject = subject;
    data.start = At(9, 0);
    data.end = At(9, 30);
    data.body = body;
    return mMailbox->NewItem(mLogFolder, data);
}

void WorkLogFixture::AddProject(const std::string& name, const std::string& subjectRule, const std::string& peopleRule)
{
    mMain->UpdateorAddProject(name, subjectRule, "", peopleRule, "2", false);
    ForgetTrace();
}

void WorkLogFixture::Observe(UseObserver observer)
{
    mWorkLog = MakeRef<TempodialWorkLog>(mPlatform);
    mWorkLog->Initialize(mMain, mApplication, Observed(mNamespace, std::move(observer)), mLog);
    ForgetTrace();
}

}
