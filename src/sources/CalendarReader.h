#pragma once

#include "sources/SourceReader.h"

#include <istream>

namespace tempodial {

/// Reads a calendar: its events, those that repeat each time, as entries.
class CalendarReader final : public SourceReader
{
public:
    SourceData Read(std::istream& stream, const SourceSettings& settings) override;
};

}
