#include "addin/base/AddInDesigner.h"
#include "addin/base/ComRef.h"
#include "addin/com/Adapted.h"
#include "addin/com/FakeObject.h"
#include "addin/dll/ModuleUse.h"
#include "addin/dll/TestSurroundings.h"
#include "addin/win32/forms/Win32FormFactory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

STDAPI DllGetClassObject(REFCLSID itsClass, REFIID iid, void** object);
STDAPI DllCanUnloadNow();

namespace tempodial {

namespace {

using testing::Contains;

}

class ModuleTest : public testing::Test
{
protected:
    ModuleTest() { UseOfSurroundings() = {}; }
    ~ModuleTest() override
    {
        mAddIn.Clear();
        mFactory.Clear();
        EXPECT_EQ(DllCanUnloadNow(), S_OK);
    }

    void MakeAddIn()
    {
        ASSERT_EQ(DllGetClassObject(AddInClass, IID_IClassFactory, mFactory.PutAny()), S_OK);
        ASSERT_EQ(mFactory->CreateInstance(nullptr, __uuidof(IDTExtensibility2), mAddIn.PutAny()), S_OK);
    }

    ComRef<IClassFactory> mFactory;
    ComRef<IDTExtensibility2> mAddIn;
};

TEST_F(ModuleTest, Class_ThatIsNone_IsRefused)
{
    EXPECT_EQ(DllGetClassObject(IID_IUnknown, IID_IClassFactory, mFactory.PutAny()), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_FALSE(mFactory);
    EXPECT_EQ(DllGetClassObject(AddInClass, IID_IDispatch, mFactory.PutAny()), E_NOINTERFACE);
    EXPECT_EQ(DllGetClassObject(AddInClass, IID_IClassFactory, nullptr), E_POINTER);
}

TEST_F(ModuleTest, Module_InUse_CantBeUnloaded)
{
    MakeAddIn();
    mFactory.Clear();
    EXPECT_EQ(DllCanUnloadNow(), S_FALSE);
    mAddIn.Clear();
    EXPECT_EQ(DllCanUnloadNow(), S_OK);
    ASSERT_EQ(DllGetClassObject(AddInClass, IID_IClassFactory, mFactory.PutAny()), S_OK);
    mFactory->LockServer(TRUE);
    mFactory.Clear();
    EXPECT_EQ(DllCanUnloadNow(), S_FALSE);
    --ModuleUse::Uses();
}

TEST_F(ModuleTest, Module_WithAFormsWindow_CantBeUnloaded)
{
    const auto factory = MakeRef<Win32FormFactory>(HostsWindow(ComRef<IDispatch>()));
    const auto form = factory->Create({ .className = "SampleForm", .title = "Sample" });
    EXPECT_EQ(DllCanUnloadNow(), S_OK);
    form->Show();
    EXPECT_EQ(DllCanUnloadNow(), S_FALSE);
    // A hidden window keeps its procedure.
    form->Hide();
    EXPECT_EQ(DllCanUnloadNow(), S_FALSE);
    factory->CloseAll();
    EXPECT_EQ(DllCanUnloadNow(), S_OK);
}

TEST_F(ModuleTest, Module_ThatHearsAnObject_CantBeUnloaded)
{
    const auto quits = FakeObject::Make();
    quits->Raises({ 0x0006302C, 0, 0, { 0xC0, 0, 0, 0, 0, 0, 0, 0x46 } });
    auto subscription = Adapted<Application>(quits->Automation())->Subscribe({});
    EXPECT_EQ(DllCanUnloadNow(), S_FALSE);
    subscription.End();
    EXPECT_EQ(DllCanUnloadNow(), S_OK);
}

TEST_F(ModuleTest, AddIn_HasTheInterfacesOfOne)
{
    MakeAddIn();
    EXPECT_TRUE(mAddIn.As<IDispatch>());
    EXPECT_FALSE(mAddIn.As<IConnectionPointContainer>());
    EXPECT_EQ(mFactory->CreateInstance(mAddIn.Get(), IID_IUnknown, ComRef<IUnknown>().PutAny()), CLASS_E_NOAGGREGATION);
    wchar_t name[] = L"OnConnection";
    wchar_t* names = name;
    DISPID id = 0;
    EXPECT_EQ(mAddIn->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id), DISP_E_UNKNOWNNAME);
}

TEST_F(ModuleTest, Connection_WithoutAnyWindow_StaysDormant)
{
    MakeAddIn();
    const auto none = FakeObject::Make();
    none->Has("Count", AutomationValue(std::int32_t { 0 }));
    const auto application = FakeObject::Make();
    application->Has("Explorers", AutomationValue(none->Automation()));
    application->Has("Inspectors", AutomationValue(none->Automation()));
    const auto instance = FakeObject::Make();
    instance->Has("ProgId", AutomationValue("Tempodial.Connect"));
    EXPECT_EQ(
        mAddIn->OnConnection(application->Automation().Get(), ConnectAtStartup, instance->Automation().Get(), nullptr),
        S_OK);
    EXPECT_EQ(mAddIn->OnStartupComplete(nullptr), S_OK);
    EXPECT_THAT(instance->calls, Contains("3 ProgId()"));
    EXPECT_THAT(none->calls, Contains("3 Count()").Times(2));
    EXPECT_EQ(UseOfSurroundings().made, 1);
}

TEST_F(ModuleTest, Calls_InAnyOrder_NeverFail)
{
    MakeAddIn();
    EXPECT_EQ(mAddIn->OnStartupComplete(nullptr), S_OK);
    EXPECT_EQ(mAddIn->OnBeginShutdown(nullptr), S_OK);
    EXPECT_EQ(mAddIn->OnAddInsUpdate(nullptr), S_OK);
    EXPECT_EQ(mAddIn->OnDisconnection(DisconnectAtShutdown, nullptr), S_OK);
    EXPECT_EQ(UseOfSurroundings().ended, 1);
    EXPECT_EQ(mAddIn->OnConnection(nullptr, ConnectAtStartup, nullptr, nullptr), S_OK);
    UseOfSurroundings().fails = true;
    EXPECT_EQ(mAddIn->OnConnection(nullptr, ConnectAtStartup, nullptr, nullptr), S_OK);
}

}
