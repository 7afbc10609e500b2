#include "session/ReachedFile.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "host/store/LineMemory.h"

namespace tempodial {

ReachedFile ReachedFile::Of(
    FileSystemObject& files, const Ref<Mailbox>& mailbox, const std::string& path, const std::string& dayKey)
{
    ReachedFile reached;
    bool hasLines = false;
    try {
        LineMemory memory(mailbox);
        memory.BeginDay(dayKey, 0);
        const auto file = files.OpenTextFile(path, OpenMode::Reading, false);
        file->ReadLine();
        for (;;) {
            const auto line = file->ReadLine();
            if (IsBlank(line) && file->LastLine() != LineKind::TooLong) {
                continue;
            }
            hasLines = true;
            if (!memory.IsKnown(line)) {
                reached.hasRest = true;
                reached.hasMore = reached.hasMore || file->LastLine() != LineKind::Unended;
            }
        }
    } catch (const Failure& failure) {
        // A file without lines may be one whose line ends nobody knows.
        reached.isRead = hasLines && failure.Is(Error::InputPastEnd);
    }
    return reached;
}

}
