#include "host/system/BitmapLoader.h"

#include "host/files/FileDescriptor.h"
#include "host/system/BitmapPicture.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace tempodial {

namespace {

constexpr std::size_t LargestPicture = std::size_t { 16 } << 20;
constexpr std::int64_t LongestSide = 16384;
/// Bytes of the file's header and of the shortest picture header behind it.
constexpr std::size_t FileHeader = 14;
constexpr std::size_t PictureHeader = 40;

/// A whole number of two or four bytes, the low one first.
template <class Number> std::int64_t NumberAt(std::string_view bytes, std::size_t at)
{
    std::uint32_t value = 0;
    for (std::size_t byte = 0; byte < sizeof(Number); ++byte) {
        value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at + byte])) << (8 * byte);
    }
    return static_cast<Number>(value);
}

bool IsCompression(std::int64_t compression, std::int64_t bits)
{
    constexpr std::array<std::int64_t, 4> BitsOfKind = { 0, 8, 4, 32 };
    return compression == 0
        || (compression > 0 && compression < 4 && BitsOfKind[static_cast<std::size_t>(compression)] == bits);
}

/// The size of the picture in a bitmap file; fails (481) when it isn't one.
std::pair<std::int32_t, std::int32_t> SizeOf(std::string_view bytes)
{
    if (bytes.size() < FileHeader + PictureHeader || !bytes.starts_with("BM")) {
        throw Failure(Error::InvalidPicture);
    }
    const auto fileSize = static_cast<std::int64_t>(bytes.size());
    const auto pixelsAt = NumberAt<std::uint32_t>(bytes, 10);
    const auto headerSize = NumberAt<std::uint32_t>(bytes, 14);
    const auto width = NumberAt<std::int32_t>(bytes, 18);
    const auto signedHeight = NumberAt<std::int32_t>(bytes, 22);
    const auto height = signedHeight < 0 ? -signedHeight : signedHeight; // negative when the top line comes first
    const auto planes = NumberAt<std::uint16_t>(bytes, 26);
    const auto bits = NumberAt<std::uint16_t>(bytes, 28);
    const auto compression = NumberAt<std::uint32_t>(bytes, 30);

    const bool hasSize = width > 0 && width <= LongestSide && height > 0 && height <= LongestSide;
    const bool hasDepth = bits == 1 || bits == 4 || bits == 8 || bits == 24 || bits == 32;
    const bool hasHeader = headerSize >= static_cast<std::int64_t>(PictureHeader)
        && pixelsAt >= static_cast<std::int64_t>(FileHeader) + headerSize && pixelsAt < fileSize;
    if (!hasSize || !hasDepth || !hasHeader || planes != 1 || !IsCompression(compression, bits)) {
        throw Failure(Error::InvalidPicture);
    }
    const bool isPacked = compression == 1 || compression == 2;
    const auto lineSize = (width * bits + 31) / 32 * 4;
    if (!isPacked && lineSize * height > fileSize - pixelsAt) {
        throw Failure(Error::InvalidPicture);
    }
    return { static_cast<std::int32_t>(width), static_cast<std::int32_t>(height) };
}

std::string PictureBytes(const std::string& path)
{
    try {
        return FileDescriptor(NativePath(path), Opening::Reading).ReadAll(LargestPicture);
    } catch (const Failure& failure) {
        if (failure.Is(Error::PathNotFound)) {
            throw Failure(Error::FileNotFound);
        }
        throw failure.Is(Error::OutOfMemory) ? Failure(Error::InvalidPicture) : failure;
    }
}

}

Ref<Picture> BitmapLoader::Load(const std::string& path)
{
    auto bytes = PictureBytes(path);
    const auto [width, height] = SizeOf(bytes);
    return MakeRef<BitmapPicture>(path, std::move(bytes), width, height);
}

}
