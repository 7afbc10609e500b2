#include "engine/core/TempodialMain.h"

#include "base/Number.h"
#include "engine/core/ProductWords.h"
#include "engine/dialogs/AboutBoxForm.h"
#include "engine/dialogs/ProjectSettingsForm.h"
#include "engine/dialogs/ReportForm.h"
#include "engine/foundation/GuardedHandler.h"
#include "engine/foundation/TempodialCommonUtils.h"
#include "engine/foundation/TempodialConfig.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/foundation/TempodialUtils.h"
#include "engine/import/TempodialDataHandler.h"
#include "engine/outlook/TempodialExplorer.h"
#include "engine/outlook/TempodialInspector.h"
#include "engine/outlook/TempodialToolbarUtils.h"
#include "engine/projects/TempodialProjectManager.h"
#include "engine/reports/TempodialAnalyser.h"
#include "engine/reports/TempodialReport.h"
#include "engine/worklog/TempodialWorkLog.h"

namespace tempodial {

namespace {

constexpr auto Revision = "revision 1 TempodialMain ";

}

TempodialMain::TempodialMain(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
{
}

TempodialMain::~TempodialMain() = default;

void TempodialMain::Initialize(const std::string& /*progID*/, const Ref<Application>& application)
{
    const auto silently = Failing("", LineShape::Silent);
    ZeroReferences();
    mWorkLog = MakeRef<TempodialWorkLog>(mPlatform);
    mDataHandler = MakeRef<TempodialDataHandler>(mPlatform);
    mTempodialDebugLog = MakeRef<TempodialDebugLog>(mPlatform);
    mAnalyser = MakeRef<TempodialAnalyser>(mPlatform);
    mTempodialReport = MakeRef<TempodialReport>(mPlatform);
    mProjectManager = MakeRef<TempodialProjectManager>(mPlatform);
    silently([&] { mSettingsForm = MakeRef<ProjectSettingsForm>(mPlatform); });
    silently([&] { mReportForm = MakeRef<ReportForm>(mPlatform); });
    silently([&] { mAboutForm = MakeRef<AboutBoxForm>(mPlatform); });
    mStrings = MakeRef<TempodialStrings>();
    mConfig = MakeRef<TempodialConfig>();
    mUtils = MakeRef<TempodialUtils>(mPlatform);
    mCommonUtils = MakeRef<TempodialCommonUtils>(mPlatform);
    mToolbarUtils = MakeRef<TempodialToolbarUtils>(mPlatform);
    mFileSystem = mPlatform->fileSystem;
    mLog = mTempodialDebugLog;
    mTraceInfo = "TDMain";
    mOutlook2003orLater = true;
    mNewVersion = false;
    mDefaultCalendarView.clear();

    silently([&] {
        mApplication.Set(application,
            ApplicationEvents {
                .MapiLogonComplete = GuardedHandler(shared_from_this(), &TempodialMain::mApplication_MapiLogonComplete),
                .Quit = GuardedHandler(shared_from_this(), &TempodialMain::mApplication_Quit),
            });
    });
    silently([&] { mNamespace = application->GetNamespace("MAPI"); });
    silently([&] { mStrings->Initialize(); });
    silently([&] { mConfig->Initialize(); });
    silently([&] {
        mTempodialDebugLog->Initialize(mCommonUtils, mConfig->mTDVersion, TraceFileName, OlderTraceFileName, 0);
    });
    // Without a version the data folder must be found all the same.
    const auto version = silently.Get([&] { return application->Version(); });
    silently([&] { mCommonUtils->Initialize(mTempodialDebugLog, mStrings->mFolderName, version); });
    silently([&] { mUtils->Initialize(mTempodialDebugLog, shared_from_this()); });
    silently([&] { mTempodialDebugLog->Start(); });

    const auto attempt = Failing("TDMaininit failed on a call: ", LineShape::TextBlankStep);
    attempt([&] { mSecurityPopups = mCommonUtils->EmailObjectGuardInPlace(); });
    attempt([&] { CompareVersions(); });
    attempt([&] { mToolbarUtils->Initialize(mTempodialDebugLog, shared_from_this()); });
    attempt([&] { mSettingsForm->Initialise(shared_from_this(), mTempodialDebugLog); });
    attempt([&] { mReportForm->Initialise(shared_from_this(), mTempodialDebugLog); });
    mInspectorCount = 0;
    mExplorerCount = 0;
    attempt.Say(std::string(Revision) + "Initialize ");
    attempt([&] { mWorkLog->Initialize(shared_from_this(), application, mNamespace, mTempodialDebugLog); });
    attempt([&] { mDataHandler->Initialize(shared_from_this(), application, mNamespace, mTempodialDebugLog); });
    attempt([&] { mAnalyser->Initialize(shared_from_this(), application, mTempodialDebugLog); });
    attempt([&] { mTempodialReport->Initialize(shared_from_this(), application, mTempodialDebugLog); });
    attempt([&] { mProjectManager->Initialize(shared_from_this(), application, mNamespace, mTempodialDebugLog); });
    attempt([&] { mUtils->CleanUpOldFiles(); });
    attempt.Say("Initialized, run next ");
}

void TempodialMain::CompareVersions()
{
    const auto attempt = Failing("TDMaininit failed on a call: ", LineShape::TextBlankStep);
    const auto previous = attempt.Get([&] {
        return mUtils->GetRegistryValue(mStrings->mRegistryValueVersion, "", Hive::CurrentUser, RegistryAccess::All)
            .ToText();
    });
    attempt.Say([&] { return "Oldver: " + previous + " currVer: " + mConfig->mTDVersion; });
    if (previous != mConfig->mTDVersion) {
        mNewVersion = true;
        attempt([&] {
            mUtils->SetRegistryValue(mStrings->mRegistryValueVersion, mConfig->mTDVersion, "", Hive::CurrentUser);
        });
    }
}

void TempodialMain::TempodialMain_Run()
{
    const auto attempt = Failing("Run failed ", LineShape::TextBlankStep);
    mStage = "entry";
    attempt.Say("Entering run");
    ReadOutlookVersion();

    mStage = "create log";
    attempt.Say("new version? " + std::string(BooleanText(mNewVersion)));
    attempt([&] { mWorkLog->TempodialWorkLog_CreateWorkLog(mNewVersion); });
    attempt.Say("created log ");
    mStage = "log created";

    mStage = "load forms";
    attempt([&] { mWorkLog->LoadForms(); });
    attempt.Say("loaded forms");

    mStage = "init projects";
    attempt([&] { mProjectManager->InitProjects(); });
    attempt.Say("inited projects");

    mStage = "load icons";
    LoadIcons();

    mStage = "Create explorers";
    attempt([&] {
        mExplorers.Set(mApplication->Explorers(),
            ExplorersEvents {
                .NewExplorer = GuardedHandler(shared_from_this(), &TempodialMain::mExplorers_NewExplorer),
            });
    });
    const auto explorers = attempt.Get([&] { return mExplorers->Count(); });
    for (std::int32_t i = 1; i <= explorers; ++i) {
        const auto explorer = attempt.Get([&] { return mExplorers->Item(i); });
        attempt.Say([&] { return "Explorer caption: " + explorer->Caption(); });
        attempt([&] { AddExplorer(explorer); });
    }
    attempt([&] {
        mInspectors.Set(mApplication->Inspectors(),
            InspectorsEvents {
                .NewInspector = GuardedHandler(shared_from_this(), &TempodialMain::mInspectors_NewInspector),
            });
    });
    mStage = "Create inspectors";
    const auto inspectors = attempt.Get([&] { return mInspectors->Count(); });
    for (std::int32_t i = 1; i <= inspectors; ++i) {
        const auto inspector = attempt.Get([&] { return mInspectors->Item(i); });
        if (attempt.Get([&] { return inspector->CurrentItem().As<AppointmentItem>(); })) {
            attempt([&] { AddInspector(inspector); });
        }
    }
}

void TempodialMain::ReadOutlookVersion()
{
    const auto attempt = Failing("Run failed ", LineShape::TextBlankStep);
    std::string version;
    if (!attempt([&] { version = mApplication->Version(); }, [&](const Failure&) { mOutlook2003orLater = false; })) {
        return;
    }
    attempt.Say("version: " + version);
    std::int32_t major = 0;
    // A version that is no number can't be read either.
    if (!attempt([&] { major = MajorVersion(version); }) || (major >= 8 && major <= 10)) {
        mOutlook2003orLater = false;
    }
}

void TempodialMain::LoadIcons()
{
    const auto attempt = Failing("Run failed ", LineShape::TextBlankStep);
    const auto folder = attempt.Get([&] { return mUtils->GetInstallFolderName(); });
    const auto load = [&](Ref<Picture>& picture, const char* name) {
        attempt([&] { picture = mPlatform->pictures->Load(mFileSystem->BuildPath(folder, name)); });
    };
    const auto test = [&](const Ref<Picture>& picture, const char* text) {
        if (!picture) {
            attempt.Say(text);
        }
    };
    load(mTempodialIcon, "TDSettingsIconImage.bmp");
    load(mTempodialIconMask, "TDSettingsIconMask.bmp");
    test(mTempodialIcon, "icon load failed");
    test(mTempodialIconMask, "mask load failed");
    load(mTempodialRefreshIcon, "TDRefreshIcon.bmp");
    test(mTempodialRefreshIcon, "clock load failed");
    // kept: the last picture has no test of its own.
    load(mTempodialRefreshMaskIcon, "TDRefreshIconMask.bmp");
}

void TempodialMain::Terminate()
{
    if (!mLog) {
        return; // Never initialised, or ended before: nothing is left to do.
    }
    const auto attempt = Failing("TDMain Term failed on a call: ", LineShape::TextStep);
    const auto end = [&](auto& worker, const char* word) {
        if (worker) {
            attempt.Say(word);
            attempt([&] { worker->Terminate(); });
            worker = nullptr;
        }
    };
    attempt.Say("Main terminate");
    end(mWorkLog, "clean worklog");
    end(mAnalyser, "clean analyser");
    end(mTempodialReport, "clean reporter");
    end(mProjectManager, "clean ProjMan");
    end(mDataHandler, "clean data handler");

    const auto endAll = [&](auto& wrappers) {
        while (wrappers.Count() > 0) {
            const auto wrapper = wrappers.Item(1);
            wrappers.Remove(1);
            attempt([&] { wrapper->Terminate(); });
        }
    };
    mStage = "inspectors";
    endAll(mInspectorList);
    mClosingInspectors.clear();
    mStage = "explorers";
    endAll(mExplorerList);

    attempt([&] { mTempodialDebugLog->Terminate(); });
    attempt([&] { mCommonUtils->Terminate(); });
    mLog = nullptr;

    // The trace is gone: from here on nothing can be told.
    const auto silently = Failing("", LineShape::Silent);
    const auto unload = [&](auto& form) {
        silently([&] { form->Unload(); });
        form = nullptr;
    };
    mStage = "forms";
    unload(mSettingsForm);
    unload(mReportForm);
    unload(mAboutForm);
    ZeroReferences();
    mToolbarUtils = nullptr;
    mFileSystem = nullptr;
    mTempodialIcon = nullptr;
    mTempodialIconMask = nullptr;
    mTempodialRefreshIcon = nullptr;
    mTempodialRefreshMaskIcon = nullptr;
    mStage.clear();
}

void TempodialMain::ZeroReferences()
{
    mWorkLog = nullptr;
    mAnalyser = nullptr;
    mTempodialReport = nullptr;
    mProjectManager = nullptr;
    mDataHandler = nullptr;
    mTempodialDebugLog = nullptr;
    mNamespace = nullptr;
    mApplication.Clear();
    mStrings = nullptr;
    mConfig = nullptr;
    mUtils = nullptr;
    mCommonUtils = nullptr;
    mExplorers.Clear();
    mInspectors.Clear();
}

void TempodialMain::mApplication_MapiLogonComplete()
{
    Failing("", LineShape::Silent)([&] { TempodialMain_Run(); });
}

void TempodialMain::mApplication_Quit()
{
    Failing("", LineShape::Silent).Say("Quit received");
}

} // namespace tempodial
