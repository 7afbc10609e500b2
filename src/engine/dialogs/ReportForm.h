#pragma once

#include "base/Ref.h"
#include "base/Subscription.h"
#include "engine/foundation/TracedObject.h"
#include "platform/controls/CheckBox.h"
#include "platform/controls/ComboBox.h"
#include "platform/controls/Form.h"
#include "platform/controls/OptionButton.h"

#include <cstdint>
#include <memory>
#include <string>

namespace tempodial {

class TempodialMain;

/// The dialog in which a person asks for a report. It is hidden and shown again, and remembers the choices in the
/// registry. None of its routines passes a failure on while there is a log.
class ReportForm final : public TracedObject, public std::enable_shared_from_this<ReportForm>
{
public:
    explicit ReportForm(Ref<const Platform> platform);
    ReportForm(const ReportForm&) = delete;
    ReportForm& operator=(const ReportForm&) = delete;

    /// Stores the references, makes the form and fills the date selectors.
    void Initialise(const Ref<TempodialMain>& main, const Ref<TempodialDebugLog>& applog);
    /// Shows the form without blocking, with both dates at today and the choices of the last report.
    void ShowMe();
    /// Lets its references go.
    void Terminate();
    /// Takes the form off the screen for good.
    void Unload();

private:
    /// The three boxes of a date.
    struct DateSelector
    {
        Ref<ComboBox> year;
        Ref<ComboBox> month;
        Ref<ComboBox> day;
    };

    void MakeForm();
    DateSelector Selector(const std::string& suffix) const;
    void ShowLastChoices(const Attempt& attempt);
    std::int32_t ChosenType(const Attempt& attempt) const;
    void SaveChoices(std::int32_t type, const Attempt& attempt);
    void Command1_Click();
    void Command2_Click();
    void Form_QueryUnload(bool& cancel);

    Ref<TempodialMain> mMain;
    Ref<Form> mForm;
    DateSelector mFrom;
    DateSelector mTo;
    Ref<OptionButton> mApplicationOption;
    Ref<OptionButton> mProjectOption;
    Ref<OptionButton> mDateOption;
    Ref<CheckBox> mDetailCheck;
    Ref<CheckBox> mHTMLOption;
    Ref<CheckBox> mCsvCheck;
    Ref<CheckBox> mWorkDayOnly;
    Subscription mCommand1Events;
    Subscription mCommand2Events;
    Subscription mFormEvents;
};

}
