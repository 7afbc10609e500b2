#include "forms/FormHands.h"

#include "forms/FormRefusal.h"

#include <algorithm>

namespace tempodial {

std::int32_t PositionOf(const std::vector<std::string>& list, const std::string& control, const EntryKey& entry)
{
    const auto count = static_cast<std::int32_t>(list.size());
    const auto* text = std::get_if<std::string>(&entry);
    const auto position = text == nullptr
        ? std::get<std::int32_t>(entry)
        : static_cast<std::int32_t>(std::find(list.begin(), list.end(), *text) - list.begin());
    if (position < 0 || position >= count) {
        throw FormRefusal("the list of \"" + control + "\" has no such entry");
    }
    return position;
}

}
