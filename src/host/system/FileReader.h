#pragma once

#include "host/files/FileDescriptor.h"
#include "platform/system/TextStream.h"
#include "portable/TextReader.h"

#include <string>

namespace tempodial {

/// A text file opened for reading, in memory that doesn't grow with the file. Its text is UTF-8, but for lines that
/// aren't valid, which are read as Windows-1252.
class FileReader : public TextStream
{
public:
    /// Opens a file, made empty when it is absent and may be; a locked one fails (70).
    FileReader(const NativePath& path, bool create);
    FileReader(const FileReader&) = delete;
    FileReader& operator=(const FileReader&) = delete;

    /// A line of more than 1 MiB is given as an empty one.
    std::string ReadLine() override { return mText.ReadLine(); }
    LineKind LastLine() const override { return mText.LastLine(); }
    /// More than 64 MiB fail (7).
    std::string ReadAll() override { return mText.ReadAll(); }
    void Write(const std::string& text) override;
    void WriteLine(const std::string& text) override;
    void Close() override;

private:
    FileDescriptor mFile;
    TextReader mText;
};

}
