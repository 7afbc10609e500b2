#include "host/files/ArchiveFile.h"

#include "host/files/PathOperations.h"
#include "host/files/ProgramModule.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace tempodial {

namespace {

constexpr std::size_t PieceSize = 65536;
/// At the end of a compressed file stand a checksum and the size of what was compressed, four bytes each.
constexpr std::size_t NumberSize = 4;
constexpr unsigned int ByteBits = 8;
constexpr std::uint32_t LastByte = 0xff;

/// What an archive may expand to: so much in any case, and else so many times its own size. Mailboxes shrink to a
/// tenth; what does much better is made of nothing, to fill a disk.
constexpr std::uint64_t SmallSize = std::uint64_t { 64 } << 20;
constexpr std::uint64_t MostTimes = 500;

/// The checksum of compressed files, CRC-32.
class Checksum
{
public:
    void Add(std::string_view bytes)
    {
        static const auto table = Table();
        for (const char byte : bytes) {
            mSum = table[(mSum ^ static_cast<unsigned char>(byte)) & LastByte] ^ mSum >> ByteBits;
        }
    }
    std::uint32_t Value() const { return ~mSum; }

private:
    using Sums = std::array<std::uint32_t, LastByte + 1>;

    static Sums Table()
    {
        constexpr std::uint32_t polynomial = 0xedb88320;
        Sums sums {};
        for (std::uint32_t byte = 0; byte < sums.size(); ++byte) {
            auto sum = byte;
            for (unsigned int bit = 0; bit < ByteBits; ++bit) {
                sum = sum >> 1 ^ ((sum & 1) != 0 ? polynomial : 0);
            }
            sums[byte] = sum;
        }
        return sums;
    }

    std::uint32_t mSum = ~std::uint32_t { 0 };
};

std::uint32_t LittleEndian(std::string_view bytes)
{
    std::uint32_t number = 0;
    for (auto at = NumberSize; at > 0; --at) {
        number = number << ByteBits | static_cast<unsigned char>(bytes[at - 1]);
    }
    return number;
}

template <class Function> Function InModule(const char* name)
{
    return ProgramModule(ProgramModule::PathOf(ArchiveModule)).Get<Function>(name);
}

}

ArchiveFile::ArchiveFile(const NativePath& path)
    : mPath(path)
    , mSize(FileDescriptor(path, Opening::Reading).Status().size)
{
}

void ArchiveFile::RequireWhole() const
{
    Checksum checksum;
    std::uint64_t size = 0;
    std::string end;
    const auto noteEnd = [&end, bytes = Bytes()] {
        const auto piece = bytes();
        end += piece;
        end.erase(0, end.size() - std::min(end.size(), 2 * NumberSize));
        return piece;
    };
    std::string problem;
    InModule<ArchiveExpander>(ArchiveExpanderName)(
        noteEnd,
        [&](std::string_view bytes) {
            checksum.Add(bytes);
            size += bytes.size();
            if (size > SmallSize && size / MostTimes > mSize) {
                throw ArchiveError("it expands to far more than a backup does");
            }
        },
        problem);
    const bool isWhole = problem.empty() && end.size() == 2 * NumberSize && LittleEndian(end) == checksum.Value()
        && LittleEndian(end.substr(NumberSize)) == static_cast<std::uint32_t>(size);
    if (!isWhole) {
        throw ArchiveError("it is no archive of this form, or damaged or cut off");
    }
}

void ArchiveFile::Unpack(ArchiveTarget& target) const
{
    std::string problem;
    InModule<ArchiveUnpacker>(ArchiveUnpackerName)(Bytes(), target, problem);
    if (!problem.empty()) {
        throw ArchiveError("it is damaged: " + problem);
    }
}

void ArchiveFile::Pack(ArchiveSource& source, const ByteSink& sink)
{
    std::string problem;
    InModule<ArchivePacker>(ArchivePackerName)(source, sink, problem);
    if (!problem.empty()) {
        throw ArchiveError("the archive can't be made: " + problem);
    }
}

ByteSource ArchiveFile::Bytes() const
{
    const auto file = std::make_shared<FileDescriptor>(mPath, Opening::Reading);
    const auto buffer = std::make_shared<std::vector<char>>(PieceSize);
    return [file, buffer] { return std::string_view(buffer->data(), file->Read(buffer->data(), buffer->size())); };
}

}
