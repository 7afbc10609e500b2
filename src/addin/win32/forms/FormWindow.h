#pragma once

#include "addin/base/Windows.h"
#include "addin/win32/forms/DialogKeys.h"
#include "addin/win32/forms/FormControls.h"
#include "addin/win32/forms/FormFont.h"
#include "addin/win32/forms/HostsWindow.h"
#include "base/Subscription.h"
#include "forms/FormModel.h"

#include <memory>
#include <optional>

namespace tempodial {

/// A form as a window of the system's dialog manager, made when the form is first shown. Changes of the model are drawn
/// together at the next message, so that a list of any length is drawn once; what a person does goes to the model.
class FormWindow final : public std::enable_shared_from_this<FormWindow>
{
public:
    /// The window of a form, in front of the host's.
    static std::shared_ptr<FormWindow> For(FormModel& model, const HostsWindow& host);

    FormWindow(FormModel& model, HostsWindow host);
    ~FormWindow();
    FormWindow(const FormWindow&) = delete;
    FormWindow& operator=(const FormWindow&) = delete;

    /// The window, null while there is none.
    HWND Window() const { return mWindow; }
    /// True when the form is gone for good.
    bool HasEnded() const { return mModel.expired(); }
    /// Lets the window go, and hears of the form no more.
    void End();
    /// How many windows there are, whose code is needed.
    static long Count();

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM first, LPARAM second);
    /// Answers a message; false for one that is the dialog manager's alone.
    bool Answer(UINT message, WPARAM first, LPARAM second);
    void Listen(FormModel& model);
    /// The model has changed.
    void Follow(FormModel& model);
    void Show(FormModel& model);
    void Hide();
    void Make(const FormModel& model, HWND owner);
    /// Forgets the window, which goes or is gone.
    HWND Release();
    /// The system takes the window away, with the host's.
    void LoseWindow();
    /// Draws what has changed when the next message is due.
    void DrawSoon();
    void Draw(FormModel& model);
    void LayOut(FormModel& model);
    void TakeDpi(unsigned dpi);
    /// A control tells of something, or a key stands for a button.
    void Hear(WORD number, WORD code);
    void CloseByFrame();

    std::weak_ptr<FormModel> mModel;
    HostsWindow mHost;
    Subscription mSubscription;
    HWND mWindow = nullptr;
    unsigned mDpi = 0;
    std::unique_ptr<FormFont> mFont;
    std::optional<FormControls> mControls;
    std::optional<DialogKeys> mKeys;
    bool mIsShown = false;
    bool mIsDrawing = false;
    bool mDrawIsDue = false;
};

}
