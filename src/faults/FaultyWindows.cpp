#include "faults/Faulty.h"
#include "faults/Wrapped.h"

namespace tempodial {

template <> struct FaultNames<Explorers>
{
    static constexpr std::string_view All[] { "Explorers" };
};
template <> struct FaultNames<Explorer>
{
    static constexpr std::string_view All[] { "Explorer" };
};
template <> struct FaultNames<Inspectors>
{
    static constexpr std::string_view All[] { "Inspectors" };
};
template <> struct FaultNames<Inspector>
{
    static constexpr std::string_view All[] { "Inspector" };
};
template <> struct FaultNames<Pages>
{
    static constexpr std::string_view All[] { "Pages" };
};
template <> struct FaultNames<Page>
{
    static constexpr std::string_view All[] { "Page" };
};
template <> struct FaultNames<PageControls>
{
    static constexpr std::string_view All[] { "PageControls" };
};
template <> struct FaultNames<PageControl>
{
    static constexpr std::string_view All[] { "PageControl" };
};

namespace {

class FaultyExplorers final : public Faulty<Explorers>
{
public:
    using Faulty::Faulty;

    std::int32_t Count() override { return Call("Count")->Count(); }
    Ref<Explorer> Item(std::int32_t index) override { return Wrap(Call("Item", std::to_string(index))->Item(index)); }
    Subscription Subscribe(ExplorersEvents events) override
    {
        auto* target = Call("Subscribe");
        return target->Subscribe(
            { .NewExplorer = [plan = Plan(), opened = std::move(events.NewExplorer)](const auto& explorer) {
                if (opened) {
                    opened(Wrapped(explorer, plan));
                }
            } });
    }
};

class FaultyExplorer final : public Faulty<Explorer>
{
public:
    using Faulty::Faulty;

    std::string Caption() const override { return Call("Caption")->Caption(); }
    Ref<MAPIFolder> CurrentFolder() override { return Wrap(Call("CurrentFolder")->CurrentFolder()); }
    void SetCurrentFolder(const Ref<MAPIFolder>& folder) override
    {
        Call("CurrentFolder")->SetCurrentFolder(Unwrapped(folder));
    }
    std::string CurrentView() override { return Call("CurrentView")->CurrentView(); }
    void SetCurrentView(const std::string& name) override { Call("CurrentView")->SetCurrentView(name); }
    Ref<tempodial::Selection> Selection() override { return Wrap(Call("Selection")->Selection()); }
    bool IsFolderSelected(const Ref<MAPIFolder>& folder) override
    {
        return Call("IsFolderSelected")->IsFolderSelected(Unwrapped(folder));
    }
    Ref<tempodial::CommandBars> CommandBars() override { return Wrap(Call("CommandBars")->CommandBars()); }
    Subscription Subscribe(ExplorerEvents events) override { return Call("Subscribe")->Subscribe(std::move(events)); }
};

class FaultyInspectors final : public Faulty<Inspectors>
{
public:
    using Faulty::Faulty;

    std::int32_t Count() override { return Call("Count")->Count(); }
    Ref<Inspector> Item(std::int32_t index) override { return Wrap(Call("Item", std::to_string(index))->Item(index)); }
    Subscription Subscribe(InspectorsEvents events) override
    {
        auto* target = Call("Subscribe");
        return target->Subscribe(
            { .NewInspector = [plan = Plan(), opened = std::move(events.NewInspector)](const auto& inspector) {
                if (opened) {
                    opened(Wrapped(inspector, plan));
                }
            } });
    }
};

class FaultyInspector final : public Faulty<Inspector>
{
public:
    using Faulty::Faulty;

    std::string Caption() const override { return Call("Caption")->Caption(); }
    Ref<OutlookItem> CurrentItem() override { return Wrap(Call("CurrentItem")->CurrentItem()); }
    Ref<tempodial::CommandBars> CommandBars() override { return Wrap(Call("CommandBars")->CommandBars()); }
    Ref<Pages> ModifiedFormPages() override { return Wrap(Call("ModifiedFormPages")->ModifiedFormPages()); }
    Subscription Subscribe(InspectorEvents events) override { return Call("Subscribe")->Subscribe(std::move(events)); }
};

class FaultyPages final : public Faulty<Pages>
{
public:
    using Faulty::Faulty;

    Ref<Page> Item(const std::string& name) override { return Wrap(Call("Item", name)->Item(name)); }
};

class FaultyPage final : public Faulty<Page>
{
public:
    using Faulty::Faulty;

    Ref<PageControls> Controls() override { return Wrap(Call("Controls")->Controls()); }
};

class FaultyPageControls final : public Faulty<PageControls>
{
public:
    using Faulty::Faulty;

    Ref<PageControl> Item(const std::string& name) override { return Wrap(Call("Item", name)->Item(name)); }
};

class FaultyPageControl final : public Faulty<PageControl>
{
public:
    using Faulty::Faulty;

    Variant Value() const override { return Call("Value")->Value(); }
    void SetValue(const Variant& value) override { Call("Value")->SetValue(value); }
    std::string Text() const override { return Call("Text")->Text(); }
    void SetText(const std::string& text) override { Call("Text")->SetText(text); }
    void SetList(const std::vector<std::string>& list) override { Call("List")->SetList(list); }
    void AddItem(const std::string& text) override { Call("AddItem")->AddItem(text); }
};

}

Ref<Explorers> Wrapped(const Ref<Explorers>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyExplorers>(object, plan);
}

Ref<Explorer> Wrapped(const Ref<Explorer>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyExplorer>(object, plan);
}

Ref<Inspectors> Wrapped(const Ref<Inspectors>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyInspectors>(object, plan);
}

Ref<Inspector> Wrapped(const Ref<Inspector>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyInspector>(object, plan);
}

Ref<Pages> Wrapped(const Ref<Pages>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyPages>(object, plan);
}

Ref<Page> Wrapped(const Ref<Page>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyPage>(object, plan);
}

Ref<PageControls> Wrapped(const Ref<PageControls>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyPageControls>(object, plan);
}

Ref<PageControl> Wrapped(const Ref<PageControl>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyPageControl>(object, plan);
}

}
