#pragma once

#include "base/Ref.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// Outlook's numbers for kinds of views.
enum class ViewType : std::int32_t { Table = 0, Calendar = 2 };

/// For whom a view is saved.
enum class ViewSaveOption : std::int32_t { ThisFolderEveryone = 0 };

/// A named view of a folder.
class View
{
public:
    virtual ~View() = default;

    virtual std::string Name() const = 0;
    virtual tempodial::ViewType ViewType() const = 0;
    /// The definition, an XML document with root `view`.
    virtual std::string XML() const = 0;
    /// Sets the definition, kept from the next `Save` on; a text that is no view definition fails (5).
    virtual void SetXML(const std::string& xml) = 0;
    virtual void Save() = 0;
};

/// The views of a folder.
class Views
{
public:
    virtual ~Views() = default;

    virtual std::int32_t Count() = 0;
    /// The view at a position from 1; out of range fails (9).
    virtual Ref<View> Item(std::int32_t index) = 0;
    /// The view of a name; nothing when there is none.
    virtual Ref<View> ItemNamed(const std::string& name) = 0;
    /// Adds a view, to be saved; a name in use fails.
    virtual Ref<View> Add(const std::string& name, ViewType type, ViewSaveOption option) = 0;
};

}
