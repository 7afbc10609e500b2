#include "addin/com/LateObject.h"

#include "addin/base/ResultFailure.h"
#include "addin/base/SystemText.h"

#include <algorithm>
#include <vector>

namespace tempodial {

void LateObject::PutObject(std::string_view member, const ComRef<IDispatch>& object) const
{
    try {
        Run(DISPATCH_PROPERTYPUTREF, member, object);
    } catch (const Failure& failure) {
        if (!failure.Is(Error::NotSupported)) {
            throw;
        }
        Put(member, object);
    }
}

AutomationValue LateObject::Invoke(WORD flags, std::string_view member, std::span<AutomationValue> args) const
{
    const auto id = IdOf(member);
    // What is left out at the end isn't passed at all; the others go in reverse.
    auto count = args.size();
    while (count > 0 && args[count - 1].IsMissing()) {
        --count;
    }
    std::vector<VARIANT> reversed(count);
    std::transform(args.begin(), args.begin() + static_cast<std::ptrdiff_t>(count), reversed.rbegin(),
        [](const AutomationValue& value) { return value.Get(); });
    DISPID putId = DISPID_PROPERTYPUT;
    const bool isPut = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    DISPPARAMS parameters { reversed.data(), isPut ? &putId : nullptr, static_cast<UINT>(count), isPut ? 1U : 0U };
    AutomationValue result;
    EXCEPINFO told {};
    // An event inside the call may end the owner of this object.
    const auto held = mObject;
    const auto code = held->Invoke(
        id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, isPut ? nullptr : result.Put(), &told, nullptr);
    if (FAILED(code)) {
        throw FailureOf(code, told);
    }
    return result;
}

DISPID LateObject::IdOf(std::string_view member) const
{
    const auto known = mIds.find(member);
    if (known != mIds.end()) {
        return known->second;
    }
    auto name = Wide(member);
    auto* names = name.data();
    DISPID id = DISPID_UNKNOWN;
    Check(mObject->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id));
    mIds.emplace(member, id);
    return id;
}

}
