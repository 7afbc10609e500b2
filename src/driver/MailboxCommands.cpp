#include "driver/MailboxCommands.h"

#include "driver/RequestError.h"
#include "host/store/FoldersBelow.h"
#include "host/store/StoreFolder.h"
#include "host/windows/Person.h"
#include "platform/objectmodel/Folders.h"
#include "platform/objectmodel/Items.h"
#include "platform/objectmodel/Views.h"
#include "session/ActivityGesture.h"
#include "session/WorkLogFolder.h"
#include "terminal/ItemJson.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace tempodial {

namespace {

ViewType ToViewType(std::int32_t number)
{
    for (const auto type : { ViewType::Table, ViewType::Calendar }) {
        if (number == static_cast<std::int32_t>(type)) {
            return type;
        }
    }
    throw RequestError("there is no view of type " + std::to_string(number) + ": give 0 for a table, 2 for a calendar");
}

/// Gives an item a property, of the type that its form gives it, else of the one that its value has.
void SetProperty(StoreItem& item, const std::string& name, const Json& value)
{
    const auto* known = FindProperty(item.Data().properties, name);
    const auto type = known != nullptr ? known->type
        : name == "Day"                ? PropertyType::DateTime
        : value.is_boolean()           ? PropertyType::YesNo
                                       : PropertyType::Text;
    if (type == PropertyType::YesNo ? !value.is_boolean() : !value.is_string()) {
        throw RequestError("the property \"" + name + "\" can't be " + value.dump());
    }
    const auto property = item.UserProperties()->Add(name, type, true);
    if (type == PropertyType::YesNo) {
        property->SetValue(value.get<bool>());
    } else if (type == PropertyType::DateTime) {
        property->SetValue(Request::ToMoment(name, value.get<std::string>()));
    } else {
        property->SetValue(value.get<std::string>());
    }
}

}

void MailboxCommands::AddTo(CommandTable& table)
{
    table["folders"] = [this](const Request&) { return Folders(); };
    table["folder.add"] = [this](const Request& request) { return AddFolder(request); };
    table["folder.delete"] = [this](const Request& request) { return DeleteFolder(request); };
    table["folder.rename"] = [this](const Request& request) { return RenameFolder(request); };
    table["folder.move"] = [this](const Request& request) { return MoveFolder(request); };
    table["items"] = [this](const Request& request) { return Items(request); };
    table["item.create"] = [this](const Request& request) { return CreateItem(request); };
    table["item.change"] = [this](const Request& request) { return ChangeItem(request); };
    table["item.delete"] = [this](const Request& request) { return DeleteItem(request); };
    table["views"] = [this](const Request& request) { return Views(request); };
    table["view.delete"] = [this](const Request& request) { return DeleteView(request); };
    table["view.set"] = [this](const Request& request) { return SetView(request); };
    table["mails"] = [this](const Request&) { return Mails(); };
}

Json MailboxCommands::Folders()
{
    auto list = Json::array();
    for (const auto& folder : FoldersBelow(mHost.Mailbox()->FolderByPath(""))) {
        list.push_back({ { "path", mHost.Mailbox()->PathOf(folder) }, { "entryId", folder->EntryID() },
            { "items", folder->Items()->Count() } });
    }
    return { { "folders", list } };
}

Json MailboxCommands::AddFolder(const Request& request)
{
    const auto path = request.Text("path");
    const auto slash = path.rfind('/');
    const auto parent = mHost.Folder(slash == std::string::npos ? "" : path.substr(0, slash));
    parent->Folders()->Add(path.substr(slash + 1), parent.As<StoreFolder>()->Kind());
    return Json::object();
}

Json MailboxCommands::DeleteFolder(const Request& request)
{
    mHost.Mailbox()->DeleteFolder(Folder(request, "path"));
    return Json::object();
}

Json MailboxCommands::RenameFolder(const Request& request)
{
    mHost.Mailbox()->RenameFolder(Folder(request, "path"), request.Text("name"));
    return Json::object();
}

Json MailboxCommands::MoveFolder(const Request& request)
{
    mHost.Mailbox()->MoveFolder(Folder(request, "path"), Folder(request, "to"));
    return Json::object();
}

Json MailboxCommands::Items(const Request& request)
{
    auto list = Json::array();
    const auto folder = request.Has("folder") ? Folder(request, "folder") : WorkLogOf(mHost.Profile());
    if (folder) {
        const auto items = folder->Items();
        items->Sort("[Start]", false);
        const auto count = items->Count();
        for (std::int32_t i = 1; i <= count; ++i) {
            list.push_back(StoredJson(items->Item(i).As<StoreItem>()));
        }
    }
    return { { "items", list } };
}

Json MailboxCommands::CreateItem(const Request& request)
{
    const auto folder = Folder(request, "folder");
    ItemData data { .messageClass = request.Text("messageClass", "IPM.Appointment"),
        .subject = request.Text("subject", ""),
        .start = request.Moment("start"),
        .end = request.Moment("end"),
        .body = request.Text("body", "") };
    if (data.end < data.start) {
        throw RequestError("an item can't end before it starts");
    }
    if (const auto* form = mHost.Mailbox()->FormOf(data.messageClass)) {
        data.properties = form->fields;
    }
    const auto item = mHost.Mailbox()->NewItem(folder, std::move(data));
    if (request.Has("properties")) {
        for (const auto& [name, value] : request.Object("properties").items()) {
            SetProperty(*item, name, value);
        }
    }
    GestureAsStep(mHost.Profile(), { item }, "New", [&] { item->SaveAsPerson(); });
    return { { "entryId", item->EntryID() } };
}

Json MailboxCommands::ChangeItem(const Request& request)
{
    if (!request.Has("start") && !request.Has("end")) {
        throw RequestError(R"(give the field "start", the field "end" or both)");
    }
    const auto item = Item(request);
    const auto start = request.Has("start") ? request.Moment("start") : item->Start();
    const auto end
        = request.Has("end") ? request.Moment("end") : start.AddSeconds(SecondsBetween(item->Start(), item->End()));
    if (!mHost.Hand().Reschedule(item, start, end)) {
        throw RequestError("the change was refused");
    }
    return Json::object();
}

Json MailboxCommands::DeleteItem(const Request& request)
{
    mHost.Hand().Delete(Item(request));
    return Json::object();
}

Json MailboxCommands::Views(const Request& request)
{
    auto list = Json::array();
    const auto views = Folder(request, "folder")->Views();
    const auto count = views->Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        const auto view = views->Item(i);
        list.push_back({ { "name", view->Name() }, { "type", static_cast<std::int32_t>(view->ViewType()) },
            { "xml", view->XML() } });
    }
    return { { "views", list } };
}

Json MailboxCommands::DeleteView(const Request& request)
{
    mHost.Mailbox()->DeleteView(Folder(request, "folder"), request.Text("name"));
    return Json::object();
}

Json MailboxCommands::SetView(const Request& request)
{
    const auto folder = Folder(request, "folder");
    const auto name = request.Text("name");
    const auto type = ToViewType(request.Number("type", static_cast<std::int32_t>(ViewType::Table)));
    if (request.Has("xml")) {
        mHost.Mailbox()->SetView(folder, name, type, request.Text("xml"));
    } else if (!folder->Views()->ItemNamed(name)) {
        folder->Views()->Add(name, type, ViewSaveOption::ThisFolderEveryone)->Save();
    }
    return Json::object();
}

Json MailboxCommands::Mails()
{
    auto list = Json::array();
    if (mHost.Session().IsStarted()) {
        const auto& windows = mHost.Windows();
        const auto shown = windows.Mails();
        for (const auto& mail : windows.MadeMails()) {
            auto attachments = Json::array();
            for (const auto& file : mail->Draft().attachments) {
                attachments.push_back(
                    { { "name", file.name }, { "size", file.content.size() }, { "text", file.content } });
            }
            list.push_back({ { "mail", mail->Number() }, { "subject", mail->Subject() }, { "body", mail->Body() },
                { "html", mail->HTMLBody() }, { "recipients", mail->Draft().recipients },
                { "displayed", std::find(shown.begin(), shown.end(), mail) != shown.end() },
                { "attachments", attachments } });
        }
    }
    return { { "mails", list } };
}

Ref<MAPIFolder> MailboxCommands::Folder(const Request& request, const std::string& field) const
{
    return mHost.Folder(request.Text(field));
}

Ref<StoreItem> MailboxCommands::Item(const Request& request) const
{
    return mHost.Item(request.Text("entryId"));
}

Json MailboxCommands::StoredJson(const Ref<StoreItem>& item) const
{
    const auto& mailbox = mHost.Mailbox();
    auto json = ItemJson(item->Number(), mailbox->NewItem(item->Parent(), mailbox->Stored(item))).Value();
    json["entryId"] = item->EntryID();
    return json;
}

}
