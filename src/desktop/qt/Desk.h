#pragma once

#include "base/Subscription.h"
#include "desktop/ColourBook.h"
#include "desktop/DesktopSettings.h"
#include "desktop/EditedFile.h"
#include "desktop/ImportTroubles.h"
#include "desktop/LogWatch.h"
#include "desktop/Titles.h"
#include "desktop/WorkingHours.h"
#include "desktop/qt/Appearance.h"
#include "desktop/qt/CardCache.h"
#include "platform/controls/MessageBox.h"
#include "review/Period.h"
#include "session/ProfileOptions.h"
#include "session/Session.h"

#include <QTimer>
#include <chrono>
#include <exception>
#include <functional>
#include <optional>
#include <string>

namespace tempodial {

/// What happens on the desk.
struct DeskEvents
{
    /// The log or a window's model may have changed.
    std::function<void()> Changed;
    /// The settings have changed, or how the program looks.
    std::function<void()> Restyled;
    /// Something went wrong, as the sentence says.
    std::function<void(const std::string& message)> Failed;
};

/// What all windows of the program share: the session over a profile, the settings, the colours; and the door through
/// which all that a person does reaches the product.
class Desk
{
public:
    /// Opens the profile and reads the settings of that path; fails with `ProfileInUse` or `ProfileError`. The
    /// appearance must live as long as this.
    Desk(const ProfileOptions& options, std::string settingsPath, Appearance& appearance);
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// How `CloseItems` is done by whoever has these windows.
    std::function<bool()> mCloseItems;

    /// The user's folder of configurations; fails with `ProfileError` when the environment names no home.
    static std::string ConfigFolder();
    /// The path of the user's settings; fails with `ProfileError` when the environment names no home.
    static std::string UsualSettingsPath();

    /// Starts the host with one window on the work log, the add-in in it, whose messages go there.
    void Start(const Ref<MessageBox>& messageBox);
    /// Ends all as a normal exit does, and keeps the settings.
    void Exit();
    /// Ends what was started, whatever is wrong with the profile.
    void EndQuietly() noexcept;

    tempodial::Session& Session() { return mSession; }
    const tempodial::Profile& Profile() const { return mSession.Profile(); }
    /// What changes in the log.
    const LogWatch& Log() const { return mLog; }
    HostApplication& Windows() const { return mSession.Windows(); }
    const Ref<LocaleFormats>& Formats() const { return Profile().Surroundings().formats; }
    Date Now() const { return Profile().Clock()->Now(); }
    /// The day with which a week begins.
    const Period::WeekStart& WeekStart() const { return mWeekStart; }
    WorkingHours Hours() const;
    const Appearance& Look() const { return mAppearance; }
    /// How what has that name is drawn.
    CardStyle StyleOf(Coloured kind, const std::string& name) { return StyleOf(ToneOf(kind, name)); }
    /// How what has that tone is drawn; nothing for what has no project.
    CardStyle StyleOf(const std::optional<ToneUse>& use) const;
    /// The tone of a name; nothing for what is no project.
    std::optional<ToneUse> ToneOf(Coloured kind, const std::string& name) { return mColours.ToneOf(kind, name); }
    /// Gives a name another tone in all views, and keeps that.
    void ChooseTone(Coloured kind, const std::string& name, std::size_t tone);
    Titles ShownTitles() const { return mSettings.hidesTitles ? Titles::Hidden : Titles::Shown; }
    const DesktopSettings& Settings() const { return mSettings; }
    /// What is to be said of settings and colours that can't be used; empty when all can.
    std::string Notice() const;
    /// Changes the settings, keeps them and shows the change. A file of them that can't be used goes aside.
    void Change(const std::function<void(DesktopSettings& settings)>& change);
    /// The same of what nobody but the one that changes it looks at.
    void Remember(const std::function<void(DesktopSettings& settings)>& change);
    /// The same of what changes many times in a moment, kept when that is over.
    void RememberSoon(const std::function<void(DesktopSettings& settings)>& change);

    /// True when the last window is only hidden when it is closed, since the tray brings it back.
    bool StaysWhenClosed() const { return mStaysWhenClosed; }
    void SetStaysWhenClosed(bool stays) { mStaysWhenClosed = stays; }
    /// Asks the windows of items to close, and what of them is unsaved is asked about; false when one stays.
    bool CloseItems() const { return !mCloseItems || mCloseItems(); }
    /// Ends the program, unless a window refuses to close.
    void Quit();

    /// Does something that a person wants, whatever it meets: a failure is told. Then the mailbox tells what it has to
    /// tell, and the windows are brought up to date.
    void Do(const std::function<void()>& work) noexcept;
    /// True while something is being done.
    bool IsBusy() const { return mDepth > 0; }
    /// Brings the windows up to date during a job, a few times a second, and for at most half of the time.
    void Follow();
    /// The desktop is dark, or light, which matters when the program is to look as it does.
    void FollowSystem(bool isDark);
    /// The same of a wish of the desktop for high contrast.
    void FollowSystemContrast(bool isHigh);
    /// Brings the windows up to date at once.
    void Show() { mEvents.Raise(&DeskEvents::Changed); }
    /// Tells that something went wrong.
    void Fail(const std::string& message) { mEvents.Raise(&DeskEvents::Failed, message); }
    /// Tells what failed, and what to do.
    void Fail(const std::exception& failure);

    Subscription Subscribe(DeskEvents events) { return mEvents.Subscribe(std::move(events)); }

private:
    /// Does work; what it fails with is told.
    void Guarded(const std::function<void()>& work);
    /// Tells what the product has met and gone on all the same.
    void TellTroubles();
    /// Looks as the settings and the desktop say, which has changed.
    void Restyle();
    /// Puts what has changed into the file, in which another program may have put its own.
    void KeepSettings();
    void KeepColours();
    /// Writes one of the program's own files, of which a person is told in such words when that fails.
    void Write(const char* what, const EditedFile& file, const std::function<void()>& write);

    Appearance& mAppearance;
    EditedFile mSettingsFile;
    DesktopSettings mSettings;
    /// As they were when they were read or kept last.
    DesktopSettings mKeptSettings;
    QTimer mSettingsTimer;
    tempodial::Session mSession;
    LogWatch mLog;
    EditedFile mColoursFile;
    ColourBook mColours;
    Ref<ImportTroubles> mTroubles;
    Period::WeekStart mWeekStart;
    int mDepth = 0;
    bool mStaysWhenClosed = false;
    /// From when on the windows follow a job again.
    std::chrono::steady_clock::time_point mNextFollow;
    EventSource<DeskEvents> mEvents;
};

}
