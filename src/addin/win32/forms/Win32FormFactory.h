#pragma once

#include "addin/base/Windows.h"
#include "addin/win32/forms/FormWindow.h"
#include "addin/win32/forms/HostsWindow.h"
#include "forms/FormModelFactory.h"
#include "platform/controls/Form.h"

#include <memory>
#include <utility>
#include <vector>

namespace tempodial {

/// Makes forms as windows of the system in front of the host's. What they hold and what they raise are those of models,
/// as in every surroundings.
class Win32FormFactory final : public FormFactory
{
public:
    explicit Win32FormFactory(HostsWindow host)
        : mHost(std::move(host))
    {
    }

    /// A new form, not yet shown; its window is made when it is.
    Ref<Form> Create(const FormDefinition& definition) override;

    /// The forms as models.
    const FormModelFactory& Models() const { return mModels; }
    const HostsWindow& Host() const { return mHost; }
    /// The window of the form that stands in front of the others, null when none can be seen.
    HWND OnTop() const;
    /// The host ends: closes all forms for good, and lets their windows go.
    void CloseAll();

private:
    HostsWindow mHost;
    FormModelFactory mModels;
    std::vector<std::shared_ptr<FormWindow>> mWindows;
};

}
