#pragma once

#include "host/system/FileDescriptor.h"
#include "host/system/WritingStream.h"

#include <string>

namespace tempodial {

/// A text file opened for appending: each text goes to the system at once. A link is not followed. Locks are not asked
/// for: the trace is opened for each of its lines, and a lock would cost lines.
class FileAppender : public WritingStream
{
public:
    /// Opens a file, made when it may be; a read-only one or a link fails (70).
    FileAppender(const NativePath& path, bool create);

    void Write(const std::string& text) override;
    void Close() override;

private:
    FileDescriptor mFile;
};

}
