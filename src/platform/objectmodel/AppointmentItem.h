#pragma once

#include "base/Date.h"
#include "base/Subscription.h"
#include "platform/objectmodel/FormDescription.h"
#include "platform/objectmodel/OutlookItem.h"
#include "platform/objectmodel/UserProperties.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tempodial {

class MAPIFolder;

/// What happens to an item; a handler that sets `cancel` refuses it.
struct AppointmentItemEvents
{
    std::function<void(bool& cancel)> Open;
    std::function<void(bool& cancel)> Write;
    std::function<void(bool& cancel)> Close;
};

/// An appointment. Changes stand in the item until `Save`; two references to one item share them.
class AppointmentItem : public OutlookItem
{
public:
    using Events = AppointmentItemEvents;

    /// The text of the item; may be refused by the security guard (287).
    virtual std::string Body() const = 0;
    virtual void SetBody(const std::string& body) = 0;
    virtual Date Start() const = 0;
    /// Moves the start and, with it, the end.
    virtual void SetStart(Date start) = 0;
    virtual Date End() const = 0;
    /// Moves the end alone; an end before the start fails (5) and changes nothing.
    virtual void SetEnd(Date end) = 0;
    /// Minute boundaries between start and end.
    virtual std::int32_t Duration() const = 0;
    /// Moves the end, in minutes from the start; a negative duration fails (5) and changes nothing.
    virtual void SetDuration(std::int32_t minutes) = 0;
    virtual std::string Mileage() const = 0;
    virtual void SetMileage(const std::string& mileage) = 0;
    virtual std::string BillingInformation() const = 0;
    virtual void SetBillingInformation(const std::string& billingInformation) = 0;
    virtual bool IsRecurring() const = 0;
    /// The folder that the item is in, or will be in once it is saved.
    virtual Ref<MAPIFolder> Parent() = 0;
    virtual Ref<tempodial::UserProperties> UserProperties() = 0;
    /// The form of an item made from a template, nothing for others.
    virtual Ref<tempodial::FormDescription> FormDescription() = 0;

    /// Writes the item to its folder, raising `Write` first; a refused or failed write fails.
    virtual void Save() = 0;
    /// Lets go of the item, raising `Close`; `Discard` drops what wasn't saved.
    virtual void Close(CloseMode mode) = 0;
    /// Shows the item in a window of its own, without blocking.
    virtual void Display() = 0;
    /// Removes the item; later uses of it fail.
    virtual void Delete() = 0;
    /// An unsaved copy in the same folder.
    virtual Ref<AppointmentItem> Copy() = 0;
    /// Moves the item to a folder and answers it there.
    virtual Ref<AppointmentItem> Move(const Ref<MAPIFolder>& folder) = 0;

    virtual Subscription Subscribe(AppointmentItemEvents events) = 0;
};

}
