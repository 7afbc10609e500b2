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
    ObservedPageControl(Ref<PageControl> control, std::string name, ItemObserver observer)
        : mControl(std::move(control))
        , mName(std::move(name))
        , mObserver(std::move(observer))
    {
    }

    Variant Value() const override { return Told("Value")->Value(); }
    void SetValue(const Variant& value) override { Told("SetValue")->SetValue(value); }
    std::string Text() const override { return Told("Text")->Text(); }
    void SetText(const std::string& text) override { Told("SetText")->SetText(text); }
    void SetList(const std::vector<std::string>& list) override { Told("SetList")->SetList(list); }
    void AddItem(const std::string& text) override { Told("AddItem")->AddItem(text); }

private:
    /// The members are told with the control's name, such as "StartBox.Value".
    const Ref<PageControl>& Told(const char* member) const
    {
        mObserver(mName + "." + member);
        return mControl;
    }

    Ref<PageControl> mControl;
    std::string mName;
    ItemObserver mObserver;
};

/// The one page of a window, as pages, page and controls, that tells an observer of its use.
class ObservedPages : public Pages
{
public:
    ObservedPages(Ref<Pages> pages, ItemObserver observer)
        : mPages(std::move(pages))
        , mObserver(std::move(observer))
    {
    }

    Ref<Page> Item(const std::string& name) override
    {
        mObserver("Pages.Item");
        return MakeRef<ObservedPage>(mPages->Item(name), mObserver);
    }

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
    ObservedActivityWindow(const Ref<Inspector>& inspector, const ItemObserver& observer)
        : mInspector(MakeRef<ObservedInspector>(inspector, observer))
        , mObserver(observer)
    {
    }

    std::string Caption() const override { return mInspector->Caption(); }
    Ref<OutlookItem> CurrentItem() override
    {
        return MakeRef<ObservedItem>(mInspector->CurrentItem().As<AppointmentItem>(), mObserver);
    }
    Ref<tempodial::CommandBars> CommandBars() override { return mInspector->CommandBars(); }
    Ref<Pages> ModifiedFormPages() override
    {
        return MakeRef<ObservedPages>(mInspector->ModifiedFormPages(), mObserver);
    }
    Subscription Subscribe(InspectorEvents events) override { return mInspector->Subscribe(std::move(events)); }

private:
    Ref<Inspector> mInspector;
    ItemObserver mObserver;
};

}
