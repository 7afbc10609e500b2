#pragma once

#include "engine/worklog/TempodialWorkLog.h"
#include "support/EngineFixture.h"

namespace tempodial {

/// A work log whose folder and form are in place, beside a main object that ran.
class WorkLogFixture : public EngineFixture
{
protected:
    WorkLogFixture();
    ~WorkLogFixture() override;

    /// A saved activity from 9:00 to 9:05.
    Ref<AppointmentItem> Activity(const std::string& project, const std::string& description = "Plan",
        const std::string& application = "Notepad", const std::string& contacts = "");
    /// An appointment that is no activity, from 9:00 to 9:30.
    Ref<StoreItem> Appointment(const std::string& subject, const std::string& body = "");
    void AddProject(const std::string& name, const std::string& subjectRule, const std::string& peopleRule = "");
    /// Gives the work log a mailbox that tells of its use.
    void Observe(UseObserver observer);

    Ref<TempodialWorkLog> mWorkLog;
    Ref<MAPIFolder> mLogFolder;
};

}
