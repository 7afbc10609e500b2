#pragma once

#include "addin/win32/FileText.h"
#include "addin/win32/Win32File.h"
#include "portable/WritingStream.h"

#include <string>

namespace tempodial {

/// A text file opened for appending: each text goes to the system at once.
class AppendingStream final : public WritingStream
{
public:
    AppendingStream(const std::string& path, bool create, const FileText& text)
        : mFile(path, { .access = FILE_APPEND_DATA, .disposition = create ? OPEN_ALWAYS : OPEN_EXISTING })
        , mText(text)
    {
    }

    void Write(const std::string& text) override { mFile.Write(mText.encode(text)); }
    void Close() override { mFile.Close(); }

private:
    Win32File mFile;
    FileText mText;
};

}
