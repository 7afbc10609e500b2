#pragma once

#include "sources/SourceReader.h"

#include <istream>

namespace tempodial {

/// What the columns of a table of entries are called, and what they come to.
enum class EntryTableKind { Csv, Toggl, Clockify };

/// Reads tables of entries: each with a start, an end, and what was done.
class EntryTable final : public SourceReader
{
public:
    explicit EntryTable(EntryTableKind kind)
        : mKind(kind)
    {
    }

    SourceData Read(std::istream& stream, const SourceSettings& settings) override;

private:
    EntryTableKind mKind;
};

}
