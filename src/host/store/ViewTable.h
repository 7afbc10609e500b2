#pragma once

#include "platform/objectmodel/Views.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace tempodial {

class MailboxDatabase;

/// The views of all folders. One that was added and never saved is known as long as the mailbox is open.
class ViewTable
{
public:
    struct Entry
    {
        std::string name;
        ViewType type = ViewType::Table;
        std::string xml;
        /// True once it is in the file.
        bool saved = false;
    };

    explicit ViewTable(MailboxDatabase& database);

    /// The views of a folder in the order in which they were made.
    const std::vector<Entry>& Of(std::int64_t folder);
    /// The view of that name, case ignored; null when there is none. Valid until the next change.
    const Entry* Find(std::int64_t folder, const std::string& name);
    /// Adds a view without saving it; fails (457) for a name in use, (5) for an empty one.
    void Add(std::int64_t folder, const std::string& name, ViewType type);
    /// Saves a view with a definition, making an absent one; fails as `Add` does but for a name in use.
    void Set(std::int64_t folder, const std::string& name, ViewType type, const std::string& xml);
    /// Saves a view with a definition; fails (-2147221233) when it is gone.
    void Save(std::int64_t folder, const std::string& name, const std::string& xml);
    /// Deletes a view; fails (-2147221233) when there is none of that name.
    void Delete(std::int64_t folder, const std::string& name);
    /// Forgets what was read from the file, and views that weren't saved.
    void Forget();
    /// Changes of views so far.
    std::int64_t Changes() const { return mChanges; }

private:
    std::vector<Entry>& Load(std::int64_t folder);
    Entry& Get(std::int64_t folder, const std::string& name);
    void Write(std::int64_t folder, const Entry& view);

    MailboxDatabase& mDatabase;
    std::map<std::int64_t, std::vector<Entry>> mViews;
    std::int64_t mChanges = 0;
};

}
