#pragma once

#include "addin/base/Windows.h"
#include "addin/win32/forms/FormLayout.h"
#include "base/Ref.h"
#include "forms/FormSnapshot.h"
#include "platform/controls/Control.h"
#include "platform/controls/Form.h"

#include <memory>
#include <string>

namespace tempodial {

/// A control of a form as a window of the system, which goes with the form's.
class ControlWindow
{
public:
    /// What the system makes.
    struct Look
    {
        const wchar_t* windowClass = nullptr;
        DWORD style = 0;
        DWORD extendedStyle = 0;
    };

    /// A window on a form, hidden and without a text, by the number that its notifications have.
    ControlWindow(HWND form, const ControlDefinition& definition, WORD number, const Look& look);
    virtual ~ControlWindow();
    ControlWindow(const ControlWindow&) = delete;
    ControlWindow& operator=(const ControlWindow&) = delete;

    HWND Window() const { return mWindow; }
    /// The control's name in the form.
    const std::string& Name() const { return mName; }
    /// The number that its notifications have.
    WORD Number() const { return mNumber; }
    /// Shows what differs from what is shown.
    void Draw(const ControlSnapshot& now);
    /// Lets the tab key come here, or not.
    void SetTabStop(bool isStop) const;
    /// Takes a place in its form.
    virtual void Move(const FormPlace& place);
    /// Tells the model what a person did, by the notification's code. This window may be gone when it returns.
    virtual void Tell(unsigned code, const Ref<Control>& model);

protected:
    /// What was drawn last.
    const ControlSnapshot& Drawn() const { return mDrawn; }
    LRESULT Send(UINT message, WPARAM first = 0, LPARAM second = 0) const
    {
        return SendMessageW(mWindow, message, first, second);
    }
    /// Shows another text; one that is shown already stays as it is.
    void ShowText(const std::string& text) const;
    /// Shows what only this kind has.
    virtual void DrawKind(const ControlSnapshot& now) = 0;

private:
    /// Lets the next control have the keys, if this one has them.
    void GiveUpFocus() const;

    HWND mWindow;
    std::string mName;
    WORD mNumber;
    ControlSnapshot mDrawn {};
};

/// A new window for a control of any kind; the first of a group is where the arrow keys end.
std::unique_ptr<ControlWindow> MakeControlWindow(
    HWND form, const ControlDefinition& definition, WORD number, bool beginsGroup);

}
