#include "standin/ObjectTable.h"

#include "addin/base/AutomationDate.h"
#include "addin/base/SystemText.h"
#include "base/Failure.h"
#include "standin/PictureBytes.h"
#include "standin/StandInObject.h"
#include "wire/WireFailure.h"

#include <algorithm>

namespace tempodial {

namespace {

constexpr std::int64_t TypeMismatchNumber = 13;
constexpr double CurrencyScale = 10000;

/// Nothing may pass through the frames of the add-in, and without the host there is nothing to be done.
[[noreturn]] void EndOfHost()
{
    constexpr UINT HostIsGone = 3;
    ExitProcess(HostIsGone);
}

[[noreturn]] void RefuseValue()
{
    throw WireFailure(TypeMismatchNumber, "Type mismatch");
}

}

ComRef<IDispatch> ObjectTable::Object(std::int64_t number, const std::string& className)
{
    const auto found = mObjects.find(number);
    if (found != mObjects.end()) {
        return ComRef<IDispatch>(found->second);
    }
    auto* object = new StandInObject(*this, number, className);
    mObjects[number] = object;
    return ComRef<IDispatch>(object);
}

ComRef<StandInObject> ObjectTable::Find(std::int64_t number) const
{
    const auto found = mObjects.find(number);
    return found == mObjects.end() ? ComRef<StandInObject>() : ComRef<StandInObject>(found->second);
}

void ObjectTable::Remove(std::int64_t number)
{
    mObjects.erase(number);
    FrameWriter frame(FrameType::Free);
    mHost.Tell(frame.Number(number));
}

WireValue ObjectTable::Ask(FrameWriter& request) const
{
    try {
        return mHost.Ask(request);
    } catch (const WireBroken&) {
        EndOfHost();
    }
}

WireValue ObjectTable::AskForMember(const std::string& className, const char* member, FrameWriter& request)
{
    auto& figures = mCalls[className + "." + member];
    ++figures.count;
    const auto begin = std::chrono::steady_clock::now();
    auto value = Ask(request);
    figures.waited += std::chrono::steady_clock::now() - begin;
    return value;
}

WireValue ObjectTable::ToWire(const VARIANT& value) const
{
    switch (value.vt) {
    case VT_EMPTY:
        return {};
    case VT_NULL:
        return WireValue::Null();
    case VT_ERROR:
        return WireValue::Missing();
    case VT_BOOL:
        return WireValue::Flag(value.boolVal != VARIANT_FALSE);
    case VT_I2:
        return WireValue::Number(value.iVal);
    case VT_I4:
        return WireValue::Number(value.lVal);
    case VT_R8:
        return WireValue::Real(value.dblVal);
    case VT_CY:
        return WireValue::Real(static_cast<double>(value.cyVal.int64) / CurrencyScale);
    case VT_DATE:
        return WireValue::Moment(FromAutomationDate(value.date).Seconds());
    case VT_BSTR:
        return WireValue::Text(FromBstr(value.bstrVal));
    case VT_DISPATCH:
        return ObjectToWire(value.pdispVal);
    case VT_ARRAY | VT_VARIANT:
        return ListToWire(value.parray);
    default:
        RefuseValue();
    }
}

WireValue ObjectTable::ListToWire(SAFEARRAY* array) const
{
    LONG first = 0;
    LONG last = -1;
    SafeArrayGetLBound(array, 1, &first);
    SafeArrayGetUBound(array, 1, &last);
    std::vector<WireValue> list;
    for (auto index = first; index <= last; ++index) {
        AutomationValue element;
        SafeArrayGetElement(array, &index, element.Put());
        list.push_back(ToWire(element.Get()));
    }
    return WireValue::List(std::move(list));
}

WireValue ObjectTable::ObjectToWire(IDispatch* object) const
{
    if (object == nullptr) {
        return WireValue::Object(0, {});
    }
    const auto found = std::find_if(mObjects.begin(), mObjects.end(),
        [&](const auto& entry) { return static_cast<IDispatch*>(entry.second) == object; });
    if (found != mObjects.end()) {
        return WireValue::Object(found->first, {});
    }
    // The only objects of the add-in's own that are passed are pictures, which go as their files.
    const auto bytes = PictureBytes(ComRef<IDispatch>(object));
    if (!bytes) {
        RefuseValue();
    }
    return WireValue::Text(*bytes);
}

AutomationValue ObjectTable::FromWire(const WireValue& value)
{
    switch (value.kind) {
    case WireKind::Null: {
        AutomationValue null;
        null.Put()->vt = VT_NULL;
        return null;
    }
    case WireKind::Flag:
        return AutomationValue(value.number != 0);
    case WireKind::Number:
        return AutomationValue(static_cast<std::int32_t>(value.number));
    case WireKind::Real: {
        AutomationValue real;
        real.Put()->vt = VT_R8;
        real.Put()->dblVal = value.real;
        return real;
    }
    case WireKind::Moment:
        return AutomationValue(Date::FromSeconds(value.number));
    case WireKind::Text:
        return AutomationValue(value.text);
    case WireKind::Object:
        return AutomationValue(value.number == 0 ? ComRef<IDispatch>() : Object(value.number, value.text));
    case WireKind::Nothing:
    case WireKind::Missing:
    case WireKind::List:
        break;
    }
    return {};
}

}
