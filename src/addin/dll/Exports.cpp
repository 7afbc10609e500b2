#include "addin/base/AddInDesigner.h"
#include "addin/base/ComRef.h"
#include "addin/com/EventSink.h"
#include "addin/dll/ClassFactory.h"
#include "addin/dll/ModuleUse.h"
#include "addin/dll/Registration.h"
#include "addin/win32/ModuleFolder.h"
#include "addin/win32/forms/DialogKeys.h"
#include "addin/win32/forms/FormWindow.h"

#include <new>

STDAPI DllGetClassObject(REFCLSID itsClass, REFIID iid, void** object)
{
    if (object == nullptr) {
        return E_POINTER;
    }
    *object = nullptr;
    if (itsClass != tempodial::AddInClass) {
        return CLASS_E_CLASSNOTAVAILABLE;
    }
    const tempodial::ComRef<tempodial::ClassFactory> factory(new (std::nothrow) tempodial::ClassFactory);
    return factory ? factory->QueryInterface(iid, object) : E_OUTOFMEMORY;
}

STDAPI DllCanUnloadNow()
{
    const auto isUsed = tempodial::ModuleUse::Uses() != 0 || tempodial::EventSink::Count() != 0
        || tempodial::FormWindow::Count() != 0 || tempodial::DialogKeys::IsHooked();
    return isUsed ? S_FALSE : S_OK;
}

STDAPI DllRegisterServer()
{
    try {
        tempodial::Registration(tempodial::ModulePath()).Write();
        return S_OK;
    } catch (...) {
        return SELFREG_E_CLASS;
    }
}

STDAPI DllUnregisterServer()
{
    try {
        tempodial::Registration::Remove();
        return S_OK;
    } catch (...) {
        return SELFREG_E_CLASS;
    }
}
