#pragma once

#include "host/files/FileDescriptor.h"
#include "portable/WritingStream.h"

#include <memory>
#include <string>
#include <utility>

namespace tempodial {

/// A text file opened for appending: each text goes to the system at once. Locks are not asked for: the trace is opened
/// for each of its lines, and a lock would cost lines.
class FileAppender : public WritingStream
{
public:
    /// Takes the open file.
    explicit FileAppender(std::shared_ptr<const FileDescriptor> file)
        : mFile(std::move(file))
    {
    }

    /// A closed stream fails (52).
    void Write(const std::string& text) override
    {
        if (!mFile) {
            throw Failure(Error::BadFileName);
        }
        mFile->Write(text);
    }
    void Close() override { mFile = nullptr; }

private:
    std::shared_ptr<const FileDescriptor> mFile;
};

}
