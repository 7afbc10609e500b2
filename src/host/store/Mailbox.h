#pragma once

#include "base/Ref.h"
#include "host/store/DraftTable.h"
#include "host/store/FormTemplate.h"
#include "host/store/ItemData.h"
#include "host/store/ProjectChoice.h"
#include "host/store/SaveStatistics.h"
#include "platform/objectmodel/NameSpace.h"
#include "platform/objectmodel/Views.h"
#include "platform/system/LocaleFormats.h"
#include "platform/system/XmlDocument.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tempodial {

class MailboxStore;
class StoreFolder;
class StoreItem;

/// A mailbox in one file, or in memory, as a host works with it. It is used from one thread, and stays open until the
/// last object that came from it is gone.
class Mailbox final
{
public:
    /// Opens the mailbox of a file, making a new one where there is none, or a new one in memory for ":memory:". Throws
    /// `MailboxError` for a file that is no mailbox, damaged, of a newer version or not to be used.
    static Ref<Mailbox> Open(const std::string& path, Ref<LocaleFormats> formats, Ref<XmlFactory> xml);

    explicit Mailbox(Ref<MailboxStore> store);

    /// The session that shows this mailbox as its one store.
    Ref<tempodial::NameSpace> NameSpace();
    /// The folder of a path below the store, names joined by "/"; an unknown one fails (-2147221233).
    Ref<MAPIFolder> FolderByPath(const std::string& path);
    /// The path of a folder below the store, names joined by "/".
    std::string PathOf(const Ref<MAPIFolder>& folder);
    /// The mailbox's own object for a folder, which may come from elsewhere; one that is gone fails (-2147221233).
    Ref<StoreFolder> Own(const Ref<MAPIFolder>& folder);
    /// Renames a folder; fails (457) for a name in use, (5) for one that isn't allowed.
    void RenameFolder(const Ref<MAPIFolder>& folder, const std::string& name);
    /// Moves a folder below another; fails as `RenameFolder` does, and (5) for a move below itself.
    void MoveFolder(const Ref<MAPIFolder>& folder, const Ref<MAPIFolder>& parent);
    /// Deletes a folder with all that is in it, for good.
    void DeleteFolder(const Ref<MAPIFolder>& folder);
    /// A stored item by its identity; an unknown one fails (-2147221233).
    Ref<StoreItem> ItemById(const std::string& entryId);
    /// A new unsaved item with everything in it as given.
    Ref<StoreItem> NewItem(const Ref<MAPIFolder>& folder, ItemData data);
    /// A new unsaved item of a form, which it describes.
    Ref<StoreItem> NewItem(const Ref<MAPIFolder>& folder, const FormTemplate& form);
    /// What was last saved of an item, whatever its object holds; fails (-2147221233) when nothing is stored.
    ItemData Stored(const Ref<StoreItem>& item);
    /// Gives a folder's view a definition and saves it, making an absent one.
    void SetView(const Ref<MAPIFolder>& folder, const std::string& name, ViewType type, const std::string& xml);
    /// Deletes a view; an unknown name fails (-2147221233).
    void DeleteView(const Ref<MAPIFolder>& folder, const std::string& name);
    /// The form that shows items of a message class: its own, or that of the nearest class it derives from; null when
    /// they have none but the ordinary one.
    const FormTemplate* FormOf(const std::string& messageClass) const;
    /// The mails that were kept to be sent later.
    DraftTable& Drafts();
    /// The identity of such a mail.
    std::string DraftId(std::int64_t row) const;

    /// What was saved since the last mark.
    const SaveStatistics& Statistics() const;
    /// Begins to count anew.
    void MarkStatistics();
    /// Called to ask for the present moment in UTC at each save; without it no item knows when it was saved.
    void SetClock(std::function<Date()> clock);
    /// Does work in which the projects of saved items are chosen so; otherwise rules choose them.
    void ChoosingProjects(ProjectChoice choice, const std::function<void()>& work);
    /// Called when an item is to be shown in a window of its own.
    void SetDisplay(std::function<void(const Ref<StoreItem>& item)> display);
    /// Makes durable what an import holds, with the position that it has reached, as is due when a person has saved
    /// something; does nothing when nothing is held. A failure undoes what was held.
    void CommitHeld();
    /// Tells of the items that arrived, and of those that arrive meanwhile; does nothing within itself. Called whenever
    /// the host is idle, pumps events or comes back from the add-in.
    void DeliverEvents();

    /// What the mailbox's own objects share; nothing outside of this folder needs it.
    const Ref<MailboxStore>& Store() const { return mStore; }

private:
    Ref<MailboxStore> mStore;
};

}
