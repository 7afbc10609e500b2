#include "addin/win32/forms/Win32FormFactory.h"

#include <algorithm>
#include <utility>

namespace tempodial {

Ref<Form> Win32FormFactory::Create(const FormDefinition& definition)
{
    std::erase_if(mWindows, [](const auto& window) { return window->HasEnded(); });
    auto form = mModels.Create(definition);
    mWindows.push_back(FormWindow::For(*form.As<FormModel>(), mHost));
    return form;
}

HWND Win32FormFactory::OnTop() const
{
    for (auto* window = GetTopWindow(nullptr); window != nullptr; window = GetWindow(window, GW_HWNDNEXT)) {
        const auto isForm = std::any_of(
            mWindows.begin(), mWindows.end(), [window](const auto& form) { return form->Window() == window; });
        if (isForm && IsWindowVisible(window) != FALSE) {
            return window;
        }
    }
    return nullptr;
}

void Win32FormFactory::CloseAll()
{
    mModels.CloseAll();
    for (const auto& window : std::exchange(mWindows, {})) {
        window->End();
    }
}

}
