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
    , mExplorers(MakeRef<HostExplorers>(mMailbox, mOwnerCommands))
    , mInspectors(MakeRef<HostInspectors>(mMailbox, mOwnerCommands))
{
    mMailbox->SetDisplay([known = std::weak_ptr(mInspectors.Shared())](const Ref<StoreItem>& item) {
        if (const auto inspectors = known.lock()) {
            inspectors->Show(item);
        }
    });
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

Ref<Inspector> HostApplication::ActiveInspector()
{
    return mInspectors->Active();
}

Ref<MailItem> HostApplication::CreateItem()
{
    const auto show = [known = std::weak_ptr(mInspectors.Shared())](const Ref<HostMail>& mail) {
        if (const auto inspectors = known.lock()) {
            inspectors->Show(mail);
        }
    };
    auto mail = MakeRef<HostMail>(++mMailNumbers, mMailbox, show);
    std::erase_if(mMails, [](const auto& known) { return known.expired(); });
    mMails.push_back(mail.Shared());
    return mail;
}

Ref<AppointmentItem> HostApplication::CreateItemFromTemplate(const std::string& path, const Ref<MAPIFolder>& folder)
{
    const auto form = FormTemplateReader::Read(path);
    return mMailbox->NewItem(folder ? folder : mMailbox->NameSpace()->GetDefaultFolder(DefaultFolder::Calendar), form);
}

Subscription HostApplication::SubscribeToExplorers(HostWindowsEvents<HostExplorer> events)
{
    return mExplorers->SubscribeToWindows(std::move(events));
}

Subscription HostApplication::SubscribeToInspectors(HostWindowsEvents<HostInspector> events)
{
    return mInspectors->SubscribeToWindows(std::move(events));
}

void HostApplication::RaiseMapiLogonComplete()
{
    mEvents.Raise(&ApplicationEvents::MapiLogonComplete);
}

void HostApplication::RaiseQuit()
{
    mEvents.Raise(&ApplicationEvents::Quit);
}

Ref<HostExplorer> HostApplication::OpenExplorer(const Ref<MAPIFolder>& folder, bool barsReady)
{
    return mExplorers->Open(folder, barsReady);
}

std::vector<Ref<HostMail>> HostApplication::Mails() const
{
    std::vector<Ref<HostMail>> mails;
    for (const auto& inspector : mInspectors->All()) {
        const auto& mail = inspector->ShownMail();
        if (mail && std::find(mails.begin(), mails.end(), mail) == mails.end()) {
            mails.push_back(mail);
        }
    }
    return mails;
}

std::vector<Ref<HostMail>> HostApplication::MadeMails() const
{
    std::vector<Ref<HostMail>> mails;
    for (const auto& known : mMails) {
        if (auto mail = known.lock()) {
            mails.emplace_back(std::move(mail));
        }
    }
    return mails;
}

}
