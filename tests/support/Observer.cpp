#include "support/Observer.h"

namespace tempodial {

Observer::Observer(UseObserver observer)
    : told(std::move(observer))
{
}

void Observer::Before(const InterposedCall& call)
{
    if (!told) {
        return;
    }
    auto use = std::string(call.classes.front()) + (call.writes ? ".Set" : ".") + std::string(call.member);
    if (!call.key.empty()) {
        use += " " + std::string(call.key);
    }
    told(use);
}

Ref<AppointmentItem> ObservedItem(const Ref<AppointmentItem>& item, UseObserver observer)
{
    return Observed(item, std::move(observer));
}

bool IsUse(const std::string& use, const std::string& member)
{
    return use == member || use.starts_with(member + " ");
}

UseObserver FailingAt(std::string member, Error error)
{
    return [member = std::move(member), error](const std::string& use) {
        if (IsUse(use, member)) {
            throw Failure(error);
        }
    };
}

}
