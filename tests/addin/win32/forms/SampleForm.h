#pragma once

#include "addin/win32/forms/Win32FormFactory.h"
#include "base/Ref.h"
#include "base/Subscription.h"
#include "forms/FormSnapshot.h"
#include "platform/controls/Button.h"
#include "platform/controls/CheckBox.h"
#include "platform/controls/ComboBox.h"
#include "platform/controls/Label.h"
#include "platform/controls/OptionButton.h"
#include "platform/controls/ProgressBar.h"
#include "platform/controls/TextBox.h"
#include "standin/WindowEyes.h"
#include "standin/WindowHands.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tempodial {

/// A form with controls of all kinds.
FormDefinition SampleDefinition();

/// Such a form, what happens to it, and a person before it.
class SampleForm : public testing::Test
{
protected:
    SampleForm();

    template <class Control> Ref<Control> As(const std::string& name) { return mForm->Control(name).As<Control>(); }
    HWND Window() const { return mFactory->OnTop(); }
    HWND ControlWindow(const std::string& name) const { return WindowEyes::Control(Window(), name); }
    FormSnapshot Modelled() const { return SnapshotOf(*mForm.As<FormModel>()); }
    /// What the window shows now, without waiting for anything.
    static FormSnapshot Shown() { return WindowEyes::Forms().at(0); }
    /// Handles what waits, and expects the window to show what the model holds.
    void ExpectAlike() const;
    /// How many messages of its own the window waits for; they are handled.
    int CountOwnMessages() const;
    /// A person presses a key where the focus is.
    static void Press(WPARAM key);
    /// A person presses a letter together with the Alt key.
    static void PressWithAlt(wchar_t letter);
    /// The control that gets the keys.
    static std::string Focus();

    Ref<Win32FormFactory> mFactory = MakeRef<Win32FormFactory>(HostsWindow(ComRef<IDispatch>()));
    Ref<Form> mForm = mFactory->Create(SampleDefinition());
    WindowHands mHands;
    /// What has happened, and what is done then by the control's name.
    std::vector<std::string> mEvents;
    std::map<std::string, std::function<void()>> mDoes;

private:
    void Happens(const std::string& control, const char* what);

    std::vector<Subscription> mSubscriptions;
};

}
