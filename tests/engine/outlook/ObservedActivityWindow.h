#pragma once

#include "platform/objectmodel/Inspector.h"
#include "support/ObservedItem.h"
#include "support/ObservedWindows.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// What sees the use of a page.
struct PageObserver
{
    ItemObserver told;
    /// Gives the value that a control seems to have, nothing for its own.
    std::function<Variant(const Variant& value)> shown = nullptr;
};

/// A control of a page that tells an observer of its use.
class ObservedPageControl : public PageControl
{
public:
    ObservedPageControl(Ref<PageControl> control, std::string name, PageObserver observer);

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
    PageObserver mObserver;
};

/// The one page of a window, as pages, page and controls, that tells an observer of its use.
class ObservedPages : public Pages
{
public:
    ObservedPages(Ref<Pages> pages, PageObserver observer);

    Ref<Page> Item(const std::string& name) override;

private:
    class ObservedControls : public PageControls
    {
    public:
        ObservedControls(Ref<PageControls> controls, PageObserver observer)
            : mControls(std::move(controls))
            , mObserver(std::move(observer))
        {
        }

        Ref<PageControl> Item(const std::string& name) override
        {
            mObserver.told("Controls.Item " + name);
            return MakeRef<ObservedPageControl>(mControls->Item(name), name, mObserver);
        }

    private:
        Ref<PageControls> mControls;
        PageObserver mObserver;
    };
    class ObservedPage : public Page
    {
    public:
        ObservedPage(Ref<Page> page, PageObserver observer)
            : mPage(std::move(page))
            , mObserver(std::move(observer))
        {
        }

        Ref<PageControls> Controls() override
        {
            mObserver.told("Page.Controls");
            return MakeRef<ObservedControls>(mPage->Controls(), mObserver);
        }

    private:
        Ref<Page> mPage;
        PageObserver mObserver;
    };

    Ref<Pages> mPages;
    PageObserver mObserver;
};

/// A window on an activity that tells an observer of its use, and of that of its bars, its page and its item.
class ObservedActivityWindow : public Inspector
{
public:
    ObservedActivityWindow(const Ref<Inspector>& inspector, const PageObserver& observer);

    std::string Caption() const override;
    Ref<OutlookItem> CurrentItem() override;
    Ref<tempodial::CommandBars> CommandBars() override;
    Ref<Pages> ModifiedFormPages() override;
    Subscription Subscribe(InspectorEvents events) override;

private:
    Ref<Inspector> mInspector;
    PageObserver mObserver;
};

}
