#pragma once

#include "base/Ref.h"
#include "base/Variant.h"
#include "desktop/Titles.h"
#include "platform/system/LocaleFormats.h"
#include "review/Activity.h"

#include <functional>
#include <string>
#include <string_view>

namespace tempodial {

/// What the fields of activities hold, as a list orders by it and as it shows it.
class FieldValues
{
public:
    /// Reads a property of an activity that its row lacks; nothing when the item has none of that name.
    using PropertyReader = std::function<Variant(const Activity& activity, const std::string& name)>;

    FieldValues(Ref<LocaleFormats> formats, PropertyReader reader, Titles titles);

    /// The value of a field.
    Variant ValueOf(const Activity& activity, const std::string& field) const;
    /// The same as text.
    std::string TextOf(const Activity& activity, const std::string& field) const;

    /// The order of two values of one field: negative, 0 or positive. Nothing comes first, and case makes no
    /// difference.
    static int Compare(const Variant& one, const Variant& other);

private:
    bool IsHidden(std::string_view field) const;

    Ref<LocaleFormats> mFormats;
    PropertyReader mReader;
    Titles mTitles;
};

}
