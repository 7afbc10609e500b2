#pragma once

#include <optional>

namespace tempodial {

/// How texts for people are laid out where they are shown.
struct TextLayout
{
    /// Columns that a table may take; nothing for as many as it needs.
    std::optional<int> width;
    bool hasColors = false;
};

}
