#pragma once

#include "base/Ref.h"
#include "base/Subscription.h"
#include "platform/Platform.h"
#include "platform/controls/Button.h"
#include "platform/controls/Label.h"
#include "platform/controls/ProgressBar.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// The window that shows how far a long job is and lets the user stop it; failures of the platform pass through.
class ProgressBarForm
{
public:
    /// Makes the form, which isn't shown yet.
    explicit ProgressBarForm(Ref<const Platform> platform);
    ProgressBarForm(const ProgressBarForm&) = delete;
    ProgressBarForm& operator=(const ProgressBarForm&) = delete;

    /// Sets title, texts and the upper bound of the bar, and forgets an earlier cancellation. The button's text and
    /// state go to a button that can't be seen.
    void Initialise(const std::string& title, const std::string& line1, const std::string& line2,
        const std::string& buttonText, std::int32_t limit, bool buttonEnabled);
    /// Shows the form without blocking, or brings it to the front.
    void Show();
    /// Moves the bar, at most to its end, and lets pending messages be processed once; a negative value fails (380).
    void Update(std::int32_t value);
    /// True once the user has cancelled, until the next `Initialise`.
    bool IsCancelled() const { return mCancelled; }
    /// Takes the form off the screen for good.
    void Unload();

private:
    void LoadCancel_Click();
    void QueryClose(bool& cancel);

    Ref<const Platform> mPlatform;
    bool mCancelled = false;
    Ref<Form> mForm;
    Ref<Label> mLabel1;
    Ref<Label> mLabel2;
    Ref<ProgressBar> mProgressBar1;
    Ref<Button> mCancelButton;
    Subscription mLoadCancelEvents;
    Subscription mFormEvents;
};

}
