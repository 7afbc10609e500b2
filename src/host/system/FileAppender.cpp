#include "host/system/FileAppender.h"

#include <fcntl.h>

namespace tempodial {

FileAppender::FileAppender(const NativePath& path, bool create)
    : mFile(path, O_WRONLY | O_APPEND | O_NOFOLLOW | (create ? O_CREAT : 0))
{
    mFile.RequireWritable();
}

void FileAppender::Write(const std::string& text)
{
    mFile.Write(text);
}

void FileAppender::Close()
{
    mFile.Close();
}

}
