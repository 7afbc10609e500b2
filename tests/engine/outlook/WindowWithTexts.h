#pragma once

#include "platform/objectmodel/Inspector.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// A window on an item whose controls give moments as texts.
class WindowWithTexts : public Inspector, public Pages
{
public:
    using Texts = std::function<std::string(Date moment)>;

    WindowWithTexts(Ref<Inspector> window, Texts texts)
        : mWindow(std::move(window))
        , mTexts(std::move(texts))
    {
    }

    std::string Caption() const override { return mWindow->Caption(); }
    Ref<OutlookItem> CurrentItem() override { return mWindow->CurrentItem(); }
    Ref<tempodial::CommandBars> CommandBars() override { return mWindow->CommandBars(); }
    Ref<Pages> ModifiedFormPages() override { return MakeRef<WindowWithTexts>(mWindow, mTexts); }
    Subscription Subscribe(InspectorEvents events) override { return mWindow->Subscribe(std::move(events)); }

    Ref<Page> Item(const std::string& name) override
    {
        return MakeRef<PageWithTexts>(mWindow->ModifiedFormPages()->Item(name)->Controls(), mTexts);
    }

private:
    class ControlWithTexts : public PageControl
    {
    public:
        ControlWithTexts(Ref<PageControl> control, Texts texts)
            : mControl(std::move(control))
            , mTexts(std::move(texts))
        {
        }

        Variant Value() const override
        {
            const auto value = mControl->Value();
            const auto* moment = value.If<Date>();
            return moment == nullptr ? value : Variant(mTexts(*moment));
        }
        void SetValue(const Variant& value) override { mControl->SetValue(value); }
        std::string Text() const override { return mControl->Text(); }
        void SetText(const std::string& text) override { mControl->SetText(text); }
        void SetList(const std::vector<std::string>& list) override { mControl->SetList(list); }
        void AddItem(const std::string& text) override { mControl->AddItem(text); }

    private:
        Ref<PageControl> mControl;
        Texts mTexts;
    };
    class PageWithTexts : public Page, public PageControls
    {
    public:
        PageWithTexts(Ref<PageControls> controls, Texts texts)
            : mControls(std::move(controls))
            , mTexts(std::move(texts))
        {
        }

        Ref<PageControls> Controls() override { return MakeRef<PageWithTexts>(mControls, mTexts); }
        Ref<PageControl> Item(const std::string& name) override
        {
            return MakeRef<ControlWithTexts>(mControls->Item(name), mTexts);
        }

    private:
        Ref<PageControls> mControls;
        Texts mTexts;
    };

    Ref<Inspector> mWindow;
    Texts mTexts;
};

}
