#pragma once

#include "cli/ConnectedRun.h"
#include "cli/Options.h"
#include "host/store/StoreItem.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tempodial {

/// What an activity says, but for its details.
struct ActivityContent
{
    std::string project;
    std::string application;
    std::string description;
    std::string people;
    Date start;
    Date end;
};

/// A command that corrects single activities through the add-in's own members, as one step.
class Correction
{
public:
    /// Fails with `ProfileInUse` or `ProfileError`.
    explicit Correction(const Options& options)
        : mRun(options)
    {
    }

    ConnectedRun& Run() { return mRun; }
    const ConnectedRun& Run() const { return mRun; }
    TempodialMain& AddIn() const { return mRun.AddIn(); }

    /// The numbers that arguments name, each once; fails with a `UsageError` for another text.
    static std::vector<std::int64_t> Numbers(const std::vector<std::string>& arguments);
    /// The activities of those numbers; fails with a `CommandError` when there isn't one of them.
    std::vector<Ref<StoreItem>> Activities(const std::vector<std::int64_t>& numbers) const;
    /// What an activity says.
    ActivityContent ContentOf(const Ref<StoreItem>& activity) const;
    /// Writes an activity anew; without a body it keeps its own.
    void Write(const Ref<StoreItem>& activity, const ActivityContent& content, const std::string& body = {}) const;
    /// A new activity; without a project the rules give it. Nothing when it couldn't be made.
    Ref<StoreItem> Make(const ActivityContent& content) const;
    /// Does work in which a person chooses the projects of what is saved, or nobody does.
    void Choosing(bool isPerson, const std::function<void()>& work) const;
    /// Warns of an activity that lasts into another day, and too long for a night's work.
    static void WarnIfTooLong(const ActivityContent& content, Reply& reply);
    /// The reply with the activities as they are now.
    Reply Concluded(const std::vector<Ref<StoreItem>>& activities, Reply reply = {});

private:
    ConnectedRun mRun;
};

}
