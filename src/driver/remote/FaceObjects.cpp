#include "driver/remote/FaceObjects.h"

#include "driver/remote/FaceCall.h"
#include "platform/commandbars/CommandBarButton.h"
#include "platform/commandbars/CommandBarPopup.h"
#include "platform/objectmodel/AppointmentItem.h"
#include "platform/objectmodel/MailItem.h"
#include "wire/WireFailure.h"

#include <algorithm>

namespace tempodial {

bool FaceRaiser::Raise(std::int32_t event, const std::vector<WireValue>& arguments) const
{
    return mObjects->Raise(mObject, event, arguments);
}

WireValue FaceObjects::Give(const Ref<OutlookItem>& item)
{
    if (const auto appointment = item.As<AppointmentItem>()) {
        return Give(appointment);
    }
    if (const auto mail = item.As<MailItem>()) {
        return Give(mail);
    }
    return Give<OutlookItem>(item);
}

WireValue FaceObjects::Give(const Ref<CommandBarControl>& control)
{
    if (const auto button = control.As<CommandBarButton>()) {
        return Give(button);
    }
    if (const auto popup = control.As<CommandBarPopup>()) {
        return Give(popup);
    }
    return Give<CommandBarControl>(control);
}

WireValue FaceObjects::Call(
    std::int64_t object, std::uint8_t flags, const std::string& member, const std::vector<WireValue>& arguments)
{
    // What the call causes may free the object.
    const auto held = Find(object);
    return held->call(member, FaceCall(*this, flags, arguments));
}

void FaceObjects::Listen(std::int64_t object, bool wanted)
{
    const auto held = Find(object);
    if (!held->listen) {
        throw Failure(Error::NotSupported);
    }
    held->subscription.End();
    if (wanted) {
        held->subscription = held->listen(FaceRaiser(*this, object));
    }
}

const std::shared_ptr<FaceObjects::Held>& FaceObjects::Find(std::int64_t object) const
{
    const auto found = mHeld.find(object);
    if (found == mHeld.end()) {
        throw Failure(Error::ObjectRequired);
    }
    return found->second;
}

WireValue FaceObjects::GiveHeld(Held held, std::string_view className)
{
    const auto known = std::find_if(mHeld.begin(), mHeld.end(), [&](const auto& entry) {
        return entry.second->identity == held.identity && entry.second->reference.type() == held.reference.type();
    });
    if (known != mHeld.end()) {
        return WireValue::Object(known->first, std::string(className));
    }
    const auto number = ++mLast;
    mHeld[number] = std::make_shared<Held>(std::move(held));
    return WireValue::Object(number, std::string(className));
}

void FaceObjects::RefuseMember()
{
    throw WireFailure(WireFailure::NoMember, "there is no such member");
}

}
