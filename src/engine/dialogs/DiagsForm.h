#pragma once

#include "base/Ref.h"
#include "base/Subscription.h"
#include "engine/foundation/TracedObject.h"
#include "platform/controls/ComboBox.h"
#include "platform/controls/Form.h"
#include "platform/controls/TextBox.h"

#include <memory>
#include <string>

namespace tempodial {

class TempodialMain;

/// The dialog in which a person reports a problem. It is held by a reference, and holds itself while it waits for the
/// answer. None of its routines passes a failure on.
class DiagsForm final : public TracedObject, public std::enable_shared_from_this<DiagsForm>
{
public:
    /// Makes the form, which isn't shown yet.
    explicit DiagsForm(Ref<const Platform> platform);
    DiagsForm(const DiagsForm&) = delete;
    DiagsForm& operator=(const DiagsForm&) = delete;

    /// Stores the main object and sets the day to today.
    void Initialise(const Ref<TempodialMain>& main);
    /// The text of the mail as the form stands; empty without a main object.
    std::string GetBody();
    /// Lets the main object go.
    void Terminate();
    /// Shows the form without blocking.
    void Show();
    /// True once the person has answered, until the next `Initialise`.
    bool IsDone() const { return mDone; }

private:
    Date Day() const;
    void OK_Click();
    void Cancel_Click();
    void QueryClose(bool& cancel);
    void Close();

    Ref<TempodialMain> mMain;
    bool mDone = false;
    Ref<Form> mForm;
    Ref<TextBox> mExpectedText;
    Ref<TextBox> mActualText;
    Ref<ComboBox> mYearComboFrom;
    Ref<ComboBox> mMonthComboFrom;
    Ref<ComboBox> mDayComboFrom;
    Subscription mOKEvents;
    Subscription mCancelEvents;
    Subscription mFormEvents;
    /// Itself while it waits for the answer.
    Ref<DiagsForm> mShown;
};

}
