#pragma once

#include "host/files/OutputTarget.h"
#include "terminal/ArgumentList.h"

#include <string>

namespace tempodial {

/// The argument FILE of a command that makes or reads a backup.
class BackupFile
{
public:
    /// Adds it to a command; it is kept here as it is parsed.
    void Declare(ArgumentList& arguments, const std::string& help);
    const std::string& Path() const { return mPath; }
    /// Fails with a `UsageError` for a name that doesn't end in ".tar.gz".
    void RequireUsable() const;
    /// The place of a new one; fails with a `CommandError` when it is none for a file, or lies in that profile.
    OutputTarget Target(const std::string& profile) const;

private:
    std::string mPath;
};

}
