#include "addin/win32/forms/SampleForm.h"

#include "addin/base/WindowText.h"
#include "forms/FormDifferences.h"

#include <gmock/gmock.h>

#include <string>

namespace tempodial {

FormDefinition SampleDefinition()
{
    using enum ControlKind;
    return { .className = "SampleForm",
        .title = "Sample ",
        .rows = { { { "SubjectLabel", Label, "S&ubject matches" },
                      { .name = "Subject", .kind = TextBox, .text = "plan", .toolTip = "Enter text, please." } },
            { { .name = "Project", .kind = ComboBox, .text = "None", .toolTip = "Choose one." },
                { "Remove", Button, "&Remove" } },
            { { "One", OptionButton, "&One" } }, { { "Two", OptionButton, "&Two" } },
            { { "Tick", CheckBox, "&Back apply" } },
            { { .name = "Lines", .kind = TextBox, .text = "", .severalLines = true } }, { { "Bar", ProgressBar, "" } },
            { { .name = "OK", .kind = Button, .text = "OK", .role = ButtonRole::Default },
                { .name = "Cancel", .kind = Button, .text = "Cancel", .role = ButtonRole::Cancel },
                { "Other", Button, "Apply" } },
            { { .name = "Outside", .kind = Button, .text = "&Nowhere", .onForm = false } } } };
}

namespace {

/// Lets this process have a desktop of its own, on which no other one takes the keys away.
void TakeOwnDesktop()
{
    static const auto taken = [] {
        const auto name = L"tests-" + std::to_wstring(GetCurrentProcessId());
        return SetThreadDesktop(
            CreateDesktopW(name.c_str(), nullptr, nullptr, 0, GENERIC_ALL | DESKTOP_SWITCHDESKTOP, nullptr));
    }();
    ASSERT_NE(taken, FALSE);
}

}

SampleForm::SampleForm()
{
    TakeOwnDesktop();
    const auto on
        = [this](const std::string& name, const char* what) { return [this, name, what] { Happens(name, what); }; };
    for (const auto* name : { "Subject", "Lines" }) {
        mSubscriptions.push_back(As<TextBox>(name)->Subscribe({ .Change = on(name, "changed") }));
    }
    mSubscriptions.push_back(
        As<ComboBox>("Project")->Subscribe({ .Change = on("Project", "changed"), .Click = on("Project", "clicked") }));
    for (const auto* name : { "One", "Two" }) {
        mSubscriptions.push_back(As<OptionButton>(name)->Subscribe({ .Click = on(name, "clicked") }));
    }
    mSubscriptions.push_back(As<CheckBox>("Tick")->Subscribe({ .Click = on("Tick", "clicked") }));
    for (const auto* name : { "Remove", "OK", "Cancel", "Other", "Outside" }) {
        mSubscriptions.push_back(As<Button>(name)->Subscribe({ .Click = on(name, "clicked") }));
    }
}

void SampleForm::ExpectAlike() const
{
    WindowHands::HandleMessages();
    const auto modelled = Modelled();
    EXPECT_THAT(FormDifferences({ modelled }, { Shown() }), testing::IsEmpty());
    EXPECT_EQ(modelled, Shown());
}

int SampleForm::CountOwnMessages() const
{
    int count = 0;
    MSG message {};
    constexpr UINT LastOwn = 0xBFFF;
    while (PeekMessageW(&message, Window(), WM_APP, LastOwn, PM_REMOVE) != FALSE) {
        ++count;
        DispatchMessageW(&message);
    }
    return count;
}

void SampleForm::Press(WPARAM key)
{
    PostMessageW(GetFocus(), WM_KEYDOWN, key, 1);
    WindowHands::HandleMessages();
}

void SampleForm::PressWithAlt(wchar_t letter)
{
    constexpr LPARAM WithAlt = 1 << 29;
    PostMessageW(GetFocus(), WM_SYSCHAR, letter, WithAlt | 1);
    WindowHands::HandleMessages();
}

std::string SampleForm::Focus()
{
    auto* const focus = GetFocus();
    const auto name = NameOf(focus, ControlProperty);
    return name.empty() ? NameOf(GetParent(focus), ControlProperty) : name;
}

void SampleForm::Happens(const std::string& control, const char* what)
{
    mEvents.push_back(control + " " + what);
    if (const auto does = mDoes.find(control); does != mDoes.end()) {
        does->second();
    }
}

}
