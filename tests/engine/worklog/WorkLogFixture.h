#pragma once

#include "engine/worklog/TempodialWorkLog.h"
#include "support/EngineFixture.h"
#include "support/ObservedStore.h"

#include <algorithm>

namespace tempodial {

/// A work log whose folder and form are in place, beside a main object that ran.
class WorkLogFixture : public EngineFixture
{
protected:
    WorkLogFixture()
    {
        mMain->mNewVersion = false;
        mMain->TempodialMain_Run();
        mWorkLog = MakeRef<TempodialWorkLog>(mPlatform);
        mWorkLog->Initialize(mMain, mApplication, mNamespace, mLog);
        mLogFolder = mWorkLog->GetSyncedWorkLog(false);
        ForgetTrace();
    }

    /// A saved activity from 9:00 to 9:05.
    Ref<AppointmentItem> Activity(const std::string& project, const std::string& description = "Plan",
        const std::string& application = "Notepad", const std::string& contacts = "")
    {
        auto item = mWorkLog->CreateCalendarItem(
            project, description, application, contacts, 5, At(9, 0), At(9, 5), "", false, true);
        ForgetTrace();
        return item;
    }
    /// An appointment that is no activity, from 9:00 to 9:30.
    Ref<StoreItem> Appointment(const std::string& subject, const std::string& body = "")
    {
        ItemData data;
        data.messageClass = "IPM.Appointment";
        data.subject = subject;
        data.start = At(9, 0);
        data.end = At(9, 30);
        data.body = body;
        return mMailbox->NewItem(mLogFolder, data);
    }
    void AddProject(const std::string& name, const std::string& subjectRule, const std::string& peopleRule = "")
    {
        mMain->UpdateorAddProject(name, subjectRule, "", peopleRule, "2", false);
        ForgetTrace();
    }
    /// Fails each use of one of those members.
    static ItemObserver FailingAt(std::vector<std::string> members, Error error = Error::Automation)
    {
        return [members = std::move(members), error](const std::string& member) {
            if (std::find(members.begin(), members.end(), member) != members.end()) {
                throw Failure(error);
            }
        };
    }
    /// Gives the work log a mailbox that tells of its use.
    void Observe(const ItemObserver& observer)
    {
        mWorkLog = MakeRef<TempodialWorkLog>(mPlatform);
        mWorkLog->Initialize(mMain, mApplication, MakeRef<ObservedNameSpace>(mNamespace, observer), mLog);
        ForgetTrace();
    }

    Ref<TempodialWorkLog> mWorkLog;
    Ref<MAPIFolder> mLogFolder;
};

}
