#include "host/store/StoreFormDescription.h"

#include "base/Text.h"
#include "host/store/MailboxStore.h"

#include <utility>

namespace tempodial {

StoreFormDescription::StoreFormDescription(Ref<MailboxStore> store, FormTemplate form)
    : mStore(std::move(store))
    , mForm(std::move(form))
{
}

ObjectClass StoreFormDescription::Class() const
{
    return ObjectClass::FormDescription;
}

void StoreFormDescription::SetDisplayName(const std::string& name)
{
    // The class of a form that was never named ends in its first name.
    if (mForm.displayName.empty() && EqualIgnoringCase(mForm.messageClass, "IPM.Appointment")) {
        mForm.messageClass += "." + name;
    }
    mForm.displayName = name;
}

std::string StoreFormDescription::MessageClass() const
{
    return mForm.messageClass;
}

void StoreFormDescription::PublishForm(FormRegistry)
{
    mStore->Forms().Publish(mForm);
}

}
