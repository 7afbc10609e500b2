#include "track/TrackSettings.h"

#include "base/Failure.h"
#include "host/files/FileDescriptor.h"
#include "host/files/ProgramFolder.h"
#include "host/settings/TomlSettings.h"
#include "slots/ViewSettings.h"

namespace tempodial {

namespace {

constexpr auto ProgramsFile = "/programs.toml";

}

TrackSettings::TrackSettings(const std::string& profile)
    : mOwnPrograms(profile + ProgramsFile)
    , mRules(profile + "/track.toml")
{
}

ViewMaker TrackSettings::Read()
{
    mMarks = { MarkOf(mOwnPrograms), MarkOf(mRules) };
    return ViewsBy(ReadSettingsFile(mOwnPrograms), ReadSettingsFile(InProgramFolder("share/tempodial") + ProgramsFile),
        ReadSettingsFile(mRules));
}

bool TrackSettings::HasChanged() const
{
    return mMarks != std::array { MarkOf(mOwnPrograms), MarkOf(mRules) };
}

TrackSettings::Mark TrackSettings::MarkOf(const std::string& path)
{
    try {
        const FileDescriptor file(NativePath::Exactly(path), Opening::Reading);
        const auto time = file.ModificationTime();
        return { file.Status().number, file.Status().size, time.tv_sec, time.tv_nsec };
    } catch (const Failure&) {
        return {}; // absent, or as good as that
    }
}

}
