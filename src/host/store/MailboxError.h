#pragma once

#include "base/Failure.h"

#include <stdexcept>
#include <string>

namespace tempodial {

/// A mailbox that can't be opened; the text names the file and says what to do. The file was not written to.
class MailboxError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;

    /// What a failure means for the opening of the mailbox of that path.
    static MailboxError Of(const std::string& path, const Failure& failure)
    {
        const auto& reason = failure.Description();
        const bool isNamed = reason.find(path) != std::string::npos;
        return MailboxError((isNamed ? reason : "the mailbox " + path + " can't be read (" + reason + ")")
            + (failure.Is(Error::DiskFull) ? ": make room on the disk and run the command again"
                                           : ": check the disk and the file's permissions; put a good copy in the "
                                             "place of a damaged mailbox"));
    }
};

}
