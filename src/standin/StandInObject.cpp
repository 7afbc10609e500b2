#include "standin/StandInObject.h"

#include "addin/base/SystemText.h"
#include "base/Failure.h"
#include "standin/MemberTable.h"
#include "wire/WireFailure.h"

#include <utility>

namespace tempodial {

namespace {

constexpr std::int64_t LargestPlainNumber = 0xFFFF;
constexpr std::uint32_t ControlResult = 0x800A0000U;

/// Fills in what a failed call tells of itself.
void Tell(const WireFailure& failure, EXCEPINFO& told)
{
    told = {};
    const auto number = failure.Number();
    told.scode = number > 0 && number <= LargestPlainNumber
        ? static_cast<SCODE>(ControlResult | static_cast<std::uint32_t>(number))
        : static_cast<SCODE>(number);
    told.bstrSource = NewBstr("Outlook's stand-in");
    told.bstrDescription = NewBstr(failure.what());
}

}

StandInObject::StandInObject(ObjectTable& table, std::int64_t number, std::string className)
    : mTable(table)
    , mNumber(number)
    , mClassName(std::move(className))
    , mPoint(*this, mClassName)
{
}

StandInObject::~StandInObject()
{
    mTable.Remove(mNumber);
}

const char* StandInObject::MemberOf(DISPID id) const
{
    for (const auto& entry : MemberTable) {
        if (entry.id == id && mClassName == entry.className) {
            return entry.member;
        }
    }
    return nullptr;
}

bool StandInObject::Raise(DISPID event, const std::vector<WireValue>& arguments)
{
    const ComRef<StandInObject> held(this);
    VARIANT_BOOL refused = VARIANT_FALSE;
    std::vector<AutomationValue> values;
    for (auto argument = arguments.rbegin(); argument != arguments.rend(); ++argument) {
        values.push_back(mTable.FromWire(*argument));
        if (argument->kind == WireKind::Missing) {
            values.back().Put()->vt = VT_BYREF | VT_BOOL;
            values.back().Put()->pboolVal = &refused;
        }
    }
    std::vector<VARIANT> reversed;
    for (const auto& value : values) {
        reversed.push_back(value.Get());
    }
    DISPPARAMS parameters { reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0 };
    // A handler may end its own connection, or others'.
    for (const auto& sink : mPoint.Sinks()) {
        sink->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
    }
    return refused != VARIANT_FALSE;
}

void StandInObject::Listen(bool wanted)
{
    FrameWriter request(FrameType::Advise);
    request.Number(mNumber).Byte(wanted ? 1 : 0);
    mTable.Ask(request);
}

STDMETHODIMP StandInObject::QueryInterface(REFIID iid, void** object)
{
    if (iid == IID_IUnknown || iid == IID_IDispatch) {
        *object = static_cast<IDispatch*>(this);
    } else if (iid == IID_IConnectionPointContainer && mPoint.HasEvents()) {
        *object = static_cast<IConnectionPointContainer*>(this);
    } else {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

STDMETHODIMP StandInObject::GetIDsOfNames(
    REFIID /*reserved*/, LPOLESTR* names, UINT count, LCID /*locale*/, DISPID* ids)
{
    for (UINT index = 0; index < count; ++index) {
        ids[index] = DISPID_UNKNOWN;
    }
    if (count == 0) {
        return E_INVALIDARG;
    }
    const auto name = Narrow(names[0]);
    for (const auto& entry : MemberTable) {
        if (mClassName == entry.className && _stricmp(entry.member, name.c_str()) == 0) {
            ids[0] = entry.id;
            // No argument is known by its name.
            return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
        }
    }
    return DISP_E_UNKNOWNNAME;
}

STDMETHODIMP StandInObject::Invoke(DISPID id, REFIID /*reserved*/, LCID /*locale*/, WORD flags, DISPPARAMS* parameters,
    VARIANT* result, EXCEPINFO* told, UINT* /*badArgument*/)
{
    const auto* member = MemberOf(id);
    if (member == nullptr) {
        return DISP_E_MEMBERNOTFOUND;
    }
    const ComRef<StandInObject> held(this);
    try {
        std::vector<WireValue> arguments;
        for (auto index = parameters->cArgs; index > 0; --index) {
            arguments.push_back(mTable.ToWire(parameters->rgvarg[index - 1]));
        }
        FrameWriter request(FrameType::Call);
        request.Number(mNumber).Byte(static_cast<std::uint8_t>(flags)).Text(member).Values(arguments);
        auto value = mTable.FromWire(mTable.AskForMember(mClassName, member, request));
        if (result != nullptr) {
            *result = value.Detach();
        }
        return S_OK;
    } catch (const WireFailure& failure) {
        if (failure.Number() == WireFailure::NoMember) {
            return DISP_E_MEMBERNOTFOUND;
        }
        if (told != nullptr) {
            Tell(failure, *told);
        }
        return DISP_E_EXCEPTION;
    } catch (const Failure& failure) {
        if (told != nullptr) {
            Tell({ failure.Number(), failure.Description() }, *told);
        }
        return DISP_E_EXCEPTION;
    }
}

STDMETHODIMP StandInObject::EnumConnectionPoints(IEnumConnectionPoints** /*points*/)
{
    return E_NOTIMPL;
}

STDMETHODIMP StandInObject::FindConnectionPoint(REFIID iid, IConnectionPoint** point)
{
    if (!mPoint.Has(iid)) {
        *point = nullptr;
        return CONNECT_E_NOCONNECTION;
    }
    *point = &mPoint;
    AddRef();
    return S_OK;
}

}
