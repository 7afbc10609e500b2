#pragma once

#include "sources/SourceReader.h"

#include <cstddef>
#include <cstdint>
#include <istream>
#include <string>
#include <variant>
#include <vector>

namespace tempodial {

/// A plain value of a JSON document.
using JsonScalar = std::variant<std::nullptr_t, bool, double, std::string>;

/// What a reader hears of a JSON document as it goes by; nothing is kept of it.
class JsonListener
{
public:
    virtual ~JsonListener() = default;

    /// An object or an array begins or ends. The path are the names of the members that lead to it, "" for an entry of
    /// an array; it is empty for the document itself.
    virtual void Begin(const std::vector<std::string>& path, bool isArray) = 0;
    virtual void End(const std::vector<std::string>& path, bool isArray) = 0;
    /// A plain value, with the names that lead to it.
    virtual void Value(const std::vector<std::string>& path, const JsonScalar& value) = 0;
};

/// Reads a JSON document as a stream. What is nested more than 16 deep is left out, and what is longer than a field may
/// be is cut, both counted; what no text and no number can be is mended by `JsonRepair`. Fails with `BrokenSource` when
/// the document ends early or is broken; of what doesn't even begin as one nothing is heard.
void ReadJson(std::istream& stream, JsonListener& listener, Skipped& skipped);

}
