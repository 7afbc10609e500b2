#pragma once

#include "driver/Command.h"
#include "driver/DriverHost.h"
#include "driver/FormCommands.h"
#include "driver/HostCommands.h"
#include "driver/MailboxCommands.h"
#include "driver/WindowCommands.h"
#include "session/ProfileOptions.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// Does what lines ask for and answers them: one JSON object for one line.
class Driver
{
public:
    /// Opens the profile; fails with `ProfileInUse` or `ProfileError`. The programs are those of the add-in for
    /// Windows; without them it is the one in this program.
    explicit Driver(const ProfileOptions& options, std::optional<RemotePrograms> programs = std::nullopt);
    /// Works in a session, which must outlive it, with other surroundings.
    Driver(Session& session, DriverSurroundings surroundings);
    ~Driver();
    Driver(const Driver&) = delete;
    Driver& operator=(const Driver&) = delete;

    /// The answer to a line, both without their line ends. A line that can't be done is answered too.
    std::string Answer(const std::string& line);
    /// The answer to a line that can't even be looked at.
    std::string Refuse(const std::string& error);
    /// The answer to a command.
    Json Do(const Json& command);
    /// Ends as a normal exit of Outlook does.
    void Exit();

    /// What the commands work on.
    DriverHost& Host() { return mHost; }

private:
    Driver(std::unique_ptr<Session> session, DriverSurroundings surroundings);

    /// The answer to the command of a source, with all that was shown and done meanwhile.
    template <class Source> Json Concluded(Source&& source);
    /// Does a command: its own answer, whatever goes wrong.
    Json Execute(const Json& command);
    const Command& Find(const Request& request) const;
    Json PutOff(const Request& request);
    void RunPutOff(const Json& command);

    /// The session when it is its own.
    std::unique_ptr<Session> mSession;
    DriverHost mHost;
    HostCommands mHostCommands { mHost };
    MailboxCommands mMailboxCommands { mHost };
    WindowCommands mWindowCommands { mHost };
    FormCommands mFormCommands { mHost };
    CommandTable mCommands;
    /// The answers to what was put off and done since the last answer.
    std::vector<Json> mPumped;
};

}
