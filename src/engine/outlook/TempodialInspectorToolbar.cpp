#include "engine/foundation/GuardedHandler.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/outlook/TempodialInspector.h"
#include "engine/outlook/TempodialToolbarUtils.h"

#include <optional>

namespace tempodial {

namespace {

Ref<CommandBarControl> BuiltIn(const Ref<CommandBar>& standard, std::int32_t id)
{
    return standard->FindControl({ .id = id, .tag = {} });
}

/// Adds another button of a built-in command.
Ref<CommandBarButton> Add(const Ref<CommandBar>& mine, const Ref<CommandBarControl>& builtIn)
{
    const CommandBarAddition addition { CommandBarControlType::Button, builtIn->FaceId(), "", std::nullopt, false };
    return mine->Controls()->Add(addition).As<CommandBarButton>();
}

/// Adds a button that goes with its window.
Ref<CommandBarButton> Add(const Ref<CommandBar>& mine, std::optional<std::int32_t> id, const std::string& parameter)
{
    const CommandBarAddition addition { CommandBarControlType::Button, id, parameter, std::nullopt, true };
    return mine->Controls()->Add(addition).As<CommandBarButton>();
}

/// Shows a button with its icon and its caption.
void Show(const Attempt& attempt, const Ref<CommandBarButton>& button)
{
    attempt([&] { button->SetStyle(ButtonStyle::IconAndCaption); });
    attempt([&] { button->SetVisible(true); });
}

/// Names a button, with a tag that no other window's button has, and shows it.
void Show(const Attempt& attempt, const Ref<CommandBarButton>& button, const std::string& caption, std::int32_t id)
{
    attempt([&] { button->SetCaption(caption); });
    attempt([&] { button->SetTag(caption + std::to_string(id)); });
    Show(attempt, button);
}

}

void TempodialInspector::CreateMyToolbars()
{
    const auto attempt = Failing("toolbars error ", LineShape::TextOnly);
    Trace("create my toolbars");
    const auto standard = attempt.Get([&] { return mMain->mToolbarUtils->GetStandardToolBar(mInspector.Get()); });
    const auto mine = attempt.Get(
        [&] { return mMain->mToolbarUtils->ReplaceStandardToolbar(mInspector.Get(), mMain->mStrings->mLogName); });

    mStage = "add my buttons";
    const auto find = [&](std::int32_t id) { return attempt.Get([&] { return BuiltIn(standard, id); }); };
    AddSaveCloseButton(attempt, standard, mine);
    AddViewProjectButton(attempt, mine);

    attempt([&] { BuiltIn(standard, 2521)->FaceId(); }); // kept: its absence costs a line
    if (const auto print = find(2521)) {
        Ref<CommandBarButton> button;
        attempt([&] { button = Add(mine, print); });
        Show(attempt, button);
    }
    if (const auto remove = find(478)) {
        attempt([&] { mDeleteCommandBarButton = Add(mine, remove); });
        Show(attempt, mDeleteCommandBarButton);
    }
    for (const std::int32_t id : { 359, 360 }) {
        if (const auto control = find(id)) {
            const auto copy = attempt.Get([&] { return control->Copy(mine); });
            attempt([&] { copy->SetVisible(true); });
        }
    }
    AddHelpButton(attempt, standard, mine);
}

void TempodialInspector::RestoreToolbars(const Attempt& attempt)
{
    mStage = "remove my toolbar";
    attempt([&] { mMain->mToolbarUtils->RemoveMyToolbar(mInspector.Get(), mMain->mStrings->mLogName); });
    mStage = "enable standard toolbar";
    attempt([&] { mMain->mToolbarUtils->EnableStandardToolBar(mInspector.Get()); });
}

void TempodialInspector::AddSaveCloseButton(
    const Attempt& attempt, const Ref<CommandBar>& standard, const Ref<CommandBar>& mine)
{
    // kept: without the built-in control the button is added without a number
    std::optional<std::int32_t> faceId;
    attempt([&] { faceId = BuiltIn(standard, 1975)->FaceId(); });
    attempt([&] {
        mSaveCloseCommandBarButton.Set(Add(mine, faceId, mMain->mStrings->mOurSaveAndCloseButton + std::to_string(mID)),
            { .Click = GuardedHandler(shared_from_this(), &TempodialInspector::mSaveCloseCommandBarButton_Click) });
    });
    Show(attempt, mSaveCloseCommandBarButton.Get(), mMain->mStrings->mOutlookSaveAndCloseButton, mID);
}

void TempodialInspector::AddViewProjectButton(const Attempt& attempt, const Ref<CommandBar>& mine)
{
    const auto& caption = mMain->mStrings->mOurViewProjectsButton;
    attempt([&] {
        mViewProjectCommandBarButton.Set(Add(mine, std::nullopt, caption + std::to_string(mID)),
            { .Click = GuardedHandler(shared_from_this(), &TempodialInspector::mViewProjectCommandBarButton_Click) });
    });
    Show(attempt, mViewProjectCommandBarButton.Get(), caption, mID);
    mStage = "set icon";
    if (!mMain->mTempodialIcon) {
        Trace("no icon");
    } else {
        attempt([&] { mViewProjectCommandBarButton->SetPicture(mMain->mTempodialIcon); });
        if (mMain->mTempodialIconMask) {
            attempt([&] { mViewProjectCommandBarButton->SetMask(mMain->mTempodialIconMask); });
        }
    }
    mStage = "icon is set";
}

void TempodialInspector::AddHelpButton(
    const Attempt& attempt, const Ref<CommandBar>& standard, const Ref<CommandBar>& mine)
{
    const auto help = attempt.Get([&] { return BuiltIn(standard, 984); });
    if (!help) {
        return;
    }
    const auto& caption = mMain->mStrings->mToolbarFAQ2;
    mHelpCommandBarButton.Clear();
    attempt([&] {
        mHelpCommandBarButton.Set(Add(mine, help->FaceId(), caption + std::to_string(mID)),
            { .Click = GuardedHandler(shared_from_this(), &TempodialInspector::mHelpCommandBarButton_Click) });
    });
    Show(attempt, mHelpCommandBarButton.Get(), caption, mID);
}

}
