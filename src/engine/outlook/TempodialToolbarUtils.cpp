#include "engine/outlook/TempodialToolbarUtils.h"

#include "base/Number.h"
#include "engine/core/TempodialMain.h"
#include "engine/foundation/TempodialStrings.h"
#include "platform/commandbars/CommandBarPopup.h"

#include <utility>

namespace tempodial {

namespace {

constexpr auto ToolbarUtilsRevision = "revision 1 TempodialToolbarUtils";

}

TempodialToolbarUtils::TempodialToolbarUtils(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
{
}

void TempodialToolbarUtils::Initialize(const Ref<TempodialDebugLog>& applog, const Ref<TempodialMain>& main)
{
    const auto attempt = Failing("Initialize error ", LineShape::TextAmpersandStep);
    mTraceInfo = "TDToolbarUt";
    mLog = applog;
    mMain = main;
    attempt.Say(std::string("Init toolbar utils ") + ToolbarUtilsRevision);
}

void TempodialToolbarUtils::Terminate()
{
    const auto attempt = Failing("Term error ", LineShape::TextOnly);
    attempt.Say("term inspector");
    mMain = nullptr;
    mLog = nullptr;
}

void TempodialToolbarUtils::RemoveMyToolbar(const Ref<Inspector>& inspector, const std::string& toolbar)
{
    const auto attempt = Failing("remove toolbars error ", LineShape::TextStep);
    attempt.Say("remove my toolbar: " + toolbar);
    mStage = "remove command bar";
    const auto count = attempt.Get([&] { return inspector->CommandBars()->Count(); });
    Ref<CommandBar> bar;
    for (std::int32_t i = 1; i <= count; ++i) {
        attempt([&] { bar = inspector->CommandBars()->Item(i); });
        if (attempt.Get([&] { return bar->Name() == toolbar; })) {
            mStage = "make delete call";
            attempt.Say("delete it");
            attempt([&] { bar->Delete(); });
            return;
        }
    }
}

Ref<CommandBar> TempodialToolbarUtils::ReplaceStandardToolbar(
    const Ref<Inspector>& inspector, const std::string& toolbar)
{
    const auto attempt = Failing("replace toolbars error ", LineShape::TextOnly);
    attempt.Say("replace toolbar");
    mStage = "set up command bars";
    const auto standard = attempt.Get(
        [&] { return inspector->CommandBars()->ItemNamed(mMain->mStrings->mOutlookStandardToolbarName); });
    const auto mine = attempt.Get([&] { return inspector->CommandBars()->ItemNamed(toolbar); });
    if (standard) {
        mStage = "Make standard toolbar invis";
        attempt.Say("invis toolbar - standard");
        if (attempt.Get([&] { return standard->Visible(); })) {
            attempt([&] { standard->SetVisible(false); });
        }
    }
    if (mine) {
        mStage = "delete my toolbar";
        attempt([&] { mine->Delete(); });
    }
    mStage = "add my toolbar";
    // kept: the name is the log's own and not the argument.
    auto added = attempt.Get([&] { return inspector->CommandBars()->Add(mMain->mStrings->mLogName); });
    attempt([&] { added->SetVisible(true); });
    attempt([&] { added->SetPosition(BarPosition::Top); });
    return added;
}

Ref<CommandBar> TempodialToolbarUtils::GetStandardToolBar(const Ref<Inspector>& inspector)
{
    return Failing("getstandard error ", LineShape::TextOnly).Get([&] {
        return inspector->CommandBars()->ItemNamed(mMain->mStrings->mOutlookStandardToolbarName);
    });
}

void TempodialToolbarUtils::EnableStandardToolBar(const Ref<Inspector>& inspector)
{
    const auto attempt = Failing("enable standard error ", LineShape::TextOnly);
    const auto standard
        = [&] { return inspector->CommandBars()->ItemNamed(mMain->mStrings->mOutlookStandardToolbarName); };
    attempt.Say("enable standard toolbar");
    attempt([&] {
        const auto visible = inspector->CommandBars()->ItemNamed("Standard")->Visible();
        Trace("visible? " + std::string(BooleanText(visible)));
    });
    if (!attempt.Get([&] { return standard()->Visible(); })) {
        attempt([&] { standard()->SetVisible(true); });
    }
}

void TempodialToolbarUtils::ChangeMenu(bool hide, const Ref<CommandBarPopup>& popup, std::int32_t id)
{
    const auto attempt = Failing("ChangeMenu remove,  error ", LineShape::TextOnly);
    attempt.Say("Remove ID: " + std::to_string(id));
    if (!popup) {
        return;
    }
    if (id != 0) {
        const auto control = attempt.Get([&] { return popup->CommandBar()->FindControl({ .id = id, .tag = {} }); });
        if (control && attempt.Get([&] { return control->Visible() == hide; })) {
            attempt([&] { control->SetVisible(!hide); });
        }
        return;
    }
    attempt.Say("Trace menu and IDs");
    const auto count = attempt.Get([&] { return popup->Controls()->Count(); });
    for (std::int32_t i = 1; i <= count; ++i) {
        attempt([&] {
            const auto control = popup->Controls()->Item(i);
            Trace(" item: " + control->Caption() + " " + std::to_string(control->Id()));
        });
    }
}

}
