#pragma once

#include "host/system/FileDescriptor.h"
#include "host/system/WritingStream.h"

#include <string>

namespace tempodial {

/// A text file opened for appending: each text goes to the system at once. A link is not followed.
class FileAppender : public WritingStream
{
public:
    /// Opens a file, made when it may be; a read-only or locked one fails (70).
    FileAppender(const NativePath& path, bool create);

    void Write(const std::string& text) override;
    void Close() override;

private:
    FileDescriptor mFile;
};

}
