#pragma once

#include "base/Ref.h"
#include "base/Variant.h"

#include <string>
#include <vector>

namespace tempodial {

/// A control of a form's page: a text box, a combo box or a check box. One bound to a field reads and writes the item.
class PageControl
{
public:
    virtual ~PageControl() = default;

    /// The value: a text, a boolean, or the moment of a field that holds one, which may be a text of the locale too.
    virtual Variant Value() const = 0;
    /// Sets the value; one that the field can't take fails (13).
    virtual void SetValue(const Variant& value) = 0;
    /// The value as the control shows it.
    virtual std::string Text() const = 0;
    virtual void SetText(const std::string& text) = 0;
    /// Sets the entries of a combo box; another control fails (438).
    virtual void SetList(const std::vector<std::string>& list) = 0;
    /// Appends an entry to a combo box; another control fails (438).
    virtual void AddItem(const std::string& text) = 0;
};

/// The controls of a page.
class PageControls
{
public:
    virtual ~PageControls() = default;

    /// The control of a name, case ignored; an unknown name fails (-2147221233).
    virtual Ref<PageControl> Item(const std::string& name) = 0;
};

/// A page of a form of one's own.
class Page
{
public:
    virtual ~Page() = default;

    virtual Ref<PageControls> Controls() = 0;
};

/// The pages that a form has of its own.
class Pages
{
public:
    virtual ~Pages() = default;

    /// The page of a name; an unknown name fails (-2147221233).
    virtual Ref<Page> Item(const std::string& name) = 0;
};

}
