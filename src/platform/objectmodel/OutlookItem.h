#pragma once

#include "base/Ref.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// Outlook's numbers for kinds of objects, as `Class` answers them.
enum class ObjectClass : std::int32_t { Appointment = 26, FormDescription = 37, Mail = 43 };

/// What an item is closed with; only `Discard` is used.
enum class CloseMode : std::int32_t { Save = 0, Discard = 1 };

/// An item of a folder, of any kind. Every member fails with the store's error when the item is gone.
class OutlookItem
{
public:
    virtual ~OutlookItem() = default;

    /// The kind of item.
    virtual ObjectClass Class() const = 0;
    /// The message class, such as "IPM.Appointment".
    virtual std::string MessageClass() const = 0;
    /// The stable identity; empty until the first save.
    virtual std::string EntryID() const = 0;
    virtual std::string Subject() const = 0;
    virtual void SetSubject(const std::string& subject) = 0;
};

}
