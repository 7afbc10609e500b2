#include "base/Text.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/foundation/TempodialUtils.h"
#include "engine/worklog/TempodialWorkLog.h"

namespace tempodial {

Ref<MAPIFolder> TempodialWorkLog::GetSyncedWorkLog(bool createIt)
{
    const auto attempt = Failing("GetWL error ", LineShape::TextBlankStep);
    mStage = "get worklog";
    Trace("GetSyncedWorkLog called");
    if (mFolder) {
        HandleFolderChange(nullptr);
        return mFolder;
    }

    mStage = "get registry values";
    auto& strings = *mMain->mStrings;
    const auto calendar = attempt.Get([&] { return mNamespace->GetDefaultFolder(DefaultFolder::Calendar); });
    const auto id = FolderValue(attempt, strings.mRegistryValueOLFolderID);
    const auto path = FolderValue(attempt, strings.mRegistryValueOLFolder);
    const auto name = FolderValue(attempt, strings.mRegistryValueOLFolderName);
    if (!name.empty()) {
        strings.mCalendarName = name;
    }

    // kept: the path goes first although the identity is the better key
    Ref<MAPIFolder> folder;
    if (!id.empty()) {
        Trace("Search for the work log");
        mStage = "search";
        if (!path.empty()) {
            folder = GetFolder(path);
        }
        if (!folder) {
            folder = FolderNearCalendar(calendar, id);
        }
        if (!folder) {
            Trace("iterate through namespace");
            folder = FindFolderByID(id, nullptr);
        }
    }
    if (!folder) {
        folder = FolderMadeFromScratch(calendar, createIt);
    }
    if (!folder) {
        Trace("no Work log");
        return nullptr;
    }
    mFolder = folder;

    mStage = "set saved parameters";
    attempt([&] { mFolderPath = mFolder->FullFolderPath(); });
    mStage = "set registry";
    Trace("Work log: " + mFolderPath);
    attempt([&] { SetFolderValue(strings.mRegistryValueOLFolderID, mFolder->EntryID()); });
    attempt([&] { SetFolderValue(strings.mRegistryValueOLFolder, mFolderPath); });
    attempt([&] { SetFolderValue(strings.mRegistryValueOLFolderName, mFolder->Name()); });
    attempt([&] { strings.mCalendarName = mFolder->Name(); });
    return mFolder;
}

Ref<MAPIFolder> TempodialWorkLog::FolderNearCalendar(const Ref<MAPIFolder>& calendar, const std::string& id)
{
    if (!calendar) {
        return nullptr;
    }
    const auto attempt = Failing("", LineShape::Silent);
    const auto folders = attempt.Get([&] { return calendar->Folders(); });
    if (auto named = attempt.Get([&] { return folders->ItemNamed(mMain->mStrings->mCalendarName); })) {
        Trace("was in default location");
        return named;
    }
    Trace("not in default location with old name");
    const auto count = attempt.Get([&] { return folders->Count(); });
    for (std::int32_t index = 1; index <= count; ++index) {
        auto child = attempt.Get([&] { return folders->Item(index); });
        if (attempt.Get([&] { return child->EntryID() == id; })) {
            Trace(".. with new name");
            return child;
        }
    }
    return nullptr;
}

Ref<MAPIFolder> TempodialWorkLog::FolderMadeFromScratch(const Ref<MAPIFolder>& calendar, bool createIt)
{
    mStage = "create from scratch";
    Trace("attempt to create it");
    if (!calendar) {
        return nullptr;
    }
    const auto attempt = Failing("", LineShape::Silent);
    const auto& name = mMain->mStrings->mCalendarName;
    const auto folders = attempt.Get([&] { return calendar->Folders(); });
    auto folder = attempt.Get([&] { return folders->ItemNamed(name); });
    if (!folder && createIt) {
        folder = attempt.Get([&] { return folders->Add(name, DefaultFolder::Calendar); });
        if (folder) {
            mCreated = true;
        } else {
            Trace("FAILED TO CREATE LOG!!!");
        }
    }
    return folder;
}

std::string TempodialWorkLog::FolderValue(const Attempt& attempt, const std::string& value)
{
    return attempt.Get(
        [&] { return mMain->mUtils->GetRegistryValue(value, "", Hive::CurrentUser, RegistryAccess::All).ToText(); });
}

void TempodialWorkLog::SetFolderValue(const std::string& value, const std::string& text)
{
    mMain->mUtils->SetRegistryValue(value, text, "", Hive::CurrentUser);
}

Ref<MAPIFolder> TempodialWorkLog::GetFolder(const std::string& strFolderPath)
{
    const auto attempt = Failing("GetFOlder error ", LineShape::TextBlankStep);
    Ref<MAPIFolder> folder;
    for (const auto& part : Split(Replace(strFolderPath, "/", "\\"), "\\")) {
        if (part.empty()) {
            continue;
        }
        if (!folder) {
            Trace("search under " + part);
            folder = attempt.Get([&] { return mNamespace->Folders()->ItemNamed(part); });
        } else {
            const auto folders = attempt.Get([&] { return folder->Folders(); });
            Trace("now search under " + part);
            folder = attempt.Get([&] { return folders->ItemNamed(part); });
        }
        if (!folder) {
            return nullptr;
        }
    }
    if (folder) {
        Trace("found something");
    }
    return folder;
}

Ref<MAPIFolder> TempodialWorkLog::FindFolderByID(const std::string& id, const Ref<MAPIFolder>& folderToCheck)
{
    const auto attempt = Failing("FindFolderByID error ", LineShape::TextBlankStep);
    if (folderToCheck && attempt.Get([&] { return folderToCheck->EntryID() == id; })) {
        Trace("Found folder by ID");
        return folderToCheck;
    }
    const auto folders = attempt.Get([&] { return folderToCheck ? folderToCheck->Folders() : mNamespace->Folders(); });
    const auto count = attempt.Get([&] { return folders->Count(); });
    Ref<MAPIFolder> found;
    for (std::int32_t index = 1; index <= count; ++index) {
        const auto child = attempt.Get([&] { return folders->Item(index); });
        if (const auto hit = child ? FindFolderByID(id, child) : nullptr) {
            found = hit;
            if (folderToCheck) {
                Trace("return matched folder (2)");
                break;
            }
            // kept: all stores are visited, and the last one that has the folder wins
            Trace("return matched folder (1)");
        }
    }
    return found;
}

std::string TempodialWorkLog::GetCalendarID()
{
    const auto attempt = Failing("GetCalendarID error ", LineShape::TextBlankStep);
    const auto folder = GetSyncedWorkLog(false);
    return folder ? attempt.Get([&] { return folder->EntryID(); }) : "";
}

void TempodialWorkLog::HandleFolderChange(const Ref<MAPIFolder>& folder)
{
    const auto attempt = Failing("HandleFolderChange error ", LineShape::TextBlankStep);
    const auto& checked = folder ? folder : mFolder;
    mStage = "compare IDs";
    if (!attempt.Get([&] {
            const auto id = checked->EntryID();
            return !folder || id == mFolder->EntryID();
        })) {
        return;
    }
    mStage = "compare name";
    attempt([&] {
        const auto name = checked->Name();
        auto& savedName = mMain->mStrings->mCalendarName;
        if (name != savedName) {
            Trace("Name change: " + savedName + " to " + name);
            SetFolderValue(mMain->mStrings->mRegistryValueOLFolderName, name);
            savedName = name;
        }
    });
    mStage = "compare path";
    attempt([&] {
        const auto path = checked->FullFolderPath();
        if (path != mFolderPath) {
            Trace("Path change: " + mFolderPath + " to " + path);
            SetFolderValue(mMain->mStrings->mRegistryValueOLFolder, path);
            mFolderPath = path;
        }
    });
}

}
