#include "session/Forgetting.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "session/DataFiles.h"
#include "session/ForgetSearch.h"
#include "session/ProductFacts.h"
#include "session/Profile.h"
#include "session/ProjectRecords.h"
#include "session/TextSweep.h"

#include <unordered_set>

namespace tempodial {

Forgetting::Forgetting(const Profile& profile)
    : mProfile(profile)
    , mJournal(profile.Mailbox())
{
}

ForgetCounts Forgetting::Find(const ForgetCriteria& criteria)
{
    const ForgetSearch search(mProfile, mJournal, criteria);
    mOrder = search.Order();
    return search.Counts();
}

void Forgetting::Forget()
{
    for (const auto& file : DataFile::In(mProfile.DataFolder())) {
        try {
            if (mOrder.lines.contains(file.dayKey)) {
                file.RequireWritable();
            }
        } catch (const Failure& failure) {
            throw ForgetError(file.path.Text() + " can't be changed (" + failure.Description()
                + "), and nothing was forgotten: make it writable and run the command again");
        }
    }
    mJournal.Forget(mOrder);
    try {
        Complete();
    } catch (const Failure& failure) {
        throw ForgetError("the activities are forgotten, but not every trace of them is gone yet ("
            + failure.Description()
            + "): see to that and to programs that read the profile; the next command that writes it goes on");
    }
}

void Forgetting::Recover() noexcept
{
    try {
        Complete();
    } catch (...) {
        // It stays due.
    }
}

void Forgetting::Complete()
{
    const auto rest = mJournal.Due();
    if (!rest) {
        return;
    }
    CleanFiles(*rest);
    CleanProjects(rest->project);
    mJournal.Finish();
}

void Forgetting::CleanFiles(const ForgetRest& rest) const
{
    TextSweep texts;
    for (const auto& text : rest.texts) {
        texts.Add(text);
    }
    const auto today = mProfile.Clock()->Now().DayKey();
    for (const auto& file : DataFile::In(mProfile.DataFolder())) {
        if (file.name == HistoryFileName) {
            continue;
        }
        if (file.dayKey.empty()) {
            file.TakeOut([&texts](std::size_t, const std::string& line) { return texts.Finds(line); }, true);
        } else if (const auto lines = rest.lines.find(file.dayKey); lines != rest.lines.end()) {
            const std::unordered_set<std::string> gone(lines->second.begin(), lines->second.end());
            file.TakeOut(
                [&gone](std::size_t number, const std::string& line) { return number > 0 && gone.contains(line); },
                file.dayKey >= today);
        }
    }
}

void Forgetting::CleanProjects(const std::string& name) const
{
    const auto& registry = mProfile.Registry();
    ProjectRecords records(
        registry->Get(Hive::CurrentUser, ProductKey, ProjectsValue).ToText(), mProfile.Surroundings().xml);
    if (!name.empty() && records.Has(name)) {
        records.Remove(name);
        registry->AllOrNothing([&] { records.WriteTo(*registry); });
    }
}

}
