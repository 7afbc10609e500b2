#include "desktop/qt/ExampleProgram.h"

#include "desktop/qt/QtText.h"
#include "host/files/NativePath.h"
#include "host/files/PathOperations.h"
#include "host/files/ProgramFolder.h"
#include "session/ProfileError.h"
#include "session/ProfilePlace.h"

#include <QProcess>

namespace tempodial {

namespace {

constexpr auto ExampleName = "tempodial-example";
constexpr auto ExampleDays = "14";
/// Milliseconds in which the example's files are written on any machine.
constexpr int LongestWriting = 30000;

}

std::string ExampleProgram::FolderOf(const Profile& profile)
{
    return NativePath::Exactly(profile.Path()).Beside(ExampleName).Text();
}

bool ExampleProgram::Is(const Profile& profile)
{
    return profile.Path() == FolderOf(profile);
}

void ExampleProgram::Remove(const std::string& folder)
{
    RemoveFolder(NativePath::Exactly(folder));
}

void ExampleProgram::Open(const Profile& profile)
{
    const auto folder = FolderOf(profile);
    if (!ProfilePlace::HasProfileIn(folder)) {
        QProcess writing;
        writing.start(ToQt(InProgramFolder("bin/tempodial")),
            { "--profile", ToQt(folder), "--quiet", "demo", "--days", ExampleDays });
        if (!writing.waitForFinished(LongestWriting) || writing.exitCode() != 0) {
            throw ProfileError(
                "The example couldn't be written to " + folder + ": " + writing.readAllStandardError().toStdString());
        }
    }
    if (!QProcess::startDetached(ToQt(InProgramFolder("bin/tempodial-desktop")), { "--profile", ToQt(folder) })) {
        throw ProfileError("The example couldn't be opened: see whether tempodial-desktop is installed as a whole");
    }
}

}
