#pragma once

#include "sources/SourceReader.h"

#include <istream>

namespace tempodial {

/// Reads arbtt's dump in JSON: samples of the windows that were open, and since when there was no input.
class ArbttReader final : public SourceReader
{
public:
    SourceData Read(std::istream& stream, const SourceSettings& settings) override;
};

}
