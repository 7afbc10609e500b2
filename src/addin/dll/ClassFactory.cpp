#include "addin/dll/ClassFactory.h"

#include "addin/base/ComRef.h"
#include "addin/dll/ConnectFace.h"

#include <new>

namespace tempodial {

STDMETHODIMP ClassFactory::QueryInterface(REFIID iid, void** object)
{
    if (object == nullptr) {
        return E_POINTER;
    }
    if (iid == IID_IUnknown || iid == IID_IClassFactory) {
        *object = static_cast<IClassFactory*>(this);
        AddRef();
        return S_OK;
    }
    *object = nullptr;
    return E_NOINTERFACE;
}

STDMETHODIMP_(ULONG) ClassFactory::AddRef()
{
    return ++mReferences;
}

STDMETHODIMP_(ULONG) ClassFactory::Release()
{
    const auto left = --mReferences;
    if (left == 0) {
        delete this;
    }
    return left;
}

STDMETHODIMP ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** object)
{
    if (object == nullptr) {
        return E_POINTER;
    }
    *object = nullptr;
    if (outer != nullptr) {
        return CLASS_E_NOAGGREGATION;
    }
    const ComRef<ConnectFace> face(new (std::nothrow) ConnectFace);
    return face ? face->QueryInterface(iid, object) : E_OUTOFMEMORY;
}

STDMETHODIMP ClassFactory::LockServer(BOOL lock)
{
    ModuleUse::Uses() += lock != FALSE ? 1 : -1;
    return S_OK;
}

}
