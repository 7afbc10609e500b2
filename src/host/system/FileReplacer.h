#pragma once

#include "host/files/ReplacementFile.h"
#include "portable/WritingStream.h"

#include <functional>
#include <optional>
#include <string>

namespace tempodial {

/// A text file opened for writing: what is written takes the place of the old file when it is closed, or let go of.
/// Where an exception takes it away before it is closed, the old file stays.
class FileReplacer : public WritingStream
{
public:
    /// Begins with no content; an absent file that may not be made fails (53), a link, a read-only or locked file (70).
    /// `beforeChange` is called before the file is replaced, and when it fails, it isn't.
    FileReplacer(const NativePath& path, bool create, std::function<void()> beforeChange = nullptr);
    ~FileReplacer() override;
    FileReplacer(const FileReplacer&) = delete;
    FileReplacer& operator=(const FileReplacer&) = delete;

    void Write(const std::string& text) override;
    void Close() override;

private:
    void Flush();

    std::optional<ReplacementFile> mReplacement;
    std::string mBuffer;
    std::function<void()> mBeforeChange;
    /// The exceptions under way when it was opened.
    int mExceptions;
};

}
