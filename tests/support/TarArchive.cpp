#include "support/TarArchive.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

namespace tempodial {

namespace {

constexpr std::size_t BlockSize = 512;

void Put(std::string& block, std::size_t at, std::string_view text)
{
    block.replace(at, text.size(), text);
}

std::string Octal(std::size_t number, int digits)
{
    char text[32];
    std::snprintf(text, sizeof text, "%0*zo", digits, number);
    return text;
}

std::string Header(const TarMember& member)
{
    std::string block(BlockSize, '\0');
    Put(block, 0, std::string_view(member.name).substr(0, 100));
    Put(block, 100, "0000600");
    Put(block, 108, "0000000");
    Put(block, 116, "0000000");
    Put(block, 124, Octal(member.content.size(), 11));
    Put(block, 136, Octal(1160500000, 11));
    Put(block, 148, "        ");
    block[156] = member.type;
    Put(block, 157, std::string_view(member.link).substr(0, 100));
    Put(block, 257, std::string_view("ustar\00000", 8));
    std::size_t sum = 0;
    for (const char character : block) {
        sum += static_cast<unsigned char>(character);
    }
    Put(block, 148, Octal(sum, 6) + std::string(1, '\0'));
    return block;
}

void AddNumber(std::string& bytes, std::uint32_t number, int count)
{
    for (int i = 0; i < count; ++i) {
        bytes += static_cast<char>(number >> 8 * i & 0xff);
    }
}

std::uint32_t Crc(std::string_view bytes)
{
    std::uint32_t sum = 0xffffffff;
    for (const char byte : bytes) {
        sum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            sum = sum >> 1 ^ ((sum & 1) != 0 ? 0xedb88320 : 0);
        }
    }
    return ~sum;
}

}

std::string Tar(const std::vector<TarMember>& members)
{
    std::string bytes;
    for (const auto& member : members) {
        bytes += Header(member) + member.content;
        bytes.resize((bytes.size() + BlockSize - 1) / BlockSize * BlockSize);
    }
    return bytes + std::string(2 * BlockSize, '\0');
}

std::string Gzip(std::string_view bytes)
{
    std::string file("\x1f\x8b\x08\0\0\0\0\0\0\xff", 10);
    auto rest = bytes;
    do {
        // A block that is stored as it is.
        const auto piece = rest.substr(0, 0xffff);
        rest.remove_prefix(piece.size());
        const auto size = static_cast<std::uint32_t>(piece.size());
        file += static_cast<char>(rest.empty() ? 1 : 0);
        AddNumber(file, size, 2);
        AddNumber(file, ~size, 2);
        file += piece;
    } while (!rest.empty());
    AddNumber(file, Crc(bytes), 4);
    AddNumber(file, static_cast<std::uint32_t>(bytes.size()), 4);
    return file;
}

}
