#include "session/Checkup.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "host/files/FileAccess.h"
#include "host/files/PathOperations.h"
#include "host/files/ProgramFolder.h"
#include "host/store/MailboxReading.h"
#include "host/store/MailboxTrouble.h"
#include "host/system/ExpatXml.h"
#include "host/system/HostFileSystem.h"
#include "host/system/IcuLocaleFormats.h"
#include "host/system/TomlRegistry.h"
#include "platform/objectmodel/Items.h"
#include "session/OpenProfile.h"
#include "session/ProductFacts.h"
#include "session/ProfilePlace.h"
#include "session/TrackerLines.h"
#include "session/WorkLogFolder.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <stdexcept>

namespace tempodial {

namespace {

/// Bytes that a sync and its reports need at the least.
constexpr std::uint64_t RoomNeeded = std::uint64_t { 16 } << 20;

/// The program's own templates.
constexpr std::array Templates { FormFileName, "WorkLogCategoryView.xml", "ReportHeaderTemplate.html",
    "ReportSummaryTemplate.html", "ReportLineTemplate.html", "ReportDetailsTemplate.html",
    "ReportDetailLineTemplate.html" };

bool IsThere(const std::string& path)
{
    return StatusAt(NativePath::Exactly(path), Links::Followed).has_value();
}

/// True for a run of entries such as 20061010_36300 with "|" between.
bool IsHistory(const std::string& text)
{
    constexpr std::size_t DayLength = 8;
    const auto isDigit = [](char character) { return character >= '0' && character <= '9'; };
    const auto entries = Split(text, "|");
    return std::all_of(entries.begin(), entries.end(), [&](const std::string& entry) {
        const auto day = entry.substr(0, DayLength);
        const auto count = entry.size() > DayLength ? entry.substr(DayLength + 1) : "";
        return day.size() == DayLength && !count.empty() && entry[DayLength] == '_'
            && std::all_of(day.begin(), day.end(), isDigit) && std::all_of(count.begin(), count.end(), isDigit);
    });
}

}

Checkup::Checkup(const ProfileOptions& options)
    : mPath(ProfilePath(options))
{
    LookAtProfile();
    // Of what is in a folder that can't be looked into nobody knows whether it is right.
    if (mCanLook) {
        LookAtForm();
        LookAtRegistry();
        LookAtMailbox();
        LookAtHistory();
        LookAtTracker();
    }
    LookAtSpace();
}

bool Checkup::IsAllRight() const
{
    return std::all_of(mFindings.begin(), mFindings.end(), [](const auto& finding) { return finding.isRight; });
}

void Checkup::LookAtProfile()
{
    Guarded("profile", "name another with --profile, or see to its permissions", [&] {
        mHasProfile = ProfilePlace(mPath).HasProfile();
        mCanLook = true;
        if (!mHasProfile) {
            Wrong("profile", "no profile at " + mPath + " yet",
                "\"tempodial sync\" makes one; name another with --profile");
            return;
        }
        Right("profile", mPath);
        LookAtModes();
    });
}

void Checkup::LookAtModes()
{
    bool isClosed = true;
    for (const auto& path : { mPath, mPath + "/" + MailboxFileName, mPath + "/" + RegistryFileName,
             DataPath(HistoryFileName), DataPath(TraceFileName), DataPath(OlderTraceFileName) }) {
        if (IsOpenToOthers(NativePath::Exactly(path))) {
            Wrong("modes", "others may look into " + path, "take that right from them: chmod go= \"" + path + "\"");
            isClosed = false;
        }
    }
    if (isClosed) {
        Right("modes", "closed to others");
    }
}

void Checkup::LookAtForm()
{
    Guarded("form", "see to registry.toml", [&] {
        const auto profile = TomlRegistry(mPath + "/" + RegistryFileName)
                                 .Get(Hive::LocalMachine, ProductKey, InstallFolderValue)
                                 .ToText();
        const auto folder = profile.empty() ? InProgramFolder(TemplatesFolderName) : profile;
        for (const auto* name : Templates) {
            if (!IsThere(folder + "/" + name)) {
                Wrong("form", std::string(name) + " isn't in " + folder, "install the program again (cmake --install)");
                return;
            }
        }
        Right("form", folder);
    });
}

void Checkup::LookAtRegistry()
{
    Guarded("registry", "correct it, or move it away", [&] {
        TomlRegistry(mPath + "/" + RegistryFileName).RequireSound(ProductKey, { ProjectsValue });
        Right("registry", "readable");
    });
}

void Checkup::LookAtMailbox()
{
    const std::string todo = "put a good copy of the mailbox in its place";
    Guarded("mailbox", todo, [&] {
        const auto mailbox = OpenMailboxForReading(
            mPath + "/" + MailboxFileName, MakeRef<IcuLocaleFormats>("en_US"), MakeRef<ExpatXmlFactory>(), false);
        if (!IsSound(mailbox)) {
            Wrong("mailbox", "the mailbox " + mPath + "/" + MailboxFileName + " is damaged", todo);
            return;
        }
        std::int32_t count = 0;
        if (const auto log = FindWorkLog(mailbox->NameSpace(), "")) {
            const auto items = log->Items();
            count = items->Count();
            for (std::int32_t i = 1; i <= count; ++i) {
                // Its properties are read with it.
                (void)items->Item(i);
            }
        }
        Right("mailbox", "whole, " + std::to_string(count) + (count == 1 ? " activity" : " activities"));
    });
}

void Checkup::LookAtHistory()
{
    const auto path = DataPath(HistoryFileName);
    const auto status = StatusAt(NativePath::Exactly(path), Links::Followed);
    // A sync that finds no file of the tracker leaves an empty one.
    if (!status || (status->kind == FileStatus::Kind::File && status->size == 0)) {
        Right("history", "none yet");
        return;
    }
    const std::string todo = "put a good copy in its place, or move it away to have all files read anew";
    Guarded("history", todo, [&] {
        HostFileSystem files(mPath);
        if (IsHistory(Replace(files.OpenTextFile(path, OpenMode::Reading, false)->ReadAll(), CrLf, ""))) {
            Right("history", "readable");
        } else {
            Wrong("history", path + " isn't a history", todo);
        }
    });
}

void Checkup::LookAtTracker()
{
    Guarded("tracker", "see to the data folder and its disk", [&] {
        HostFileSystem files(mPath);
        const auto folder = mPath + "/" + DataFolderName;
        bool isRight = true;
        std::size_t count = 0;
        for (const auto& file : files.FolderExists(folder) ? files.GetFolder(folder).files : std::vector<File>()) {
            if (!file.name.starts_with(TrackerFilePrefix)) {
                continue;
            }
            ++count;
            const auto open = IsOpenToOthers(NativePath::Exactly(file.path));
            const auto unread = UnreadableLines(files, file.path);
            if (!unread.empty()) {
                Wrong("tracker", file.name + ": couldn't read " + unread,
                    "correct these lines, or leave them: the others were read");
                isRight = false;
            } else if (open) {
                Right("tracker", "others may look into " + file.path);
            }
        }
        if (isRight) {
            Right("tracker", std::to_string(count) + (count == 1 ? " file" : " files") + ", each line readable");
        }
    });
}

void Checkup::LookAtSpace()
{
    auto folder = NativePath::Exactly(mPath);
    while (!IsThere(folder.Text()) && folder.Text() != "/" && folder.Text() != ".") {
        folder = NativePath::Exactly(folder.Folder());
    }
    const auto free = FreeBytes(folder);
    constexpr unsigned int Mebi = 20;
    const auto what = free ? std::to_string(*free >> Mebi) + " MiB free" : std::string("unknown");
    if (!free || *free >= RoomNeeded) {
        Right("space", what);
    } else {
        Wrong("space", what, "make room on the disk of " + folder.Text());
    }
}

std::string Checkup::DataPath(const std::string& name) const
{
    return mPath + "/" + DataFolderName + "/" + name;
}

void Checkup::Right(const std::string& check, const std::string& what)
{
    mFindings.push_back({ check, true, what, "" });
}

void Checkup::Wrong(const std::string& check, const std::string& what, const std::string& todo)
{
    mFindings.push_back({ check, false, what, todo });
}

template <class Look> void Checkup::Guarded(const std::string& check, const std::string& todo, Look&& look)
{
    try {
        look();
    } catch (const Failure& failure) {
        Wrong(check, failure.Description(), failure.Is(Error::DiskFull) ? "make room on the disk" : todo);
    } catch (const std::runtime_error& error) {
        // Such a text says itself what to do.
        const std::string text = error.what();
        const auto end = text.rfind(": ");
        Wrong(check, text.substr(0, end), end == std::string::npos ? todo : text.substr(end + 2));
    }
}

}
