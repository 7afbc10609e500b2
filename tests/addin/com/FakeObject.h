#pragma once

#include "addin/base/AutomationValue.h"
#include "addin/base/ComRef.h"
#include "addin/base/Windows.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tempodial {

/// An automation object whose members a test makes up. It notes how each was called; texts stand for what was passed.
class FakeObject final : public IDispatch, public IConnectionPointContainer, public IConnectionPoint
{
public:
    /// A member: gives its result, or fails by a result other than success.
    using Member = std::function<HRESULT(const DISPPARAMS& parameters, VARIANT* result, EXCEPINFO* told)>;

    static ComRef<FakeObject> Make() { return ComRef<FakeObject>(new FakeObject); }
    /// How many there are.
    static long Count();

    ComRef<IDispatch> Automation() { return ComRef<IDispatch>(static_cast<IDispatch*>(this)); }
    /// Gives a member a value, or an object.
    void Has(const std::string& member, AutomationValue value);
    void Has(const std::string& member, Member does);
    /// Lets it have an event interface.
    void Raises(const IID& iid) { mEvents.push_back(iid); }
    /// Raises an event with arguments in their order.
    void Raise(DISPID event, std::vector<VARIANT> arguments = {});
    bool IsHeard() const { return static_cast<bool>(mSink); }

    /// What was called: "flags member(arguments)".
    std::vector<std::string> calls;
    /// The names that were asked for.
    std::vector<std::string> names;
    /// The interfaces that were looked for in turn.
    std::vector<IID> sought;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* wanted, UINT count, LCID locale, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
        EXCEPINFO* told, UINT* badArgument) override;
    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** points) override;
    STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** point) override;
    STDMETHODIMP GetConnectionInterface(IID* iid) override;
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) override;
    STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) override;
    STDMETHODIMP Unadvise(DWORD cookie) override;
    STDMETHODIMP EnumConnections(IEnumConnections** connections) override;

private:
    FakeObject();
    ~FakeObject();

    std::vector<std::pair<std::string, Member>> mMembers;
    std::vector<IID> mEvents;
    ComRef<IDispatch> mSink;
    ULONG mReferences = 0;
};

/// A value in a test's words: its type and what it holds.
std::string Words(const VARIANT& value);

}
