#pragma once

#include "platform/system/MailDraftWriter.h"
#include "terminal/ArgumentList.h"

#include <optional>
#include <string>

namespace tempodial {

/// The argument --out of a command: the file that its answer goes to, which takes the place of an old one as a whole.
class OutputFile
{
public:
    /// Adds the argument to a command; it is kept here as it is parsed.
    void Declare(ArgumentList& arguments, const std::string& help, bool isRequired);
    /// True when a file is named. Fails with a `UsageError` when the argument is empty.
    bool IsNamed() const;
    const std::string& Path() const { return *mPath; }
    /// Writes a text; fails with a `CommandError`.
    void Write(const std::string& text) const;
    /// Writes a mail; fails with a `CommandError`.
    void Write(const MailDraft& mail) const;
    /// What is said for people of a file that was written: a line.
    std::string Summary() const { return "Written: " + Path() + "\n"; }

private:
    std::optional<std::string> mPath;
};

}
