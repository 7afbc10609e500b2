#pragma once

#include "base/Ref.h"
#include "base/Subscription.h"
#include "engine/foundation/TracedObject.h"
#include "platform/controls/Form.h"

#include <string>

namespace tempodial {

/// The dialog that shows the product's name and version. None of its routines passes a failure on.
class AboutBoxForm final : public TracedObject
{
public:
    /// Makes the form, which isn't shown yet.
    explicit AboutBoxForm(Ref<const Platform> platform);

    /// Shows name and version without blocking.
    void ShowMe(const std::string& version, const std::string& name);
    /// Takes the form off the screen for good.
    void Unload();

private:
    Ref<Form> mForm;
    Subscription mOKEvents;
};

}
