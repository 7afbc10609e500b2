#include "faults/Interposed.h"
#include "faults/Wrapped.h"

namespace tempodial {

template <> struct ClassNames<Explorers>
{
    static constexpr std::string_view All[] { "Explorers" };
};
template <> struct ClassNames<Explorer>
{
    static constexpr std::string_view All[] { "Explorer" };
};
template <> struct ClassNames<Inspectors>
{
    static constexpr std::string_view All[] { "Inspectors" };
};
template <> struct ClassNames<Inspector>
{
    static constexpr std::string_view All[] { "Inspector" };
};
template <> struct ClassNames<Pages>
{
    static constexpr std::string_view All[] { "Pages" };
};
template <> struct ClassNames<Page>
{
    static constexpr std::string_view All[] { "Page" };
};
template <> struct ClassNames<PageControls>
{
    static constexpr std::string_view All[] { "PageControls" };
};
template <> struct ClassNames<PageControl>
{
    static constexpr std::string_view All[] { "PageControl" };
};

namespace {

class InterposedExplorers final : public Interposed<Explorers>
{
public:
    using Interposed::Interposed;

    std::int32_t Count() override { return Call("Count", &Object::Count); }
    Ref<Explorer> Item(std::int32_t index) override
    {
        return Wrap(Call({ "Item", std::to_string(index) }, &Object::Item, index));
    }
    Subscription Subscribe(ExplorersEvents events) override
    {
        return Call("Subscribe", &Object::Subscribe,
            ExplorersEvents {
                .NewExplorer = [interposer = Between(), opened = std::move(events.NewExplorer)](const auto& explorer) {
                    if (opened) {
                        opened(Wrapped(explorer, interposer));
                    }
                } });
    }
};

class InterposedExplorer final : public Interposed<Explorer>
{
public:
    using Interposed::Interposed;

    std::string Caption() const override { return Call("Caption", &Object::Caption); }
    Ref<MAPIFolder> CurrentFolder() override { return Wrap(Call("CurrentFolder", &Object::CurrentFolder)); }
    void SetCurrentFolder(const Ref<MAPIFolder>& folder) override
    {
        Set("CurrentFolder", &Object::SetCurrentFolder, Unwrapped(folder));
    }
    std::string CurrentView() override { return Call("CurrentView", &Object::CurrentView); }
    void SetCurrentView(const std::string& name) override
    {
        Set({ "CurrentView", name }, &Object::SetCurrentView, name);
    }
    Ref<tempodial::Selection> Selection() override { return Wrap(Call("Selection", &Object::Selection)); }
    bool IsFolderSelected(const Ref<MAPIFolder>& folder) override
    {
        return Call("IsFolderSelected", &Object::IsFolderSelected, Unwrapped(folder));
    }
    Ref<tempodial::CommandBars> CommandBars() override { return Wrap(Call("CommandBars", &Object::CommandBars)); }
    Subscription Subscribe(ExplorerEvents events) override
    {
        return Call("Subscribe", &Object::Subscribe, std::move(events));
    }
};

class InterposedInspectors final : public Interposed<Inspectors>
{
public:
    using Interposed::Interposed;

    std::int32_t Count() override { return Call("Count", &Object::Count); }
    Ref<Inspector> Item(std::int32_t index) override
    {
        return Wrap(Call({ "Item", std::to_string(index) }, &Object::Item, index));
    }
    Subscription Subscribe(InspectorsEvents events) override
    {
        return Call("Subscribe", &Object::Subscribe,
            InspectorsEvents { .NewInspector
                = [interposer = Between(), opened = std::move(events.NewInspector)](const auto& inspector) {
                      if (opened) {
                          opened(Wrapped(inspector, interposer));
                      }
                  } });
    }
};

class InterposedInspector final : public Interposed<Inspector>
{
public:
    using Interposed::Interposed;

    std::string Caption() const override { return Call("Caption", &Object::Caption); }
    Ref<OutlookItem> CurrentItem() override { return Wrap(Call("CurrentItem", &Object::CurrentItem)); }
    Ref<tempodial::CommandBars> CommandBars() override { return Wrap(Call("CommandBars", &Object::CommandBars)); }
    Ref<Pages> ModifiedFormPages() override { return Wrap(Call("ModifiedFormPages", &Object::ModifiedFormPages)); }
    Subscription Subscribe(InspectorEvents events) override
    {
        return Call("Subscribe", &Object::Subscribe, std::move(events));
    }
};

class InterposedPages final : public Interposed<Pages>
{
public:
    using Interposed::Interposed;

    Ref<Page> Item(const std::string& name) override { return Wrap(Call({ "Item", name }, &Object::Item, name)); }
};

class InterposedPage final : public Interposed<Page>
{
public:
    using Interposed::Interposed;

    Ref<PageControls> Controls() override { return Wrap(Call("Controls", &Object::Controls)); }
};

class InterposedPageControl final : public Interposed<PageControl>
{
public:
    InterposedPageControl(Ref<PageControl> target, Ref<Interposer> interposer, std::string name)
        : Interposed(std::move(target), std::move(interposer))
        , mName(std::move(name))
    {
    }

    Variant Value() const override { return Call({ "Value", mName }, &Object::Value); }
    void SetValue(const Variant& value) override { Set({ "Value", mName }, &Object::SetValue, value); }
    std::string Text() const override { return Call({ "Text", mName }, &Object::Text); }
    void SetText(const std::string& text) override { Set({ "Text", mName }, &Object::SetText, text); }
    void SetList(const std::vector<std::string>& list) override { Set({ "List", mName }, &Object::SetList, list); }
    void AddItem(const std::string& text) override { Call({ "AddItem", mName }, &Object::AddItem, text); }

private:
    std::string mName;
};

class InterposedPageControls final : public Interposed<PageControls>
{
public:
    using Interposed::Interposed;

    Ref<PageControl> Item(const std::string& name) override
    {
        return Named<InterposedPageControl>(Call({ "Item", name }, &Object::Item, name), name);
    }
};

}

Ref<Explorers> Wrapped(const Ref<Explorers>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedExplorers>(object, interposer);
}

Ref<Explorer> Wrapped(const Ref<Explorer>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedExplorer>(object, interposer);
}

Ref<Inspectors> Wrapped(const Ref<Inspectors>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedInspectors>(object, interposer);
}

Ref<Inspector> Wrapped(const Ref<Inspector>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedInspector>(object, interposer);
}

Ref<Pages> Wrapped(const Ref<Pages>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedPages>(object, interposer);
}

Ref<Page> Wrapped(const Ref<Page>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedPage>(object, interposer);
}

Ref<PageControls> Wrapped(const Ref<PageControls>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedPageControls>(object, interposer);
}

}
