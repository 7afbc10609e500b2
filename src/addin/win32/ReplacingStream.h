#pragma once

#include "addin/win32/FileText.h"
#include "addin/win32/Win32File.h"
#include "portable/WritingStream.h"

#include <optional>
#include <string>

namespace tempodial {

/// A text file opened for writing: what is written stands in a file beside it and takes its place as a whole when this
/// is closed, or let go of. Where an exception takes it away before, the old file stays.
class ReplacingStream final : public WritingStream
{
public:
    /// An absent file that may not be made fails (53), a folder or a read-only file (70).
    ReplacingStream(std::string path, bool create, const FileText& text);
    ~ReplacingStream() override;
    ReplacingStream(const ReplacingStream&) = delete;
    ReplacingStream& operator=(const ReplacingStream&) = delete;

    void Write(const std::string& text) override;
    void Close() override;

private:
    /// Removes what was written beside the file.
    void Discard();

    std::string mPath;
    std::string mBeside;
    FileText mText;
    std::optional<Win32File> mFile;
    std::string mBuffer;
    /// The exceptions under way when it was opened.
    int mExceptions;
};

}
