#pragma once

#include "base/Ref.h"

#include <cstdint>
#include <string>

namespace tempodial {

class Folders;
class Items;
class Views;

/// Outlook's numbers for the default folders.
enum class DefaultFolder : std::int32_t { Inbox = 6, Calendar = 9, Drafts = 16 };

/// A folder of a mailbox. Every member fails with the store's error when the folder is gone.
class MAPIFolder
{
public:
    virtual ~MAPIFolder() = default;

    /// The identity, stable across rename and move.
    virtual std::string EntryID() const = 0;
    virtual std::string Name() const = 0;
    /// Two backslashes, then the names from the store down with one backslash between.
    virtual std::string FullFolderPath() const = 0;
    virtual Ref<tempodial::Folders> Folders() = 0;
    /// The items; each call gives a collection of its own.
    virtual Ref<tempodial::Items> Items() = 0;
    virtual Ref<tempodial::Views> Views() = 0;
};

}
