#include "host/store/ViewTable.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "host/store/MailboxDatabase.h"
#include "host/store/MailboxSchema.h"
#include "host/store/Query.h"

#include <algorithm>

namespace tempodial {

namespace {

void CheckName(const std::string& name)
{
    if (Trim(name).empty()) {
        throw Failure(Error::InvalidCall, "A view needs a name");
    }
}

}

ViewTable::ViewTable(MailboxDatabase& database)
    : mDatabase(database)
{
}

const std::vector<ViewTable::Entry>& ViewTable::Of(std::int64_t folder)
{
    return Load(folder);
}

const ViewTable::Entry* ViewTable::Find(std::int64_t folder, const std::string& name)
{
    const auto& views = Load(folder);
    const auto view = std::find_if(
        views.begin(), views.end(), [&](const Entry& candidate) { return EqualIgnoringCase(candidate.name, name); });
    return view == views.end() ? nullptr : &*view;
}

void ViewTable::Add(std::int64_t folder, const std::string& name, ViewType type)
{
    CheckName(name);
    if (Find(folder, name) != nullptr) {
        throw Failure(Error::KeyExists, "There is a view named \"" + name + "\" already");
    }
    const auto kind = type == ViewType::Calendar ? DefaultFolder::Calendar : DefaultFolder::Inbox;
    Load(folder).push_back({ name, type, MailboxSchema::ViewDefinition(kind, name), false });
    ++mChanges;
}

void ViewTable::Set(std::int64_t folder, const std::string& name, ViewType type, const std::string& xml)
{
    if (Find(folder, name) != nullptr) {
        Save(folder, name, xml);
        return;
    }
    CheckName(name);
    const Entry view { name, type, xml, true };
    Write(folder, view);
    Load(folder).push_back(view);
}

void ViewTable::Save(std::int64_t folder, const std::string& name, const std::string& xml)
{
    auto& view = Get(folder, name);
    if (view.saved && view.xml == xml) {
        return;
    }
    const Entry changed { view.name, view.type, xml, true };
    Write(folder, changed);
    view = changed;
}

void ViewTable::Delete(std::int64_t folder, const std::string& name)
{
    const auto known = Get(folder, name).name;
    mDatabase.CheckWhole();
    Query(mDatabase, "DELETE FROM view WHERE folder = ? AND name = ?").Bind(folder).Bind(known).Run();
    std::erase_if(Load(folder), [&](const Entry& view) { return view.name == known; });
    ++mChanges;
}

void ViewTable::Forget()
{
    mViews.clear();
    ++mChanges;
}

std::vector<ViewTable::Entry>& ViewTable::Load(std::int64_t folder)
{
    if (const auto known = mViews.find(folder); known != mViews.end()) {
        return known->second;
    }
    std::vector<Entry> views;
    Query query(mDatabase, "SELECT name, type, xml FROM view WHERE folder = ? ORDER BY id");
    query.Bind(folder);
    while (query.Step()) {
        views.push_back({ query.Text(0), static_cast<ViewType>(query.Int(1)), query.Text(2), true });
    }
    return mViews[folder] = std::move(views);
}

ViewTable::Entry& ViewTable::Get(std::int64_t folder, const std::string& name)
{
    const auto* view = Find(folder, name);
    if (view == nullptr) {
        throw Failure(Error::ObjectNotFound);
    }
    return const_cast<Entry&>(*view);
}

void ViewTable::Write(std::int64_t folder, const Entry& view)
{
    mDatabase.CheckWhole();
    Query(mDatabase,
        "INSERT INTO view (folder, name, type, xml) VALUES (?, ?, ?, ?) "
        "ON CONFLICT (folder, name) DO UPDATE SET xml = excluded.xml")
        .Bind(folder)
        .Bind(view.name)
        .Bind(static_cast<std::int64_t>(view.type))
        .Bind(view.xml)
        .Run();
    ++mChanges;
}

}
