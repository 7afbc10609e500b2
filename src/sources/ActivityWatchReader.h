#pragma once

#include "sources/SourceReader.h"

#include <istream>

namespace tempodial {

/// Reads ActivityWatch's export of all buckets: the windows in front, the times with input, and the pages of browsers.
class ActivityWatchReader final : public SourceReader
{
public:
    SourceData Read(std::istream& stream, const SourceSettings& settings) override;
};

}
