#include "addin/win32/forms/FormWindow.h"

#include "addin/base/SystemText.h"
#include "addin/base/WindowText.h"
#include "addin/win32/forms/EmptyDialog.h"
#include "addin/win32/forms/ScreenScale.h"

#include <bit>
#include <cstdint>
#include <memory>
#include <utility>

namespace tempodial {

namespace {

constexpr UINT DrawMessage = WM_APP + 1;
constexpr UINT DpiChangedMessage = 0x02E0; ///< Of newer systems than those that the headers are asked for.

/// A flag that is set while this lives.
class Meanwhile
{
public:
    explicit Meanwhile(bool& flag)
        : mFlag(flag)
        , mFormer(std::exchange(flag, true))
    {
    }
    ~Meanwhile() { mFlag = mFormer; }
    Meanwhile(const Meanwhile&) = delete;
    Meanwhile& operator=(const Meanwhile&) = delete;

private:
    bool& mFlag;
    bool mFormer;
};

long& CountOfForms()
{
    static long count = 0;
    return count;
}

}

std::shared_ptr<FormWindow> FormWindow::For(FormModel& model, const HostsWindow& host)
{
    auto window = std::make_shared<FormWindow>(model, host);
    window->Listen(model);
    return window;
}

FormWindow::FormWindow(FormModel& model, HostsWindow host)
    : mModel(model.weak_from_this())
    , mHost(std::move(host))
{
}

FormWindow::~FormWindow()
{
    End();
}

void FormWindow::End()
{
    mSubscription.End();
    if (auto* const window = Release()) {
        DestroyWindow(window);
    }
}

long FormWindow::Count()
{
    return CountOfForms();
}

INT_PTR CALLBACK FormWindow::Procedure(HWND window, UINT message, WPARAM first, LPARAM second)
{
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(window, DWLP_USER, second);
        return FALSE;
    }
    auto* const form = std::bit_cast<FormWindow*>(GetWindowLongPtrW(window, DWLP_USER));
    if (form == nullptr) {
        return FALSE;
    }
    const auto held = form->weak_from_this().lock();
    try {
        return form->Answer(message, first, second) ? TRUE : FALSE;
    } catch (...) {
        // What fails in the engine has been traced there, and the system can do nothing with it.
        return TRUE;
    }
}

bool FormWindow::Answer(UINT message, WPARAM first, LPARAM second)
{
    switch (message) {
    case DrawMessage:
        mDrawIsDue = false;
        if (const auto model = mModel.lock(); model && mIsShown) {
            Draw(*model);
        }
        return true;
    case WM_COMMAND:
        Hear(LOWORD(first), HIWORD(first));
        return true;
    case WM_CLOSE:
        CloseByFrame();
        return true;
    case DpiChangedMessage: {
        const auto& area = *std::bit_cast<const RECT*>(second);
        TakeDpi(HIWORD(first));
        SetWindowPos(mWindow, nullptr, area.left, area.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        return true;
    }
    case WM_DESTROY:
        LoseWindow();
        return true;
    default:
        return false;
    }
}

void FormWindow::Listen(FormModel& model)
{
    const auto with = [weak = weak_from_this()](auto work) {
        return [weak, work] {
            const auto form = weak.lock();
            const auto shown = form ? form->mModel.lock() : nullptr;
            if (shown) {
                work(*form, *shown);
            }
        };
    };
    mSubscription
        = model.SubscribeToChanges({ .Changed = with([](FormWindow& form, FormModel& shown) { form.Follow(shown); }),
            .Refreshed = with([](FormWindow& form, FormModel& shown) {
                if (form.mIsShown) {
                    form.Draw(shown);
                    RedrawWindow(form.mWindow, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
                }
            }),
            .BroughtToFront = with([](FormWindow& form, FormModel&) {
                SetWindowPos(form.mWindow, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
            }),
            .Ended = [weak = weak_from_this()] {
                if (const auto form = weak.lock()) {
                    form->End();
                }
            } });
}

void FormWindow::Follow(FormModel& model)
{
    if (model.Visible() && !mIsShown) {
        try {
            Show(model);
        } catch (...) {
            model.Hide();
            throw;
        }
    } else if (!model.Visible() && mIsShown) {
        Hide();
    } else if (mIsShown) {
        DrawSoon();
    }
}

void FormWindow::Show(FormModel& model)
{
    auto* const owner = mHost.Get();
    const auto isNew = mWindow == nullptr;
    if (isNew) {
        Make(model, owner);
    } else {
        SetWindowLongPtrW(mWindow, GWLP_HWNDPARENT, std::bit_cast<LONG_PTR>(owner));
    }
    Draw(model);
    if (isNew) {
        EmptyDialog::Center(mWindow, owner);
    }
    mIsShown = true;
    mKeys.emplace(mWindow);
    ShowWindow(mWindow, SW_SHOWNORMAL);
    auto* const first = GetNextDlgTabItem(mWindow, nullptr, FALSE);
    SendMessageW(mWindow, WM_NEXTDLGCTL, std::bit_cast<WPARAM>(first), TRUE);
}

void FormWindow::Hide()
{
    mIsShown = false;
    mKeys.reset();
    ShowWindow(mWindow, SW_HIDE);
}

void FormWindow::Make(const FormModel& model, HWND owner)
{
    auto* const window = EmptyDialog::Make(owner, &Procedure, std::bit_cast<LPARAM>(this));
    ++CountOfForms();
    mWindow = window;
    SetName(window, FormProperty, model.Definition().className);
    SetPropW(window, FormNumberProperty, std::bit_cast<HANDLE>(std::intptr_t { model.Number() }));
    const Meanwhile drawing(mIsDrawing);
    mControls.emplace(window, model.Definition(), AccessibleNames());
    mDpi = DpiOf(window);
    mFont = std::make_unique<FormFont>(mDpi);
    mControls->SetFont(mFont->Get());
}

HWND FormWindow::Release()
{
    auto* const window = std::exchange(mWindow, nullptr);
    if (window == nullptr) {
        return nullptr;
    }
    --CountOfForms();
    SetWindowLongPtrW(window, DWLP_USER, 0);
    mIsShown = false;
    mDrawIsDue = false;
    mKeys.reset();
    mControls.reset();
    RemoveName(window, FormProperty);
    RemovePropW(window, FormNumberProperty);
    return window;
}

void FormWindow::LoseWindow()
{
    Release();
    if (const auto model = mModel.lock(); model && model->Visible()) {
        // Nobody can refuse it, as somebody can who closes the form by its frame.
        model->CloseByFrame();
        model->Hide();
    }
}

void FormWindow::DrawSoon()
{
    if (mWindow != nullptr && !mDrawIsDue) {
        mDrawIsDue = PostMessageW(mWindow, DrawMessage, 0, 0) != FALSE;
    }
}

void FormWindow::Draw(FormModel& model)
{
    const auto seen = SnapshotOf(model);
    if (TextOf(mWindow) != seen.title) {
        SetWindowTextW(mWindow, Wide(seen.title).c_str());
    }
    const Meanwhile drawing(mIsDrawing);
    if (mControls->Draw(seen)) {
        LayOut(model);
    }
}

void FormWindow::LayOut(FormModel& model)
{
    const FormLayout layout(model.Definition(), SnapshotOf(model), *mFont, mDpi);
    mControls->Move(layout);
    EmptyDialog::Resize(mWindow, layout.Size(), mDpi);
}

void FormWindow::TakeDpi(unsigned dpi)
{
    const auto model = mModel.lock();
    if (!model || !mControls) {
        return;
    }
    mDpi = dpi;
    auto font = std::make_unique<FormFont>(dpi);
    const Meanwhile drawing(mIsDrawing);
    mControls->SetFont(font->Get());
    // Until now the former font was in use.
    mFont = std::move(font);
    LayOut(*model);
}

void FormWindow::Hear(WORD number, WORD code)
{
    const auto model = mModel.lock();
    if (mIsDrawing || !model || !mControls) {
        return;
    }
    // The system may change a control after it has told of it.
    DrawSoon();
    if (!mControls->Tell(*model, number, code) && number == IDCANCEL) {
        CloseByFrame();
    }
}

void FormWindow::CloseByFrame()
{
    if (const auto model = mModel.lock(); model && model->Visible()) {
        model->CloseByFrame();
    }
}

}
