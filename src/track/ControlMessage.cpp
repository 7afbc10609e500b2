#include "track/ControlMessage.h"

#include <algorithm>

namespace tempodial {

ControlMessage::ControlMessage(std::string_view text)
{
    while (!text.empty()) {
        const auto line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (const auto equals = line.find('='); equals != std::string_view::npos) {
            mValues.emplace_back(line.substr(0, equals), line.substr(equals + 1));
        }
    }
}

void ControlMessage::Set(const std::string& name, std::string value)
{
    std::replace(value.begin(), value.end(), '\n', ' ');
    mValues.emplace_back(name, std::move(value));
}

std::string ControlMessage::Get(std::string_view name) const
{
    const auto found
        = std::find_if(mValues.begin(), mValues.end(), [name](const auto& value) { return value.first == name; });
    return found == mValues.end() ? std::string() : found->second;
}

bool ControlMessage::Has(std::string_view name) const
{
    return std::any_of(mValues.begin(), mValues.end(), [name](const auto& value) { return value.first == name; });
}

std::string ControlMessage::Text() const
{
    std::string text;
    for (const auto& [name, value] : mValues) {
        text += name;
        text += "=" + value + "\n";
    }
    return text;
}

}
