#pragma once

#include "base/Variant.h"
#include "platform/system/LocaleFormats.h"

#include <optional>
#include <string>

namespace tempodial {

class InspectorWindow;

/// The pointer and the keys in the window of an activity.
class PagePointer
{
public:
    /// The window must outlive it.
    explicit PagePointer(InspectorWindow& window)
        : mWindow(window)
    {
    }

    /// Types a value into a control of the page, or clicks on it; false when neither gives it that value.
    bool Enter(const std::string& control, const Variant& value, LocaleFormats& formats);
    /// Saves by the keys for that; false when it is refused, nothing when the window isn't in front, where keys don't
    /// get.
    std::optional<bool> Save();
    /// Clicks a command of the window by its caption; false when the window shows no such button.
    bool Click(const std::string& caption);

private:
    InspectorWindow& mWindow;
};

}
