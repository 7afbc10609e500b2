#pragma once

#include "platform/objectmodel/Inspector.h"
#include "support/ObservedItem.h"
#include "support/ObservedWindows.h"

#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// A control of a page that tells an observer of its use.
class ObservedPageControl : public PageControl
{
public:
    ObservedPageControl(Ref<PageControl> control, std::string name, ItemObserver observer);

    Variant Value() const override;
    void SetValue(const Variant& value) override;
    std::string Text() const override;
    void SetText(const std::string& text) override;
    void SetList(const std::vector<std::string>& list) override;
    void AddItem(const std::string& text) override;

private:
    /// The members are told with the control's name, such as "StartBox.Value".
    const Ref<PageControl>& Told(const char* member) const;

    Ref<PageControl> mControl;
    std::string mName;
    ItemObserver mObserver;
};

/// The one page of a window, as pages, page and controls, that tells an observer of its use.
class ObservedPages : public Pages
{
public:
    ObservedPages(Ref<Pages> pages, ItemObserver observer);

    Ref<Page> Item(const std::string& name) override;

private:
    class ObservedControls : public PageControls
    {
    public:
        ObservedControls(Ref<PageControls> controls, ItemObserver observer)
            : mControls(std::move(controls))
            , mObserver(std::move(observer))
        {
        }

        Ref<PageControl> Item(const std::string& name) override
        {
            mObserver("Controls.Item " + name);
            return MakeRef<ObservedPageControl>(mControls->Item(name), name, mObserver);
        }

    private:
        Ref<PageControls> mControls;
        ItemObserver mObserver;
    };
    class ObservedPage : public Page
    {
    public:
        ObservedPage(Ref<Page> page, ItemObserver observer)
            : mPage(std::move(page))
            , mObserver(std::move(observer))
        {
        }

        Ref<PageControls> Controls() override
        {
            mObserver("Page.Controls");
            return MakeRef<ObservedControls>(mPage->Controls(), mObserver);
        }

    private:
        Ref<Page> mPage;
        ItemObserver mObserver;
    };

    Ref<Pages> mPages;
    ItemObserver mObserver;
};

/// A window on an activity that tells an observer of its use, and of that of its bars, its page and its item.
class ObservedActivityWindow : public Inspector
{
public:
    ObservedActivityWindow(const Ref<Inspector>& inspector, const ItemObserver& observer);

    std::string Caption() const override;
    Ref<OutlookItem> CurrentItem() override;
    Ref<tempodial::CommandBars> CommandBars() override;
    Ref<Pages> ModifiedFormPages() override;
    Subscription Subscribe(InspectorEvents events) override;

private:
    Ref<Inspector> mInspector;
    ItemObserver mObserver;
};

}
