#pragma once

#include "base/Ref.h"
#include "host/store/Mailbox.h"
#include "platform/system/FileSystemObject.h"

#include <string>

namespace tempodial {

/// How far imports have come with a tracker's file.
struct ReachedFile
{
    /// It was read to its end, and has lines behind its heading.
    bool isRead = false;
    /// It has whole lines that no import has reached.
    bool hasMore = false;
    /// It has such a line, or one at its end that isn't whole yet.
    bool hasRest = false;

    /// True when imports have reached each line.
    bool IsWhole() const { return isRead && !hasRest; }

    /// Looks at the file of a day.
    static ReachedFile Of(
        FileSystemObject& files, const Ref<Mailbox>& mailbox, const std::string& path, const std::string& dayKey);
};

}
