#include "session/TraceTail.h"

#include "base/Failure.h"
#include "session/OpenProfile.h"
#include "session/ProductFacts.h"

namespace tempodial {

void TraceTail::Read(const Profile& profile)
{
    for (const auto* name : { OlderTraceFileName, TraceFileName }) {
        Read(*profile.Surroundings().fileSystem, DataPath(profile, name));
    }
}

void TraceTail::Read(FileSystemObject& fileSystem, const std::string& path)
{
    if (!fileSystem.FileExists(path)) {
        return;
    }
    const auto stream = fileSystem.OpenTextFile(path, OpenMode::Reading, false);
    try {
        while (true) {
            mLines.push_back(stream->ReadLine());
            if (mLines.size() > mLimit) {
                mLines.pop_front();
            }
        }
    } catch (const Failure& failure) {
        // The end of a file is found by reading past it.
        if (!failure.Is(Error::InputPastEnd)) {
            throw;
        }
    }
}

}
