#pragma once

#include "addin/base/Windows.h"

namespace tempodial {

/// What objects that are called by names have in common: references that are counted, from none on, and no type
/// information. A class says in `QueryInterface` which interfaces it has, and overrides what it can do of the rest.
template <class... Interfaces> class DispatchObject : public Interfaces...
{
public:
    DispatchObject() = default;
    DispatchObject(const DispatchObject&) = delete;
    DispatchObject& operator=(const DispatchObject&) = delete;

    STDMETHODIMP_(ULONG) AddRef() override { return ++mReferences; }
    STDMETHODIMP_(ULONG) Release() override
    {
        const auto left = --mReferences;
        if (left == 0) {
            delete this;
        }
        return left;
    }
    STDMETHODIMP GetTypeInfoCount(UINT* count) override
    {
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** /*info*/) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(
        REFIID /*reserved*/, LPOLESTR* /*names*/, UINT /*count*/, LCID /*locale*/, DISPID* /*ids*/) override
    {
        return DISP_E_UNKNOWNNAME;
    }
    STDMETHODIMP Invoke(DISPID /*id*/, REFIID /*reserved*/, LCID /*locale*/, WORD /*flags*/, DISPPARAMS* /*parameters*/,
        VARIANT* /*result*/, EXCEPINFO* /*told*/, UINT* /*badArgument*/) override
    {
        return DISP_E_MEMBERNOTFOUND;
    }

protected:
    virtual ~DispatchObject() = default;

private:
    ULONG mReferences = 0;
};

}
