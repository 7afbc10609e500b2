#include "engine/outlook/ObservedActivityWindow.h"

namespace tempodial {

ObservedPageControl::ObservedPageControl(Ref<PageControl> control, std::string name, ItemObserver observer)
    : mControl(std::move(control))
    , mName(std::move(name))
    , mObserver(std::move(observer))
{
}

Variant ObservedPageControl::Value() const
{
    return Told("Value")->Value();
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
    mObserver(mName + "." + member);
    return mControl;
}

ObservedPages::ObservedPages(Ref<Pages> pages, ItemObserver observer)
    : mPages(std::move(pages))
    , mObserver(std::move(observer))
{
}

Ref<Page> ObservedPages::Item(const std::string& name)
{
    mObserver("Pages.Item");
    return MakeRef<ObservedPage>(mPages->Item(name), mObserver);
}

ObservedActivityWindow::ObservedActivityWindow(const Ref<Inspector>& inspector, const ItemObserver& observer)
    : mInspector(MakeRef<ObservedInspector>(inspector, observer))
    , mObserver(observer)
{
}

std::string ObservedActivityWindow::Caption() const
{
    return mInspector->Caption();
}

Ref<OutlookItem> ObservedActivityWindow::CurrentItem()
{
    return MakeRef<ObservedItem>(mInspector->CurrentItem().As<AppointmentItem>(), mObserver);
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
