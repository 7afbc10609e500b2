#include "engine/foundation/TempodialCommonUtils.h"

#include "base/Number.h"
#include "engine/foundation/TempodialWin32APICalls.h"

namespace tempodial {

namespace {

constexpr auto GuardValue = "Outlook Security Popups";

}

TempodialCommonUtils::TempodialCommonUtils(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
{
}

void TempodialCommonUtils::Initialize(
    const Ref<TempodialDebugLog>& applog, const std::string& fnam, const std::string& version)
{
    mLog = applog;
    mFolderBaseName = fnam;
    mOutlookVersion = version;
    mFileSystem = mPlatform->fileSystem;
    mTraceInfo = "TempodialCommonUtils";
    mDataFolderName.clear();
}

void TempodialCommonUtils::Terminate()
{
    const auto attempt = Failing("Term error ", LineShape::TextOnly);
    if (mLog) {
        attempt.Say("terminate common utils");
    }
    mFolderBaseName.clear();
    mLog = nullptr;
    mFileSystem = nullptr;
}

const std::string& TempodialCommonUtils::DataFolder()
{
    const auto attempt = Failing("", LineShape::Silent);
    if (mDataFolderName.empty()) {
        attempt([&] {
            mDataFolderName
                = mFileSystem->BuildPath(mFileSystem->GetSpecialFolder(SpecialFolder::Temporary), mFolderBaseName);
        });
        if (!attempt.Get([&] { return mFileSystem->FolderExists(mDataFolderName); })) {
            attempt([&] { mFileSystem->CreateFolder(mDataFolderName); });
        }
    }
    return mDataFolderName;
}

std::string TempodialCommonUtils::GetDataFolderName()
{
    return DataFolder();
}

Ref<const Folder> TempodialCommonUtils::GetDataFolder()
{
    return Failing("", LineShape::Silent).Get([&] {
        return Ref<const Folder>(MakeRef<Folder>(mFileSystem->GetFolder(GetDataFolderName())));
    });
}

std::string TempodialCommonUtils::GetDataFilePath(const std::string& filename)
{
    // The folder's name is its path; a look at the folder would list all of its files for each block of the trace.
    return Failing("", LineShape::Silent).Get([&] { return mFileSystem->BuildPath(DataFolder(), filename); });
}

Ref<TextStream> TempodialCommonUtils::OpenDataFile(const std::string& filename, bool createIt, OpenMode mode)
{
    const auto attempt = Failing("OpenDataFile error ", LineShape::TextBlankStep);
    mStage = "OpenTextFile";
    return attempt.Get([&] { return mFileSystem->OpenTextFile(GetDataFilePath(filename), mode, createIt); });
}

bool TempodialCommonUtils::EmailObjectGuardInPlace()
{
    const auto attempt = Failing("EmailObjectGuardInPlace error ", LineShape::TextBlankStep);
    std::string popups;
    const bool known = attempt([&] {
        popups = TempodialWin32APICalls::ReadRegistryValue(
            *mPlatform, Hive::LocalMachine, TempodialWin32APICalls::DefaultKey, GuardValue, RegistryAccess::All)
                     .ToText();
    });
    if (popups == "true") {
        attempt.Say("Popups says reg");
        return true;
    }
    if (popups == "false") {
        attempt.Say("No popups says reg ");
        return false;
    }

    attempt.Say("Check for Outlook 2002");
    if (!known) {
        return true;
    }
    attempt.Say("Outlook version is " + mOutlookVersion);
    const auto major = attempt.Get([&] { return MajorVersion(mOutlookVersion); });
    if (major == 10) {
        attempt.Say("Outlook version is 2002 so abandon ship");
        return true;
    }
    return major == 9 || major == 8 || PolicyInPlace(attempt);
}

bool TempodialCommonUtils::PolicyInPlace(const Attempt& attempt)
{
    attempt.Say("not 2002");
    std::string settings;
    attempt([&] {
        settings = TempodialWin32APICalls::ReadRegistryValue(*mPlatform, Hive::CurrentUser,
            R"(Software\Policies\Microsoft\Security)", "CheckAdminSettings", RegistryAccess::All)
                       .ToText();
    });
    attempt.Say("server security settings: " + settings);
    if (settings.empty() || !attempt.Get([&] { return ToInt32(settings) != 0; })) {
        return false;
    }
    attempt.Say("server security settings enabled");
    return true;
}

void TempodialCommonUtils::MarkEmailObjectGuardInPlace()
{
    const auto attempt = Failing("MarkEmailObjectGuardInPlace error ", LineShape::TextBlankStep);
    attempt.Say("MarkEmailObjectGuardInPlace");
    attempt([&] {
        TempodialWin32APICalls::WriteRegistryValue(
            *mPlatform, Hive::LocalMachine, TempodialWin32APICalls::DefaultKey, GuardValue, "true");
    });
}

}
