#pragma once

#include "addin/base/Windows.h"
#include "addin/dll/ModuleUse.h"

namespace tempodial {

/// Makes the add-in's object for whoever asks COM for its class.
class ClassFactory final : public IClassFactory
{
public:
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
    STDMETHODIMP LockServer(BOOL lock) override;

private:
    ~ClassFactory() = default;

    ModuleUse mUse;
    ULONG mReferences = 0;
};

}
