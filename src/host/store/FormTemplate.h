#pragma once

#include "host/store/ItemData.h"

#include <string>
#include <vector>

namespace tempodial {

/// A form for items: the class it gives them, the user properties they begin with, and the page that shows them.
struct FormTemplate
{
    /// The class that it gives its items.
    std::string messageClass;
    std::string displayName;
    /// The fields, with their values in a new item.
    std::vector<ItemProperty> fields;
    /// The layout of the page, as the template file holds it.
    std::string page;

    friend bool operator==(const FormTemplate&, const FormTemplate&) = default;
};

}
