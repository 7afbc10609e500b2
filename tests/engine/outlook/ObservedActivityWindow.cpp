#include "engine/outlook/ObservedActivityWindow.h"

namespace tempodial {

ObservedPageControl::ObservedPageControl(Ref<PageControl> control, std::string name, PageObserver observer)
    : mControl(std::move(control))
    , mName(std::move(name))
    , mObserver(std::move(observer))
{
}

Variant ObservedPageControl::Value() const
{
    const auto value = Told("Value")->Value();
    return mObserver.shown ? mObserver.shown(value) : value;
}

void ObservedPageControl::SetValue(const Variant& value)
{
    Told("SetValue")->SetValue(value);
}

std::string ObservedPageControl::Text() const
{
    return Told("Text")->Text();
}

void ObservedPageControl::SetText(const std::string& text)
{
    Told("SetText")->SetText(text);
}

void ObservedPageControl::SetList(const std::vector<std::string>& list)
{
    Told("SetList")->SetList(list);
}

void ObservedPageControl::AddItem(const std::string& text)
{
    Told("AddItem")->AddItem(text);
}

const Ref<PageControl>& ObservedPageControl::Told(const char* member) const
{
    mObserver.told(mName + "." + member);
    return mControl;
}

ObservedPages::ObservedPages(Ref<Pages> pages, PageObserver observer)
    : mPages(std::move(pages))
    , mObserver(std::move(observer))
{
}

Ref<Page> ObservedPages::Item(const std::string& name)
{
    mObserver.told("Pages.Item");
    return MakeRef<ObservedPage>(mPages->Item(name), mObserver);
}

ObservedActivityWindow::ObservedActivityWindow(const Ref<Inspector>& inspector, const PageObserver& observer)
    : mInspector(MakeRef<ObservedInspector>(inspector, observer.told))
    , mObserver(observer)
{
}

std::string ObservedActivityWindow::Caption() const
{
    return mInspector->Caption();
}

Ref<OutlookItem> ObservedActivityWindow::CurrentItem()
{
    return MakeRef<ObservedItem>(mInspector->CurrentItem().As<AppointmentItem>(), mObserver.told);
}

Ref<tempodial::CommandBars> ObservedActivityWindow::CommandBars()
{
    return mInspector->CommandBars();
}

Ref<Pages> ObservedActivityWindow::ModifiedFormPages()
{
    return MakeRef<ObservedPages>(mInspector->ModifiedFormPages(), mObserver);
}

Subscription ObservedActivityWindow::Subscribe(InspectorEvents events)
{
    return mInspector->Subscribe(std::move(events));
}

}
