#include "addin/com/Adapter.h"

namespace tempodial {

namespace {

constexpr DISPID NewWindow = 0xF001;
constexpr DISPID ExplorerActivate = 0xF001;
constexpr DISPID ExplorerFolderSwitch = 0xF002;
constexpr DISPID ExplorerSelectionChange = 0xF007;
constexpr DISPID WindowClose = 0xF008;

/// The explorer whose close is being told, nothing at other times.
ComRef<IUnknown>& ClosingExplorer()
{
    static ComRef<IUnknown> closing;
    return closing;
}

/// Says for as long as it lives which explorer is being closed.
class Closing
{
public:
    explicit Closing(const ComRef<IDispatch>& explorer)
        : mBefore(std::exchange(ClosingExplorer(), explorer.As<IUnknown>()))
    {
    }
    ~Closing() { ClosingExplorer() = std::move(mBefore); }
    Closing(const Closing&) = delete;
    Closing& operator=(const Closing&) = delete;

private:
    ComRef<IUnknown> mBefore;
};

class ComExplorers final : public Adapter<ComExplorers, Explorers>
{
public:
    using Adapter::Adapter;

    /// An explorer that is being closed may be among the others still, but counts no more.
    std::int32_t Count() override
    {
        const auto count = Get<std::int32_t>("Count");
        for (std::int32_t index = 1; ClosingExplorer() && index <= count; ++index) {
            if (Late().Get("Item", index).ToObject().As<IUnknown>().Get() == ClosingExplorer().Get()) {
                return count - 1;
            }
        }
        return count;
    }
    Ref<Explorer> Item(std::int32_t index) override { return Get<Ref<Explorer>>("Item", index); }
    Subscription Subscribe(ExplorersEvents events) override
    {
        return EventSink::Subscribe(Dispatch(), { OutlookEvents(0x00063078) },
            { { NewWindow, ObjectHandler<Explorer>(std::move(events.NewExplorer)) } });
    }
};

class ComExplorer final : public Adapter<ComExplorer, Explorer>
{
public:
    using Adapter::Adapter;

    std::string Caption() const override { return Get<std::string>("Caption"); }
    Ref<MAPIFolder> CurrentFolder() override { return Get<Ref<MAPIFolder>>("CurrentFolder"); }
    void SetCurrentFolder(const Ref<MAPIFolder>& folder) override
    {
        Late().PutObject("CurrentFolder", DispatchOf(folder));
    }
    std::string CurrentView() override
    {
        const auto view = Late().Get("CurrentView");
        return view.IsObject() ? Adapted<View>(view.ToObject())->Name() : view.ToText();
    }
    void SetCurrentView(const std::string& name) override { Put("CurrentView", name); }
    Ref<tempodial::Selection> Selection() override { return Get<Ref<tempodial::Selection>>("Selection"); }
    bool IsFolderSelected(const Ref<MAPIFolder>& folder) override { return Call<bool>("IsFolderSelected", folder); }
    Ref<tempodial::CommandBars> CommandBars() override { return Get<Ref<tempodial::CommandBars>>("CommandBars"); }
    Subscription Subscribe(ExplorerEvents events) override
    {
        const auto closed = PlainHandler(std::move(events.Close));
        const auto close = [closed, explorer = Dispatch()](const EventArguments& arguments) {
            const Closing closing(explorer);
            closed(arguments);
        };
        return EventSink::Subscribe(Dispatch(), { OutlookEvents(0x0006300F), OutlookEvents(0x0006304F) },
            { { ExplorerActivate, PlainHandler(std::move(events.Activate)) },
                { ExplorerFolderSwitch, PlainHandler(std::move(events.FolderSwitch)) },
                { ExplorerSelectionChange, PlainHandler(std::move(events.SelectionChange)) },
                { WindowClose, closed ? EventSink::Handler(close) : nullptr } });
    }
};

class ComInspectors final : public Adapter<ComInspectors, Inspectors>
{
public:
    using Adapter::Adapter;

    std::int32_t Count() override { return Get<std::int32_t>("Count"); }
    Ref<Inspector> Item(std::int32_t index) override { return Get<Ref<Inspector>>("Item", index); }
    Subscription Subscribe(InspectorsEvents events) override
    {
        return EventSink::Subscribe(Dispatch(), { OutlookEvents(0x00063079) },
            { { NewWindow, ObjectHandler<Inspector>(std::move(events.NewInspector)) } });
    }
};

class ComInspector final : public Adapter<ComInspector, Inspector>
{
public:
    using Adapter::Adapter;

    std::string Caption() const override { return Get<std::string>("Caption"); }
    Ref<OutlookItem> CurrentItem() override { return Get<Ref<OutlookItem>>("CurrentItem"); }
    Ref<tempodial::CommandBars> CommandBars() override { return Get<Ref<tempodial::CommandBars>>("CommandBars"); }
    Ref<Pages> ModifiedFormPages() override { return Get<Ref<Pages>>("ModifiedFormPages"); }
    Subscription Subscribe(InspectorEvents events) override
    {
        return EventSink::Subscribe(Dispatch(), { OutlookEvents(0x0006302A), OutlookEvents(0x0006307D) },
            { { WindowClose, PlainHandler(std::move(events.Close)) } });
    }
};

class ComPages final : public Adapter<ComPages, Pages>
{
public:
    using Adapter::Adapter;

    Ref<Page> Item(const std::string& name) override { return Get<Ref<Page>>("Item", name); }
};

class ComPage final : public Adapter<ComPage, Page>
{
public:
    using Adapter::Adapter;

    Ref<PageControls> Controls() override { return Get<Ref<PageControls>>("Controls"); }
};

class ComPageControls final : public Adapter<ComPageControls, PageControls>
{
public:
    using Adapter::Adapter;

    Ref<PageControl> Item(const std::string& name) override { return Get<Ref<PageControl>>("Item", name); }
};

class ComPageControl final : public Adapter<ComPageControl, PageControl>
{
public:
    using Adapter::Adapter;

    Variant Value() const override { return Get<Variant>("Value"); }
    void SetValue(const Variant& value) override
    {
        // Only text boxes can be bound to a moment, and they take its text.
        const auto* moment = value.If<Date>();
        if (moment != nullptr) {
            Put("Value", AutomationValue(*moment).ToText());
        } else {
            Put("Value", value);
        }
    }
    std::string Text() const override { return Get<std::string>("Text"); }
    void SetText(const std::string& text) override { Put("Text", text); }
    void SetList(const std::vector<std::string>& list) override { Put("List", list); }
    void AddItem(const std::string& text) override { Do("AddItem", text); }
};

}

template <> Ref<Explorers> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComExplorers, Explorers>(object);
}

template <> Ref<Explorer> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComExplorer, Explorer>(object);
}

template <> Ref<Inspectors> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComInspectors, Inspectors>(object);
}

template <> Ref<Inspector> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComInspector, Inspector>(object);
}

template <> Ref<Pages> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComPages, Pages>(object);
}

template <> Ref<Page> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComPage, Page>(object);
}

template <> Ref<PageControls> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComPageControls, PageControls>(object);
}

template <> Ref<PageControl> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComPageControl, PageControl>(object);
}

}
