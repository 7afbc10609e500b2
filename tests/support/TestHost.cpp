#include "support/TestHost.h"

#include "host/store/FormTemplate.h"
#include "host/store/StoreItem.h"
#include "host/system/ExpatXml.h"
#include "host/system/IcuLocaleFormats.h"

namespace tempodial {

namespace {

FormTemplate ActivityForm(const std::string& messageClass)
{
    FormTemplate form;
    form.messageClass = messageClass;
    form.displayName = "Activity";
    form.fields = {
        { "Type", PropertyType::Text, {} },
        { "Day", PropertyType::DateTime, {} },
        { "StartTime", PropertyType::Text, {} },
        { "Project", PropertyType::Text, {} },
        { "Description", PropertyType::Text, {} },
        { "People", PropertyType::Text, {} },
        { "Keyword", PropertyType::Text, {} },
        { "ApplyPast", PropertyType::YesNo, {} },
    };
    return form;
}

}

TestHost::TestHost(const std::string& folder, const Ref<Registry>& registry, const std::string& mailboxPath)
{
    files = MakeRef<TestFileSystem>(folder);
    platform->fileSystem = files;
    platform->registry = registry;
    platform->shell = shell;
    platform->clock = clock;
    platform->formats = MakeRef<IcuLocaleFormats>("en_US");
    platform->xml = MakeRef<ExpatXmlFactory>();
    platform->pictures = pictures;
    platform->forms = forms;
    platform->messageBox = messageBox;
    platform->eventPump = eventPump;
    mailbox = Mailbox::Open(mailboxPath, platform->formats, platform->xml);
    storeJournal = MakeRef<StoreImportJournal>(mailbox);
    journal = MakeRef<TestImportJournal>(storeJournal);
    platform->importJournal = journal;
    application = MakeRef<TestApplication>(MakeRef<HostApplication>(mailbox));
    application->fromTemplate = [this](const std::string&, const Ref<MAPIFolder>& target) {
        return mailbox->NewItem(target, ActivityForm(formClass));
    };
    explorer = application->host->OpenExplorer(mailbox->NameSpace()->GetDefaultFolder(DefaultFolder::Inbox));
}

TestHost::~TestHost()
{
    forms->CloseAll();
}

}
