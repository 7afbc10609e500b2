#include "desktop/qt/Desk.h"

#include "desktop/FailureWords.h"
#include "desktop/qt/QtEventPump.h"
#include "host/files/PathOperations.h"
#include "host/settings/SettingsText.h"
#include "host/settings/TomlSettings.h"
#include "session/KnownLocale.h"
#include "session/ProfileError.h"
#include "session/ProfileSettings.h"
#include "session/WorkLogFolder.h"
#include "session/WorkWeek.h"

#include <QCoreApplication>
#include <cstdlib>
#include <exception>
#include <utility>

namespace tempodial {

namespace {

/// How often the windows follow a job.
constexpr std::chrono::milliseconds BetweenFollows(250);

std::string ColoursPath(const Profile& profile)
{
    return profile.Path() + "/" + ColourBook::FileName;
}

/// A person's locale goes before that of the system, and behind that of the command line.
ProfileOptions Localised(ProfileOptions options, const DesktopSettings& settings)
{
    if (!options.locale && IsKnownLocale(settings.locale)) {
        options.locale = settings.locale;
    }
    return options;
}

}

Desk::Desk(const ProfileOptions& options, std::string settingsPath, Appearance& appearance)
    : mAppearance(appearance)
    , mSettingsPath(std::move(settingsPath))
    , mSettings(DesktopSettings::Read(ReadSettingsFile(mSettingsPath)))
    , mSession(Localised(options, mSettings))
    , mLog(mSession.Profile())
    , mColours(ReadSettingsFile(ColoursPath(mSession.Profile())))
    , mWeekStart(
          [this, usual = FirstDayOfWeek(Localised(options, mSettings))] { return mSettings.FirstDayOfWeek(usual); })
{
    mAppearance.Apply(mSettings.appearance);
    mSettingsTimer.setSingleShot(true);
    QObject::connect(&mSettingsTimer, &QTimer::timeout, [this] { KeepSettings(); });
}

std::string Desk::ConfigFolder()
{
    const auto* config = std::getenv("XDG_CONFIG_HOME");
    if (config != nullptr && *config == '/') {
        return config;
    }
    const auto* home = std::getenv("HOME");
    if (home == nullptr || *home != '/') {
        throw ProfileError("the environment names no home: set HOME, or XDG_CONFIG_HOME");
    }
    return std::string(home) + "/.config";
}

std::string Desk::UsualSettingsPath()
{
    return ConfigFolder() + "/" + DesktopSettings::FileName;
}

void Desk::Quit()
{
    // Windows are asked to close during this.
    const auto stays = std::exchange(mStaysWhenClosed, false);
    QCoreApplication::quit();
    mStaysWhenClosed = stays;
}

void Desk::Start(const Ref<MessageBox>& messageBox)
{
    auto surroundings = mSession.Surroundings(Imports::ByLines);
    surroundings.messageBox = messageBox;
    surroundings.eventPump = MakeRef<QtEventPump>(surroundings.eventPump, [this] { Follow(); });
    mSession.Start(surroundings, { .imports = Imports::ByLines });
    Do([this] {
        if (const auto workLog = WorkLogOf(Profile())) {
            Windows().OpenExplorers().front()->GoTo(workLog);
        }
    });
}

void Desk::Exit()
{
    mSession.Exit();
    if (mSettingsTimer.isActive()) {
        KeepSettings();
    }
    KeepColours();
}

WorkingHours Desk::Hours() const
{
    const auto week = WorkWeek::In(*Profile().Registry());
    return { week.start, week.end, week.days };
}

CardStyle Desk::StyleOf(Coloured kind, const std::string& name)
{
    const auto use = mColours.ToneOf(kind, name);
    return { .colours = mAppearance.CardOf(use),
        .isHatched = !use,
        .hatch = mAppearance.Colours().hatch,
        .isDashed = !use,
        .isOutlined = mAppearance.IsHighContrast(),
        .isStriped = use && use->isStriped,
        .pattern = use && mAppearance.IsHighContrast() ? std::optional(use->tone) : std::nullopt };
}

void Desk::Change(const std::function<void(DesktopSettings& settings)>& change)
{
    const auto before = mSettings.appearance;
    Remember(change);
    if (mSettings.appearance != before) {
        mAppearance.Apply(mSettings.appearance);
    }
    mEvents.Raise(&DeskEvents::Restyled);
}

void Desk::FollowSystem(bool isDark)
{
    if (mAppearance.SetSystemDark(isDark)) {
        mAppearance.Apply(mSettings.appearance);
        Guarded([this] { mEvents.Raise(&DeskEvents::Restyled); });
    }
}

void Desk::Remember(const std::function<void(DesktopSettings& settings)>& change)
{
    const auto before = mSettings;
    change(mSettings);
    if (mSettings != before) {
        KeepSettings();
    }
}

void Desk::RememberSoon(const std::function<void(DesktopSettings& settings)>& change)
{
    constexpr std::chrono::seconds Moment(1);
    change(mSettings);
    mSettingsTimer.start(Moment);
}

void Desk::KeepSettings()
{
    mSettingsTimer.stop();
    try {
        MakeFoldersAbove(NativePath::Exactly(mSettingsPath));
        WriteSettingsFile(mSettings.Keep(mSettingsPath));
    } catch (const Failure& failure) {
        Fail("The settings couldn't be kept in " + mSettingsPath + ": " + failure.Description());
    }
}

void Desk::KeepColours()
{
    if (!mColours.HasChanged()) {
        return;
    }
    try {
        WriteSettingsFile(mColours.Keep());
    } catch (const Failure& failure) {
        Fail("The colours couldn't be kept in " + ColoursPath(Profile()) + ": " + failure.Description());
    }
}

void Desk::Do(const std::function<void()>& work) noexcept
{
    ++mDepth;
    Guarded([&] {
        work();
        mSession.Idle();
    });
    --mDepth;
    Guarded([this] { mEvents.Raise(&DeskEvents::Changed); });
    if (mDepth == 0) {
        Guarded([this] {
            mSession.DropReplaced();
            KeepColours();
        });
    }
}

void Desk::Guarded(const std::function<void()>& work)
{
    try {
        work();
    } catch (const std::exception& failure) {
        Fail(FailureSentence(failure, Profile().Path()));
    }
}

void Desk::Follow()
{
    const auto now = std::chrono::steady_clock::now();
    if (now - mFollowed >= BetweenFollows) {
        mFollowed = now;
        // The job goes on although a window couldn't be drawn.
        Guarded([this] { mEvents.Raise(&DeskEvents::Changed); });
    }
}

}
