#include "host/store/FolderTree.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "host/store/EntryIds.h"
#include "host/store/MailboxDatabase.h"
#include "host/store/MailboxSchema.h"
#include "host/store/Query.h"
#include "platform/objectmodel/Views.h"

#include <algorithm>

namespace tempodial {

FolderTree::FolderTree(MailboxDatabase& database)
    : mDatabase(database)
{
    Load();
}

void FolderTree::Load()
{
    std::unordered_map<std::int64_t, Node> nodes;
    std::unordered_map<std::int32_t, std::int64_t> defaults;
    nodes[0] = {};
    // A moved folder can stand below a younger one, so parents are found in a second walk.
    std::vector<std::int64_t> order;
    Query folders(mDatabase, "SELECT id, ifnull(parent, 0), name, kind, role FROM folder ORDER BY id");
    while (folders.Step()) {
        const auto folder = folders.Int(0);
        if (folder < 1 || folder > EntryIds::LastRow || nodes.contains(folder)) {
            FailDamaged();
        }
        auto& node = nodes[folder];
        node.parent = folders.Int(1);
        node.name = folders.Text(2);
        node.kind = static_cast<DefaultFolder>(folders.Int(3));
        if (!folders.IsNull(4)) {
            defaults[static_cast<std::int32_t>(folders.Int(4))] = folder;
        }
        order.push_back(folder);
    }
    for (const auto folder : order) {
        nodes[nodes[folder].parent].children.push_back(folder);
    }
    Query fields(mDatabase, "SELECT folder, name, type FROM folder_field");
    while (fields.Step()) {
        nodes[fields.Int(0)].fields.push_back({ fields.Text(1), static_cast<PropertyType>(fields.Int(2)), {} });
    }
    mNodes = std::move(nodes);
    ++mChanges;
    mDefaults = std::move(defaults);
    // Nothing leads to a parent or a folder that isn't there, nor into a circle of parents.
    if (Get(0).children.size() != 1 || Subtree(0).size() != mNodes.size()) {
        FailDamaged();
    }
}

const FolderTree::Node& FolderTree::Get(std::int64_t folder) const
{
    const auto known = mNodes.find(folder);
    if (known == mNodes.end()) {
        throw Failure(Error::ObjectNotFound);
    }
    return known->second;
}

std::int64_t FolderTree::Child(std::int64_t folder, const std::string& name) const
{
    const auto& children = Get(folder).children;
    const auto child = std::find_if(children.begin(), children.end(),
        [&](std::int64_t candidate) { return EqualIgnoringCase(Get(candidate).name, name); });
    return child == children.end() ? 0 : *child;
}

std::int64_t FolderTree::Default(DefaultFolder kind) const
{
    const auto known = mDefaults.find(static_cast<std::int32_t>(kind));
    return known == mDefaults.end() ? 0 : known->second;
}

std::string FolderTree::FullPath(std::int64_t folder) const
{
    std::string path;
    for (auto at = folder; at != 0; at = Get(at).parent) {
        path.insert(0, "\\" + Get(at).name);
    }
    return "\\" + path;
}

std::vector<std::int64_t> FolderTree::Subtree(std::int64_t folder) const
{
    std::vector<std::int64_t> subtree = { folder };
    for (std::size_t next = 0; next < subtree.size(); ++next) {
        const auto& children = Get(subtree[next]).children;
        subtree.insert(subtree.end(), children.begin(), children.end());
    }
    return subtree;
}

std::int64_t FolderTree::Add(std::int64_t parent, const std::string& name, DefaultFolder kind)
{
    CheckName(parent, name, 0);
    // The folder's items are appointments or messages; there are no other kinds.
    const auto itemKind = kind == DefaultFolder::Calendar ? DefaultFolder::Calendar : DefaultFolder::Inbox;
    const auto viewType = itemKind == DefaultFolder::Calendar ? ViewType::Calendar : ViewType::Table;
    std::int64_t folder = 0;
    mDatabase.Atomically([&] {
        Query(mDatabase, "INSERT INTO folder (parent, name, folded_name, kind) VALUES (?, ?, ?, ?)")
            .Bind(parent)
            .Bind(name)
            .Bind(Fold(name))
            .Bind(static_cast<std::int64_t>(itemKind))
            .Run();
        folder = mDatabase.Number("SELECT last_insert_rowid()");
        Query(mDatabase, "INSERT INTO view (folder, name, type, xml) VALUES (?, ?, ?, ?)")
            .Bind(folder)
            .Bind(MailboxSchema::FirstViewName(itemKind))
            .Bind(static_cast<std::int64_t>(viewType))
            .Bind(MailboxSchema::ViewDefinition(itemKind, MailboxSchema::FirstViewName(itemKind)))
            .Run();
    });
    mNodes[folder] = { parent, name, itemKind, {}, {} };
    Change(parent).children.push_back(folder);
    ++mChanges;
    return folder;
}

void FolderTree::Rename(std::int64_t folder, const std::string& name)
{
    CheckNotStore(folder);
    CheckName(Get(folder).parent, name, folder);
    mDatabase.CheckWhole();
    Query(mDatabase, "UPDATE folder SET name = ?, folded_name = ? WHERE id = ?")
        .Bind(name)
        .Bind(Fold(name))
        .Bind(folder)
        .Run();
    Change(folder).name = name;
    ++mChanges;
}

void FolderTree::Move(std::int64_t folder, std::int64_t parent)
{
    CheckNotStore(folder);
    CheckName(parent, Get(folder).name, folder);
    const auto subtree = Subtree(folder);
    if (std::find(subtree.begin(), subtree.end(), parent) != subtree.end()) {
        throw Failure(Error::InvalidCall, "A folder can't be moved below itself");
    }
    mDatabase.CheckWhole();
    Query(mDatabase, "UPDATE folder SET parent = ? WHERE id = ?").Bind(parent).Bind(folder).Run();
    std::erase(Change(Get(folder).parent).children, folder);
    auto& siblings = Change(parent).children;
    siblings.insert(std::upper_bound(siblings.begin(), siblings.end(), folder), folder);
    Change(folder).parent = parent;
    ++mChanges;
}

void FolderTree::Delete(std::int64_t folder, const std::function<void()>& preparation)
{
    CheckNotStore(folder);
    const auto subtree = Subtree(folder);
    mDatabase.Atomically([&] {
        preparation();
        Query(mDatabase, "DELETE FROM folder WHERE id = ?").Bind(folder).Run();
    });
    std::erase(Change(Get(folder).parent).children, folder);
    for (const auto gone : subtree) {
        mNodes.erase(gone);
        std::erase_if(mDefaults, [&](const auto& known) { return known.second == gone; });
    }
    ++mChanges;
}

void FolderTree::AddField(std::int64_t folder, const std::string& name, PropertyType type)
{
    auto& fields = Change(folder).fields;
    if (FindProperty(fields, name) != nullptr) {
        return;
    }
    mDatabase.CheckWhole();
    Query(mDatabase, "INSERT INTO folder_field (folder, name, type) VALUES (?, ?, ?)")
        .Bind(folder)
        .Bind(name)
        .Bind(static_cast<std::int64_t>(type))
        .Run();
    fields.push_back({ name, type, {} });
}

FolderTree::Node& FolderTree::Change(std::int64_t folder)
{
    return const_cast<Node&>(Get(folder));
}

void FolderTree::FailDamaged() const
{
    throw Failure(Error::Automation, "The mailbox " + mDatabase.Path() + " is damaged");
}

void FolderTree::CheckName(std::int64_t parent, const std::string& name, std::int64_t except) const
{
    const bool control = std::any_of(
        name.begin(), name.end(), [](char character) { return static_cast<unsigned char>(character) < 0x20; });
    if (Trim(name).empty() || control || name.find_first_of("/\\") != std::string::npos) {
        throw Failure(Error::InvalidCall, "A folder can't be named \"" + name + "\"");
    }
    if (parent == 0) {
        throw Failure(Error::InvalidCall, "The mailbox has one store only");
    }
    const auto namesake = Child(parent, name);
    if (namesake != 0 && namesake != except) {
        throw Failure(Error::KeyExists, "There is a folder named \"" + name + "\" already");
    }
}

void FolderTree::CheckNotStore(std::int64_t folder) const
{
    if (Get(folder).parent == 0) {
        throw Failure(Error::InvalidCall, "The store itself can't be changed");
    }
}

}
