#pragma once

#include "base/Date.h"
#include "host/store/ForgetJournal.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace tempodial {

class Profile;

/// What is to be forgotten can't be: the message says why and what to do.
class ForgetError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// What is to be forgotten: what meets all that is told.
struct ForgetCriteria
{
    /// A text anywhere in the subject, the people, the description, the body or a line of the tracker, in any case.
    std::optional<std::string> match;
    std::optional<std::string> project;
    /// It started before that day.
    std::optional<Date> before;
};

/// How much is forgotten.
struct ForgetCounts
{
    std::size_t activities = 0;
    std::size_t lines = 0;
    std::size_t steps = 0;
    std::size_t traceLines = 0;
};

/// Removes activities for good, with the lines of the tracker that they came from, and the steps and lines of the trace
/// that hold them. The mailbox comes first and notes the rest, which is done by the next program that opens the profile
/// when this one doesn't come to it.
class Forgetting
{
public:
    /// The profile must live as long as this.
    explicit Forgetting(const Profile& profile);

    /// Looks for what meets the criteria, and changes nothing. Fails as the store and files do.
    ForgetCounts Find(const ForgetCriteria& criteria);
    /// Forgets what was found. Fails with `ForgetError` while others read the mailbox or when a file can't be changed,
    /// and as the store and files do.
    void Forget();
    /// Does what another run was cut off at; what can't be done yet stays due.
    void Recover() noexcept;

private:
    void Complete();
    void CleanFiles(const ForgetRest& rest) const;
    void CleanProjects(const std::string& name) const;

    const Profile& mProfile;
    ForgetJournal mJournal;
    ForgetOrder mOrder;
};

}
