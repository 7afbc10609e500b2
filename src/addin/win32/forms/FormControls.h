#pragma once

#include "addin/win32/forms/AccessibleNames.h"
#include "addin/win32/forms/ControlWindow.h"
#include "addin/win32/forms/FormLayout.h"
#include "addin/win32/forms/FormToolTips.h"
#include "forms/FormModel.h"
#include "forms/FormSnapshot.h"
#include "platform/controls/Form.h"

#include <memory>
#include <string>
#include <vector>

namespace tempodial {

/// The windows of a form's controls, in their order, which is that of the tab key. A button that cancels, and the
/// default one, have the numbers by which the dialog manager knows them.
class FormControls
{
public:
    /// Makes them on the window of a form, and tells screen readers what the windows don't.
    FormControls(HWND form, const FormDefinition& definition, AccessibleNames names);
    ~FormControls();
    FormControls(const FormControls&) = delete;
    FormControls& operator=(const FormControls&) = delete;

    void SetFont(HFONT font) const;
    /// Shows what differs from what is shown. True when a caption did, so that all are to be moved.
    bool Draw(const FormSnapshot& seen);
    void Move(const FormLayout& layout) const;
    /// Tells the form of a notification by its control's number and code; false when no control has the number. This
    /// object may be gone when it returns.
    bool Tell(FormModel& form, WORD number, WORD code) const;

private:
    /// The tab key comes to the option button that is chosen, and to all while none is.
    void DrawTabStops(const FormSnapshot& seen) const;
    void MakeAll(HWND form, const FormDefinition& definition);
    /// Tells of a control behind another one.
    void TellOf(
        HWND window, const FormDefinition& form, const ControlDefinition& control, const ControlDefinition* former);

    FormToolTips mToolTips;
    AccessibleNames mNames;
    std::vector<std::unique_ptr<ControlWindow>> mControls;
    /// The texts that the layout goes by.
    std::vector<std::string> mCaptions;
};

}
