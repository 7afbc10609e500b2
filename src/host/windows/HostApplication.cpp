#include "host/windows/HostApplication.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "host/store/FormTemplateReader.h"
#include "host/store/StoreItem.h"

#include <algorithm>
#include <utility>

namespace tempodial {

HostApplication::HostApplication(Ref<Mailbox> mailbox, std::string version)
    : mMailbox(std::move(mailbox))
    , mVersion(std::move(version))
{
}

Ref<NameSpace> HostApplication::GetNamespace(const std::string& type)
{
    if (!EqualIgnoringCase(type, "MAPI")) {
        throw Failure(Error::InvalidCall);
    }
    return mMailbox->NameSpace();
}

Ref<Explorer> HostApplication::ActiveExplorer()
{
    return mExplorers->Active();
}

Ref<MailItem> HostApplication::CreateItem()
{
    return MakeRef<HostMail>(mMailbox, [shown = std::weak_ptr(mMails)](const Ref<HostMail>& mail) {
        const auto mails = shown.lock();
        if (mails && std::find(mails->begin(), mails->end(), mail) == mails->end()) {
            mails->push_back(mail);
        }
    });
}

Ref<AppointmentItem> HostApplication::CreateItemFromTemplate(const std::string& path, const Ref<MAPIFolder>& folder)
{
    const auto form = FormTemplateReader::Read(path);
    return mMailbox->NewItem(folder ? folder : mMailbox->NameSpace()->GetDefaultFolder(DefaultFolder::Calendar), form);
}

void HostApplication::RaiseMapiLogonComplete()
{
    mEvents.Raise(&ApplicationEvents::MapiLogonComplete);
}

void HostApplication::RaiseQuit()
{
    mEvents.Raise(&ApplicationEvents::Quit);
}

Ref<HostExplorer> HostApplication::OpenExplorer(const Ref<MAPIFolder>& folder)
{
    auto explorer = MakeRef<HostExplorer>(folder);
    mExplorers->Add(explorer);
    return explorer;
}

}
