#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// The layout of a form's page, as the form's template holds it.
struct FormPageLayout
{
    /// What a control of the page is.
    enum class Kind { Text, Combo, Check };

    /// A control of the page.
    struct Field
    {
        std::string name;
        Kind kind = Kind::Text;
        /// The text in front of it, its key marked by "&".
        std::string label;
        /// The property that it shows, or "Start" or "End" of the item; "" when it shows none.
        std::string field;
    };

    std::string name;
    /// The rows from the top, each with its controls from the left.
    std::vector<std::vector<Field>> rows;

    /// The layout in a text; nothing when the text can't be read.
    static std::optional<FormPageLayout> Read(const std::string& text);
};

}
