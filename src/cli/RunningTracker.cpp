#include "cli/RunningTracker.h"

#include "base/TrackerFile.h"
#include "cli/CommandError.h"
#include "host/files/ProgramFolder.h"
#include "session/OpenProfile.h"
#include "track/ControlClient.h"
#include "track/ControlPath.h"
#include "track/ProfileRecorder.h"

namespace tempodial {

RunningTracker::RunningTracker(const Options& options)
    : mProfile(ProfilePath(options))
{
}

std::optional<ControlMessage> RunningTracker::AskIfRunning(const ControlMessage& request) const
{
    std::optional<ControlMessage> answer;
    for (const auto& path : ControlPathsOf(mProfile)) {
        if (answer = AskRecorder(path, request); answer) {
            break;
        }
    }
    if (answer && answer->Has("error")) {
        throw CommandError(answer->Get("error"));
    }
    return answer;
}

bool RunningTracker::IsRunning() const
{
    return IsRecorderRunning(mProfile + "/" + TrackerFolderName);
}

ControlMessage RunningTracker::Ask(const ControlMessage& request) const
{
    const auto answer = AskIfRunning(request);
    if (!answer && IsRunning()) {
        throw CommandError("the recorder of this profile runs, but can't be asked from here: " + std::string(HowToAsk));
    }
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
