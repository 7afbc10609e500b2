#pragma once

#include "addin/base/ComRef.h"
#include "addin/base/DispatchObject.h"
#include "standin/ConnectionPoint.h"
#include "standin/ObjectTable.h"
#include "wire/WireValue.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// An object of Outlook's, as far as an add-in can tell: it has the names and identities of its class, and the host
/// does its calls.
class StandInObject final : public DispatchObject<IDispatch, IConnectionPointContainer>
{
public:
    /// Takes the table, which must outlive it.
    StandInObject(ObjectTable& table, std::int64_t number, std::string className);

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
        EXCEPINFO* told, UINT* badArgument) override;
    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** points) override;
    STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** point) override;

    std::int64_t Number() const { return mNumber; }
    /// Raises an event; true when a sink refused it.
    bool Raise(DISPID event, const std::vector<WireValue>& arguments);
    /// The first sink listens, or none does any more. Fails with `WireFailure`.
    void Listen(bool wanted);

private:
    ~StandInObject() override;

    /// The member of an identity, nothing when the class has none.
    const char* MemberOf(DISPID id) const;

    ObjectTable& mTable;
    std::int64_t mNumber;
    std::string mClassName;
    ConnectionPoint mPoint;
};

}
