#pragma once

#include "base/Date.h"
#include "base/Ref.h"
#include "host/store/Mailbox.h"
#include "host/store/StoreImportJournal.h"
#include "host/system/HostClock.h"
#include "host/system/TomlRegistry.h"
#include "platform/Platform.h"
#include "session/ProductFacts.h"
#include "session/ProfileFolder.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace tempodial {

/// A profile opened: its folder locked, its mailbox and registry open, and the surroundings made for the engine; or
/// opened for reading alone.
class Profile
{
public:
    /// Told what is to be said of a profile that is used all the same.
    using Warn = std::function<void(const std::string& message)>;

    /// Opens a profile, making an absent one, and waits so long when another process holds it. The locale is one that
    /// ICU knows; without a moment the clock is that of the system. Fails with `ProfileInUse`, or with `ProfileError`
    /// for a file that can't be used, which is then never written to.
    Profile(const std::string& folder, const std::string& locale, std::optional<Date> now,
        std::chrono::seconds wait = std::chrono::seconds(0), const Warn& warn = nullptr);

    /// Opens a profile for reading: as it is at this moment, whoever holds it, and without a change to it. Where there
    /// is none, which is told, nothing is in it. Fails with `ProfileError` as above.
    static Profile ForReading(
        const std::string& folder, const std::string& locale, std::optional<Date> now, const Warn& warn = nullptr);

    /// True unless it is open for reading and isn't there.
    bool IsThere() const { return mIsThere; }
    /// True when a process holds it: this one, or another beside which it is read.
    bool IsHeld() const { return mIsHeld; }
    /// The absolute path of its folder.
    const std::string& Path() const { return mPath; }
    /// The folder of the tracker's files, the history and the trace; it may be absent.
    std::string DataFolder() const { return mPath + "/" + DataFolderName; }
    const Ref<TomlRegistry>& Registry() const { return mRegistry; }
    const Ref<tempodial::Mailbox>& Mailbox() const { return mMailbox; }
    /// The journal of imports, in the mailbox; nothing when it is open for reading.
    const Ref<StoreImportJournal>& Journal() const { return mJournal; }
    const Ref<HostClock>& Clock() const { return mClock; }
    /// The surroundings, but for forms and message boxes, which a program adds; their event pump tells what the mailbox
    /// has to tell.
    const Platform& Surroundings() const { return mPlatform; }

private:
    /// Opens the mailbox of a file.
    using Opener = std::function<Ref<tempodial::Mailbox>(
        const std::string& path, const Ref<LocaleFormats>& formats, const Ref<XmlFactory>& xml)>;

    Profile(std::unique_ptr<ProfileFolder> lock, std::string path, const std::string& locale, std::optional<Date> now,
        const Opener& open);

    /// Nothing when it is open for reading.
    std::unique_ptr<ProfileFolder> mLock;
    bool mIsThere = true;
    bool mIsHeld = true;
    std::string mPath;
    Ref<TomlRegistry> mRegistry;
    Ref<tempodial::Mailbox> mMailbox;
    Ref<StoreImportJournal> mJournal;
    Ref<HostClock> mClock;
    Platform mPlatform;
};

}
