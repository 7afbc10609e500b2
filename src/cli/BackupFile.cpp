#include "cli/BackupFile.h"

#include "base/Text.h"
#include "cli/CommandError.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

namespace tempodial {

namespace {

constexpr auto BackupEnd = ".tar.gz";

}

void BackupFile::Declare(ArgumentList& arguments, const std::string& help)
{
    arguments.Required("FILE", mPath, help);
}

void BackupFile::RequireUsable() const
{
    if (!Fold(mPath).ends_with(BackupEnd)) {
        throw UsageError("FILE can't be " + InQuotes(mPath) + ": give a name that ends in " + BackupEnd);
    }
}

OutputTarget BackupFile::Target(const std::string& profile) const
{
    using Kind = OutputTarget::Kind;
    OutputTarget target(mPath);
    if (target.WhatItIs() != Kind::Absent && target.WhatItIs() != Kind::File) {
        throw CommandError(IsolatedLine(mPath) + " couldn't be written: it is no file: give the name of one");
    }
    const auto folder = OutputTarget(profile + "/" + "a").Path().Folder();
    if (target.Path().Text().starts_with(folder + "/")) {
        throw CommandError(IsolatedLine(mPath) + " lies in the profile: give a file elsewhere, best on another disk");
    }
    return target;
}

}
