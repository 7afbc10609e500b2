#pragma once

#include "review/ActivityReader.h"
#include "session/Session.h"
#include "support/CannedMessageBox.h"
#include "support/TempFolder.h"

namespace tempodial {

/// A session of one afternoon in October, started, with a mailbox in memory.
class StartedSession
{
public:
    StartedSession()
    {
        auto surroundings = mSession.Surroundings();
        surroundings.messageBox = MakeRef<CannedMessageBox>();
        mSession.Start(surroundings);
    }
    ~StartedSession() { mSession.End(); }
    StartedSession(const StartedSession&) = delete;
    StartedSession& operator=(const StartedSession&) = delete;

    const tempodial::Profile& Profile() const { return mSession.Profile(); }
    TempodialMain& AddIn() { return mSession.AddIn(); }
    Session& Opened() { return mSession; }
    /// An activity of half an hour that the add-in has written.
    Activity Added(const std::string& description, Date start, const std::string& project = "Garden")
    {
        mSession.AddIn().CreateCalendarItem(
            project, description, "Word", "", 30, start, start.AddMinutes(30), "", false);
        return ActivityAt(mSession.Profile(), start).value();
    }

private:
    TempFolder mFolder { TempFolder::InMemory() };
    Session mSession {
        { .profile = mFolder.Path(), .locale = "en_US", .now = Date::FromParts({ 2006, 10, 10, 17, 0, 0 }) }
    };
};

}
