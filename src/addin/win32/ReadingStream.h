#pragma once

#include "addin/win32/FileText.h"
#include "addin/win32/Win32File.h"
#include "base/Failure.h"
#include "platform/system/TextStream.h"
#include "portable/TextReader.h"

#include <string>

namespace tempodial {

/// A text file opened for reading, while others may write to it.
class ReadingStream final : public TextStream
{
public:
    /// Opens a file, made empty when it is absent and may be.
    ReadingStream(const std::string& path, bool create, const FileText& text)
        : mFile(path, { .access = GENERIC_READ, .disposition = create ? OPEN_ALWAYS : OPEN_EXISTING })
        , mText([this](char* buffer, std::size_t size) { return mFile.Read(buffer, size); }, text.decode)
    {
    }
    ReadingStream(const ReadingStream&) = delete;
    ReadingStream& operator=(const ReadingStream&) = delete;

    std::string ReadLine() override { return mText.ReadLine(); }
    LineKind LastLine() const override { return mText.LastLine(); }
    std::string ReadAll() override { return mText.ReadAll(); }
    void Write(const std::string&) override { throw Failure(Error::BadFileMode); }
    void WriteLine(const std::string&) override { throw Failure(Error::BadFileMode); }
    void Close() override
    {
        mText.Drop();
        mFile.Close();
    }

private:
    Win32File mFile;
    TextReader mText;
};

}
