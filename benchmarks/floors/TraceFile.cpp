#include "floors/TraceFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace tempodial {

namespace {

constexpr std::size_t Block = 2500;
constexpr off_t FullSize = 300000;

}

TraceFile::TraceFile(const std::string& folder, std::int64_t lines, std::int64_t bytes, bool inBlocks)
    : mPath(folder + "/FloorTrace1.out")
    , mOldPath(folder + "/FloorTrace2.out")
    , mLines(lines)
    , mLine(static_cast<std::size_t>(std::max<std::int64_t>(lines == 0 ? 0 : bytes / lines, 2) - 2), 'x')
    , mInBlocks(inBlocks)
{
    mLine += "\r\n";
}

void TraceFile::Advance(std::int64_t done, std::int64_t all)
{
    for (const auto due = mLines * done / all; mWritten < due; ++mWritten) {
        mBuffer += mLine;
        if (!mInBlocks || mBuffer.size() > Block) {
            Flush();
        }
    }
}

void TraceFile::Finish()
{
    Advance(1, 1);
    if (!mBuffer.empty()) {
        Flush();
    }
}

void TraceFile::Flush()
{
    struct stat status
    {
    };
    if (::stat(mPath.c_str(), &status) == 0 && status.st_size > FullSize) {
        ::rename(mPath.c_str(), mOldPath.c_str());
    }
    const auto file = ::open(mPath.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    const auto count = ::write(file, mBuffer.data(), mBuffer.size());
    ::close(file);
    if (count != static_cast<ssize_t>(mBuffer.size())) {
        throw std::system_error(errno, std::generic_category(), mPath);
    }
    mBuffer.clear();
}

}
