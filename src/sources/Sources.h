#pragma once

#include "sources/SourceReader.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace tempodial {

/// A source that can be imported.
struct Source
{
    /// What it is called on the command line.
    std::string_view name;
    /// What it reads, in a few words.
    std::string_view reads;
    /// True when it can be taken as entries, which it then is unless something else is said, and as sightings.
    bool hasEntries;
    bool hasSightings;
    std::unique_ptr<SourceReader> (*makeReader)();
};

/// All sources, in the order in which they are listed.
std::span<const Source> AllSources();

/// The source that a file looks like by its beginning, empty when it looks like none.
std::string_view SourceThatBegins(std::string_view beginning);

}
