#pragma once

#include "sources/SourceReader.h"

#include <istream>

namespace tempodial {

/// Reads RescueTime's rows of five minutes: each slot with its activities and their seconds.
class RescueTimeReader final : public SourceReader
{
public:
    SourceData Read(std::istream& stream, const SourceSettings& settings) override;
};

}
