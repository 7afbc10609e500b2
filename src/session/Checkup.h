#pragma once

#include "session/ProfileOptions.h"

#include <string>
#include <vector>

namespace tempodial {

/// Looks at everything of a profile and of the program, and changes nothing.
class Checkup
{
public:
    /// What was found at one thing that was looked at.
    struct Finding
    {
        /// What was looked at.
        std::string check;
        bool isRight = true;
        /// How it is.
        std::string what;
        /// What to do about it, empty when it is right.
        std::string todo;
    };

    /// Looks at the profile that the options name, which need not be there. Fails with `ProfileError` when its path
    /// can't be used.
    explicit Checkup(const ProfileOptions& options);

    /// The absolute path of the profile.
    const std::string& Path() const { return mPath; }
    /// True when there is one.
    bool HasProfile() const { return mHasProfile; }
    const std::vector<Finding>& Findings() const { return mFindings; }
    /// True when nothing is wrong.
    bool IsAllRight() const;

private:
    void LookAtProfile();
    void LookAtModes();
    void LookAtForm();
    void LookAtRegistry();
    void LookAtMailbox();
    void LookAtHistory();
    void LookAtTracker();
    void LookAtSpace();
    std::string DataPath(const std::string& name) const;
    void Right(const std::string& check, const std::string& what);
    void Wrong(const std::string& check, const std::string& what, const std::string& todo);
    /// Does a look; what it fails with is what is wrong.
    template <class Look> void Guarded(const std::string& check, const std::string& todo, Look&& look);

    std::string mPath;
    bool mHasProfile = false;
    bool mCanLook = false;
    std::vector<Finding> mFindings;
};

}
