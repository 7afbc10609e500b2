#include "NamedProperties.h"

#include <algorithm>
#include <array>
#include <map>

namespace tempodial {

namespace {

/// Sets 0 to 2 are known without being listed; 2 is the set of public strings.
constexpr std::uint16_t PublicStringsIndex = 2;
constexpr std::uint16_t FirstListedIndex = 3;
constexpr std::uint16_t FirstIdentifier = 0x8000;

/// The cyclic redundancy check of 32 bits that begins and ends without inverting.
std::uint32_t Checksum(const Bytes& bytes)
{
    std::uint32_t sum = 0;
    for (const char byte : bytes) {
        sum ^= static_cast<std::uint8_t>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            sum = (sum >> 1U) ^ ((sum & 1U) != 0 ? 0xedb88320U : 0U);
        }
    }
    return sum;
}

std::string MappingStream(std::uint32_t identifier)
{
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string name = "__substg1.0_";
    for (int shift = 12; shift >= 0; shift -= 4) {
        name += Digits[(identifier >> static_cast<unsigned>(shift)) & 0xfU];
    }
    return name + "0102";
}

}

std::uint16_t NamedProperties::Add(const ClassId& set, std::uint32_t number)
{
    return Add({ SetIndex(set), number, number, false });
}

std::uint16_t NamedProperties::Add(std::string_view name)
{
    const auto wide = Utf16(name);
    const auto offset = static_cast<std::uint32_t>(mNames.size());
    Append(mNames, static_cast<std::uint32_t>(wide.size()));
    mNames += wide;
    mNames.resize((mNames.size() + 3) / 4 * 4);
    return Add({ PublicStringsIndex, offset, Checksum(wide), true });
}

void NamedProperties::WriteTo(CompoundFolder& root) const
{
    constexpr std::uint32_t Buckets = 0x1f;
    Bytes sets;
    for (const auto& set : mSets) {
        sets.append(set.begin(), set.end());
    }
    Bytes entries;
    std::map<std::uint32_t, Bytes> buckets;
    std::uint16_t position = 0;
    for (const auto& property : mProperties) {
        const auto kind = static_cast<std::uint16_t>((property.set << 1U) | (property.isNamed ? 1U : 0U));
        Append(entries, property.key);
        Append(entries, kind);
        Append(entries, position);
        auto& bucket = buckets[0x1000 + (property.hash ^ kind) % Buckets];
        Append(bucket, property.hash);
        Append(bucket, kind);
        Append(bucket, position);
        ++position;
    }

    auto folder = root.Begin("__nameid_version1.0");
    folder.Write(MappingStream(2), sets);
    folder.Write(MappingStream(3), entries);
    folder.Write(MappingStream(4), mNames);
    for (const auto& [identifier, bucket] : buckets) {
        folder.Write(MappingStream(identifier), bucket);
    }
    folder.Close();
}

std::uint16_t NamedProperties::Add(const Property& property)
{
    mProperties.push_back(property);
    return static_cast<std::uint16_t>(FirstIdentifier + mProperties.size() - 1);
}

std::uint16_t NamedProperties::SetIndex(const ClassId& set)
{
    const auto found = std::find(mSets.begin(), mSets.end(), set);
    const auto index = found - mSets.begin();
    if (found == mSets.end()) {
        mSets.push_back(set);
    }
    return static_cast<std::uint16_t>(FirstListedIndex + index);
}

}
