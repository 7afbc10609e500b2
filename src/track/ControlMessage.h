#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tempodial {

/// What goes between a recorder that runs and a program that works it: names with values, a line each.
class ControlMessage
{
public:
    ControlMessage() = default;
    /// Reads such lines; what is none is left out.
    explicit ControlMessage(std::string_view text);

    /// Adds a value, in which line feeds become blanks.
    void Set(const std::string& name, std::string value);
    /// The value of a name, empty when there is none.
    std::string Get(std::string_view name) const;
    bool Has(std::string_view name) const;
    std::string Text() const;

private:
    std::vector<std::pair<std::string, std::string>> mValues;
};

}
