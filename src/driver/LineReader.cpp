#include "driver/LineReader.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <unistd.h>

namespace tempodial {

std::optional<LineReader::Line> LineReader::Next()
{
    Line line;
    bool hasText = false;
    while (mRead < mBuffer.size() || Fill()) {
        hasText = true;
        const auto end = mBuffer.find('\n', mRead);
        const auto length = std::min(end, mBuffer.size()) - mRead;
        const auto kept = std::min(length, mLongest - line.text.size());
        line.text.append(mBuffer, mRead, kept);
        line.isTooLong = line.isTooLong || kept < length;
        mRead += length;
        if (end != std::string::npos) {
            ++mRead;
            return line;
        }
    }
    return hasText ? std::optional(std::move(line)) : std::nullopt;
}

bool LineReader::Fill()
{
    std::array<char, 65536> bytes;
    ssize_t got = -1;
    do {
        got = ::read(mDescriptor, bytes.data(), bytes.size());
    } while (got < 0 && errno == EINTR);
    mBuffer.assign(bytes.data(), static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
    mRead = 0;
    return got > 0;
}

}
