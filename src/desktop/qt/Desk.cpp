#include "desktop/qt/Desk.h"

#include "desktop/FailureWords.h"
#include "desktop/UnreadLines.h"
#include "desktop/qt/QtEventPump.h"
#include "faults/Wrapped.h"
#include "host/store/MailboxTrouble.h"
#include "session/KnownLocale.h"
#include "session/ProfileError.h"
#include "session/ProfileSettings.h"
#include "session/WorkLogFolder.h"
#include "session/WorkWeek.h"

#include <QCoreApplication>
#include <algorithm>
#include <cstdlib>
#include <exception>
#include <optional>
#include <utility>

namespace tempodial {

namespace {

/// How often the windows follow a job.
constexpr std::chrono::milliseconds BetweenFollows(250);

/// What a read of a mailbox has met after which nothing more is written.
std::optional<Failure> TroubleOf(const Ref<Mailbox>& mailbox)
{
    try {
        RequireNoTrouble(mailbox);
        return std::nullopt;
    } catch (const Failure& trouble) {
        return trouble;
    }
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
    , mSettingsFile(std::move(settingsPath))
    , mSettings(mSettingsFile.TakenBy(DesktopSettings::Read))
    , mKeptSettings(mSettings)
    , mSession(Localised(options, mSettings))
    , mLog(mSession.Profile())
    , mColoursFile(mSession.Profile().Path() + "/" + ColourBook::FileName)
    , mColours(mColoursFile.TakenBy([](const SettingsFile& file) { return ColourBook(file); }))
    , mTroubles(MakeRef<ImportTroubles>(mSession.Profile().Path(), mSession.Profile().DataFolder()))
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
    if (!CloseItems()) {
        return;
    }
    // Windows are asked to close during this.
    const auto stays = std::exchange(mStaysWhenClosed, false);
    QCoreApplication::quit();
    mStaysWhenClosed = stays;
}

void Desk::Start(const Ref<MessageBox>& messageBox)
{
    auto surroundings = mSession.Surroundings(Imports::ByLines);
    surroundings.fileSystem = Wrapped(surroundings.fileSystem, mTroubles);
    surroundings.registry = Wrapped(surroundings.registry, mTroubles);
    surroundings.importJournal = Wrapped(surroundings.importJournal, mTroubles);
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

void Desk::EndQuietly() noexcept
{
    Guarded([this] { mSession.Exit(); });
    Guarded([this] { mSession.End(); });
}

WorkingHours Desk::Hours() const
{
    const auto week = WorkWeek::In(*Profile().Registry());
    return { week.start, week.end, week.days };
}

void Desk::ChooseTone(Coloured kind, const std::string& name, std::size_t tone)
{
    mColours.Choose(kind, name, tone);
    KeepColours();
    mEvents.Raise(&DeskEvents::Restyled);
}

CardStyle Desk::StyleOf(const std::optional<ToneUse>& use) const
{
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
    const auto before = mSettings;
    change(mSettings);
    if (mSettings != before) {
        KeepSettings();
        if (!mSettingsFile.Refusal().empty()) {
            Write("settings", mSettingsFile, [this] { mSettingsFile.PutAside(); });
            KeepSettings();
        }
    }
    if (mSettings.appearance != before.appearance) {
        mAppearance.Apply(mSettings.appearance);
    }
    mEvents.Raise(&DeskEvents::Restyled);
}

void Desk::FollowSystem(bool isDark)
{
    if (mAppearance.SetSystemDark(isDark)) {
        Restyle();
    }
}

void Desk::FollowSystemContrast(bool isHigh)
{
    if (mAppearance.SetSystemContrast(isHigh)) {
        Restyle();
    }
}

void Desk::Restyle()
{
    mAppearance.Apply(mSettings.appearance);
    Guarded([this] { mEvents.Raise(&DeskEvents::Restyled); });
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

std::string Desk::Notice() const
{
    std::string notice;
    if (const auto& refusal = mSettingsFile.Refusal(); !refusal.empty()) {
        notice = "All settings are as usual: " + refusal
            + " and start again, or change a setting here, which keeps that " + "file as " + mSettingsFile.PathAside()
            + ".";
    }
    if (const auto& refusal = mColoursFile.Refusal(); !refusal.empty()) {
        notice += (notice.empty() ? "" : " ") + ("All colours are given anew: " + refusal) + " and start again.";
    }
    return notice;
}

void Desk::KeepSettings()
{
    mSettingsTimer.stop();
    Write("settings", mSettingsFile, [this] {
        mSettingsFile.Keep(mSettingsFile.TakenBy([this](const SettingsFile& file) {
            // Where there is no file all is kept.
            return file.records.empty() ? mSettings.Keep(file.path)
                                        : mSettings.KeepOver(DesktopSettings::Read(file), mKeptSettings, file.path);
        }));
        mKeptSettings = mSettings;
    });
}

void Desk::KeepColours()
{
    if (mColours.HasChanged()) {
        Write("colours", mColoursFile, [this] { mColoursFile.Keep(mColours.Keep()); });
    }
}

void Desk::Write(const char* what, const EditedFile& file, const std::function<void()>& write)
{
    try {
        write();
    } catch (const Failure& failure) {
        Fail("The " + std::string(what) + " couldn't be kept in " + file.Path() + ": " + failure.Description());
    }
}

void Desk::Fail(const std::exception& failure)
{
    const auto trouble = TroubleOf(mSession.Mailbox());
    Fail(trouble ? TroubleSentence(*trouble) : FailureSentence(failure, Profile().Path()));
}

void Desk::TellTroubles()
{
    auto told = mTroubles->Take();
    if (mTroubles->TakeImported()) {
        const auto unread = UnreadSentence(Profile().Journal()->Unread());
        told += (told.empty() || unread.empty() ? "" : " ") + unread;
    }
    if (!told.empty()) {
        Fail(told);
    }
    // Whatever else is said, this stays true.
    if (const auto trouble = TroubleOf(mSession.Mailbox())) {
        Fail(*trouble);
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
        Guarded([this] { TellTroubles(); });
    }
}

void Desk::Guarded(const std::function<void()>& work)
{
    try {
        work();
    } catch (const std::exception& failure) {
        Fail(failure);
    }
}

void Desk::Follow()
{
    using Steady = std::chrono::steady_clock;
    const auto begin = Steady::now();
    if (begin >= mNextFollow) {
        // The job goes on although a window couldn't be drawn.
        Guarded([this] { mEvents.Raise(&DeskEvents::Changed); });
        const auto end = Steady::now();
        mNextFollow = end + std::max<Steady::duration>(BetweenFollows, end - begin);
    }
}

}
