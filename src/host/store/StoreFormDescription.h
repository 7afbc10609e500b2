#pragma once

#include "base/Ref.h"
#include "host/store/FormTemplate.h"
#include "platform/objectmodel/FormDescription.h"

#include <string>

namespace tempodial {

class MailboxStore;

/// The form of an item made from a template.
class StoreFormDescription final : public FormDescription
{
public:
    StoreFormDescription(Ref<MailboxStore> store, FormTemplate form);

    ObjectClass Class() const override;
    void SetDisplayName(const std::string& name) override;
    std::string MessageClass() const override;
    void PublishForm(FormRegistry registry) override;

private:
    Ref<MailboxStore> mStore;
    FormTemplate mForm;
};

}
