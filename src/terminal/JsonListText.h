#pragma once

#include "terminal/JsonValue.h"

#include <string>

namespace tempodial {

/// An array of JSON values that grows as the text in which a document is printed: of each value only its text is kept.
class JsonListText
{
public:
    void Append(const JsonValue& entry);
    /// The text of the array, without a line feed behind it; none is left here.
    std::string Take();

private:
    std::string mText = "[";
};

}
