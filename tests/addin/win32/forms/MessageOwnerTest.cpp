#include "addin/win32/forms/MessageOwner.h"

#include "addin/com/FakeObject.h"
#include "addin/win32/forms/PlainWindow.h"
#include "standin/WindowHands.h"

#include <gtest/gtest.h>

namespace tempodial {
namespace {

/// A host's application whose window in front is that one.
ComRef<FakeObject> ApplicationWith(HWND window)
{
    auto application = FakeObject::Make();
    application->Has("ActiveWindow", AutomationValue(WindowObject::Make(window)));
    return application;
}

Ref<Form> MakePlainForm(Win32FormFactory& forms)
{
    return forms.Create(
        { .className = "SampleForm", .title = "Sample", .rows = { { { "OK", ControlKind::Button, "OK" } } } });
}

TEST(HostsWindowTest, Get_HostSaysItsWindow_IsThatOne)
{
    const PlainWindow window;
    EXPECT_EQ(HostsWindow(ApplicationWith(window.Get())->Automation()).Get(), window.Get());
}

TEST(HostsWindowTest, Get_HostDoesNotSay_IsNone)
{
    EXPECT_EQ(HostsWindow(ComRef<IDispatch>()).Get(), nullptr);
    EXPECT_EQ(HostsWindow(ApplicationWith(nullptr)->Automation()).Get(), nullptr);
    EXPECT_EQ(HostsWindow(FakeObject::Make()->Automation()).Get(), nullptr);
    PlainWindow window;
    const auto application = ApplicationWith(window.Get());
    window.Destroy();
    EXPECT_EQ(HostsWindow(application->Automation()).Get(), nullptr);
}

TEST(MessageOwnerTest, Get_FormsShown_IsTheOneOnTop)
{
    const PlainWindow window;
    const auto forms = MakeRef<Win32FormFactory>(HostsWindow(ApplicationWith(window.Get())->Automation()));
    const MessageOwner owner(forms);
    const auto first = MakePlainForm(*forms);
    const auto second = MakePlainForm(*forms);
    first->Show();
    auto* const below = owner.Get();
    second->Show();
    auto* const above = owner.Get();
    EXPECT_NE(above, below);
    first->BringToFront();
    EXPECT_EQ(owner.Get(), below);
    first->Hide();
    EXPECT_EQ(owner.Get(), above);
    second->Hide();
    EXPECT_EQ(owner.Get(), window.Get());
}

TEST(MessageOwnerTest, Get_NeitherFormNorHost_IsWhatIsInFront)
{
    const auto forms = MakeRef<Win32FormFactory>(HostsWindow(ComRef<IDispatch>()));
    EXPECT_EQ(MessageOwner(forms).Get(), GetForegroundWindow());
}

}
}
