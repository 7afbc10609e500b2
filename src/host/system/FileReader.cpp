#include "host/system/FileReader.h"

namespace tempodial {

FileReader::FileReader(const NativePath& path, bool create)
    : mFile(path, create ? Opening::ReadingOrNew : Opening::Reading)
    , mText([this](char* buffer, std::size_t size) { return mFile.Read(buffer, size); }, FromWindows1252)
{
    mFile.RequireUnlocked();
}

void FileReader::Write(const std::string&)
{
    throw Failure(Error::BadFileMode);
}

void FileReader::WriteLine(const std::string&)
{
    throw Failure(Error::BadFileMode);
}

void FileReader::Close()
{
    mText.Drop();
    mFile.Close();
}

}
