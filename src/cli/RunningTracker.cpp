#include "cli/RunningTracker.h"

#include "cli/CommandError.h"
#include "host/files/ProgramFolder.h"
#include "session/OpenProfile.h"
#include "track/ControlClient.h"
#include "track/ControlPath.h"

namespace tempodial {

RunningTracker::RunningTracker(const Options& options)
    : mProfile(ProfilePath(options))
{
}

std::optional<ControlMessage> RunningTracker::AskIfRunning(const ControlMessage& request) const
{
    auto answer = AskRecorder(ControlPathOf(mProfile), request);
    if (answer && answer->Has("error")) {
        throw CommandError(answer->Get("error"));
    }
    return answer;
}

ControlMessage RunningTracker::Ask(const ControlMessage& request) const
{
    const auto answer = AskIfRunning(request);
    if (!answer) {
        throw CommandError("no recorder of this profile is running: start it with \"tempodial track\", or let your "
                           "session start it by \"tempodial track install\"");
    }
    return *answer;
}

std::string RunningTracker::ProgramPath()
{
    return InProgramFolder("bin/tempodial-track");
}

ControlMessage TrackRequest(const std::string& what)
{
    ControlMessage request;
    request.Set("do", what);
    return request;
}

}
