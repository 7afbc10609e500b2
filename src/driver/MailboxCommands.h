#pragma once

#include "driver/Command.h"
#include "driver/DriverHost.h"
#include "host/store/StoreItem.h"

#include <string>

namespace tempodial {

/// The commands on the mailbox: on its folders, items and views as a person works them without opening any, and what
/// the mails on the screen hold.
class MailboxCommands
{
public:
    explicit MailboxCommands(DriverHost& host)
        : mHost(host)
    {
    }

    void AddTo(CommandTable& table);

private:
    Json Folders();
    Json AddFolder(const Request& request);
    Json DeleteFolder(const Request& request);
    Json RenameFolder(const Request& request);
    Json MoveFolder(const Request& request);
    Json Items(const Request& request);
    Json CreateItem(const Request& request);
    Json ChangeItem(const Request& request);
    Json DeleteItem(const Request& request);
    Json Views(const Request& request);
    Json DeleteView(const Request& request);
    Json SetView(const Request& request);
    Json Mails();

    /// The folder that a field names by its path.
    Ref<MAPIFolder> Folder(const Request& request, const std::string& field) const;
    Ref<StoreItem> Item(const Request& request) const;
    /// An item as it is stored, whatever was changed in it since.
    Json StoredJson(const Ref<StoreItem>& item) const;

    DriverHost& mHost;
};

}
