#include "sources/SightingTable.h"

#include <string>

namespace tempodial {

std::uint32_t SightingTable::NumberOf(const Sighting& sighting)
{
    return NumberOf(
        { mTexts.NumberOf(sighting.program), mTexts.NumberOf(sighting.programName), mTexts.NumberOf(sighting.title),
            mTexts.NumberOf(sighting.host), mTexts.NumberOf(sighting.project), sighting.isPrivate });
}

std::uint32_t SightingTable::NumberOf(const Row& row)
{
    constexpr std::size_t Spread = 31;
    std::size_t hash = row.isPrivate ? 1 : 0;
    for (const auto text : { row.project, row.host, row.programName, row.program, row.title }) {
        hash = hash * Spread + text;
    }
    const auto next = static_cast<std::uint32_t>(mRows.size());
    const auto number = mIndex.Find(hash, next, [&](std::uint32_t known) { return mRows[known] == row; });
    if (number == next) {
        mRows.push_back(row);
    }
    return number;
}

Sighting SightingTable::operator[](std::size_t number) const
{
    const auto& row = mRows[number];
    Sighting sighting;
    sighting.program = mTexts.Text(row.program);
    sighting.programName = mTexts.Text(row.programName);
    sighting.title = mTexts.Text(row.title);
    sighting.host = mTexts.Text(row.host);
    sighting.project = mTexts.Text(row.project);
    sighting.isPrivate = row.isPrivate;
    return sighting;
}

}
