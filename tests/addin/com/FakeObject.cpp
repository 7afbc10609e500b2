#include "addin/com/FakeObject.h"

#include "addin/base/SystemText.h"

#include <algorithm>
#include <memory>

namespace tempodial {

namespace {

long fakeCount = 0;
constexpr DISPID FirstId = 100;
constexpr DWORD OnlyCookie = 7;

/// The names of all objects: one has the same identity in each, since bindings keep it by class.
std::vector<std::string>& KnownNames()
{
    static std::vector<std::string> known;
    return known;
}

DISPID IdOfName(const std::string& name)
{
    auto& known = KnownNames();
    const auto found = std::find(known.begin(), known.end(), name);
    const auto index = found - known.begin();
    if (found == known.end()) {
        known.push_back(name);
    }
    return FirstId + static_cast<DISPID>(index);
}

}

std::string Words(const VARIANT& value)
{
    switch (value.vt) {
    case VT_EMPTY:
        return "nothing";
    case VT_ERROR:
        return value.scode == DISP_E_PARAMNOTFOUND ? "missing" : "error";
    case VT_BOOL:
        return value.boolVal == VARIANT_FALSE ? "false" : "true";
    case VT_I4:
        return std::to_string(value.lVal);
    case VT_DATE:
        return "moment";
    case VT_BSTR:
        return "\"" + FromBstr(value.bstrVal) + "\"";
    case VT_DISPATCH:
        return value.pdispVal == nullptr ? "no object" : "object";
    case VT_ARRAY | VT_VARIANT:
        return "list";
    default:
        return "type " + std::to_string(value.vt);
    }
}

FakeObject::FakeObject()
{
    ++fakeCount;
}

FakeObject::~FakeObject()
{
    --fakeCount;
}

long FakeObject::Count()
{
    return fakeCount;
}

void FakeObject::Has(const std::string& member, AutomationValue value)
{
    const auto kept = std::make_shared<AutomationValue>(std::move(value));
    Has(member, [kept](const DISPPARAMS&, VARIANT* result, EXCEPINFO*) {
        return result == nullptr ? S_OK : VariantCopy(result, kept->Put());
    });
}

void FakeObject::Has(const std::string& member, Member does)
{
    mMembers.emplace_back(member, std::move(does));
}

void FakeObject::Raise(DISPID event, std::vector<VARIANT> arguments)
{
    std::reverse(arguments.begin(), arguments.end());
    DISPPARAMS parameters { arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0 };
    const auto sink = mSink;
    if (sink) {
        sink->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr);
    }
}

STDMETHODIMP FakeObject::QueryInterface(REFIID iid, void** object)
{
    if (iid == IID_IUnknown || iid == IID_IDispatch) {
        *object = static_cast<IDispatch*>(this);
    } else if (iid == IID_IConnectionPointContainer && !mEvents.empty()) {
        *object = static_cast<IConnectionPointContainer*>(this);
    } else {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) FakeObject::AddRef()
{
    return ++mReferences;
}

STDMETHODIMP_(ULONG) FakeObject::Release()
{
    const auto left = --mReferences;
    if (left == 0) {
        delete this;
    }
    return left;
}

STDMETHODIMP FakeObject::GetTypeInfoCount(UINT* /*count*/)
{
    return E_NOTIMPL;
}

STDMETHODIMP FakeObject::GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** /*info*/)
{
    return E_NOTIMPL;
}

STDMETHODIMP FakeObject::GetIDsOfNames(
    REFIID /*reserved*/, LPOLESTR* wanted, UINT /*count*/, LCID /*locale*/, DISPID* ids)
{
    const auto name = Narrow(wanted[0]);
    names.push_back(name);
    const bool has
        = std::any_of(mMembers.begin(), mMembers.end(), [&](const auto& member) { return member.first == name; });
    if (has) {
        ids[0] = IdOfName(name);
        return S_OK;
    }
    return DISP_E_UNKNOWNNAME;
}

STDMETHODIMP FakeObject::Invoke(DISPID id, REFIID /*reserved*/, LCID /*locale*/, WORD flags, DISPPARAMS* parameters,
    VARIANT* result, EXCEPINFO* told, UINT* /*badArgument*/)
{
    const auto& name = KnownNames().at(static_cast<std::size_t>(id - FirstId));
    const auto found
        = std::find_if(mMembers.begin(), mMembers.end(), [&](const auto& member) { return member.first == name; });
    if (found == mMembers.end()) {
        return DISP_E_MEMBERNOTFOUND;
    }
    auto call = std::to_string(flags) + " " + name + "(";
    for (auto index = parameters->cArgs; index > 0; --index) {
        call += (index == parameters->cArgs ? "" : ", ") + Words(parameters->rgvarg[index - 1]);
    }
    const bool isPut = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
    const bool isNamed = parameters->cNamedArgs == 1 && parameters->rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
    calls.push_back(call + ")" + (isPut == isNamed ? "" : " badly named"));
    const auto held = Automation();
    return found->second(*parameters, result, told);
}

STDMETHODIMP FakeObject::EnumConnectionPoints(IEnumConnectionPoints** /*points*/)
{
    return E_NOTIMPL;
}

STDMETHODIMP FakeObject::FindConnectionPoint(REFIID iid, IConnectionPoint** point)
{
    sought.push_back(iid);
    if (std::find(mEvents.begin(), mEvents.end(), iid) == mEvents.end()) {
        *point = nullptr;
        return CONNECT_E_NOCONNECTION;
    }
    *point = static_cast<IConnectionPoint*>(this);
    AddRef();
    return S_OK;
}

STDMETHODIMP FakeObject::GetConnectionInterface(IID* /*iid*/)
{
    return E_NOTIMPL;
}

STDMETHODIMP FakeObject::GetConnectionPointContainer(IConnectionPointContainer** /*container*/)
{
    return E_NOTIMPL;
}

STDMETHODIMP FakeObject::Advise(IUnknown* sink, DWORD* cookie)
{
    mSink = ComRef<IUnknown>(sink).As<IDispatch>(sought.back());
    *cookie = OnlyCookie;
    return mSink ? S_OK : CONNECT_E_CANNOTCONNECT;
}

STDMETHODIMP FakeObject::Unadvise(DWORD cookie)
{
    if (cookie != OnlyCookie) {
        return CONNECT_E_NOCONNECTION;
    }
    mSink.Clear();
    return S_OK;
}

STDMETHODIMP FakeObject::EnumConnections(IEnumConnections** /*connections*/)
{
    return E_NOTIMPL;
}

}
