#include "desktop/qt/CommandBarView.h"

#include "desktop/ActivityWords.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/ShownLine.h"
#include "forms/FormRules.h"
#include "host/windows/BuiltInCommand.h"
#include "review/ActivityReader.h"
#include "session/ActivityGesture.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>
#include <map>

namespace tempodial {

namespace {

/// The keys of the host's own commands.
QKeySequence KeysOf(std::int32_t command)
{
    static const std::map<std::int32_t, QKeySequence> keys {
        { BuiltInCommand::SaveAndClose, QKeySequence("Ctrl+S") },
        { BuiltInCommand::Print, QKeySequence("Ctrl+P") },
        { BuiltInCommand::Delete, QKeySequence("Ctrl+D") },
        { BuiltInCommand::PreviousItem, QKeySequence("Ctrl+PgUp") },
        { BuiltInCommand::NextItem, QKeySequence("Ctrl+PgDown") },
    };
    const auto found = keys.find(command);
    return found == keys.end() ? QKeySequence() : found->second;
}

}

CommandBarView::CommandBarView(Desk& desk, Ref<HostInspector> inspector, std::function<bool()> mayRun, QWidget* parent)
    : QToolBar(parent)
    , mDesk(desk)
    , mInspector(std::move(inspector))
    , mMayRun(std::move(mayRun))
    , mChanges(mInspector->Bars()->SubscribeToChanges({ .Changed = [this] { mHasChanged = true; } }))
{
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    setMovable(false);
    Follow();
}

void CommandBarView::Follow()
{
    if (!mHasChanged || mInspector->IsGone()) {
        return;
    }
    mHasChanged = false;
    const auto before = actions();
    clear();
    for (auto* action : before) {
        // One of them may be where the change came from.
        action->deleteLater();
    }
    for (const auto& bar : mInspector->Bars()->All()) {
        if (!bar->Visible()) {
            continue;
        }
        if (!actions().isEmpty()) {
            addSeparator();
        }
        for (const auto& entry : bar->Entries()) {
            if (entry->Now().visible) {
                AddCommand(entry);
            }
        }
    }
}

void CommandBarView::AddCommand(const Ref<HostCommandBarControl>& command)
{
    const auto& state = command->Now();
    if (state.beginGroup) {
        addSeparator();
    }
    // The page's fields have the keys of letters.
    auto* action = new QAction(ToQt(WithoutKey(state.caption)), this);
    action->setEnabled(state.enabled);
    action->setShortcut(KeysOf(state.id));
    connect(action, &QAction::triggered, this, [this, command] {
        // The model may let go of it during the click.
        const auto held = command;
        Run([&] { ClickCommandAsStep(mDesk.Profile(), *mInspector, *held); });
    });
    addAction(action);
    if (state.type == CommandBarControlType::SplitButtonPopup) {
        auto* button = qobject_cast<QToolButton*>(widgetForAction(action));
        auto* menu = new QMenu(button);
        connect(menu, &QMenu::aboutToShow, this, [this, menu, id = state.id] { FillWithItems(*menu, id); });
        button->setMenu(menu);
        button->setPopupMode(QToolButton::MenuButtonPopup);
    }
}

void CommandBarView::FillWithItems(QMenu& menu, std::int32_t command)
{
    menu.clear();
    mDesk.Do([&] {
        for (const auto& item : mInspector->ItemsBeside(command)) {
            auto* action = menu.addAction(LineOf(item).replace("&", "&&"));
            connect(action, &QAction::triggered, this, [this, item] { Run([&] { mInspector->GoTo(item); }); });
        }
    });
    if (menu.isEmpty()) {
        menu.addAction("There is none")->setEnabled(false);
    }
}

QString CommandBarView::LineOf(const Ref<StoreItem>& item) const
{
    const auto moment = mDesk.Formats()->General(item->Start()) + "  ";
    if (mDesk.ShownTitles() == Titles::Shown) {
        return ToQt(moment) + ShownLine(item->Subject());
    }
    const auto activity = ActivityNumbered(mDesk.Profile(), item->Number());
    const ActivityWords words(mDesk.Formats(), Titles::Hidden);
    return ToQt(moment) + (activity ? ShownLine(words.Title(*activity)) : QString());
}

void CommandBarView::Run(const std::function<void()>& work)
{
    if (!mInspector->IsGone() && mMayRun()) {
        mDesk.Do(work);
    }
}

QToolButton* CommandBarView::ButtonOf(const QString& caption) const
{
    for (auto* action : actions()) {
        if (action->text() == caption) {
            return qobject_cast<QToolButton*>(widgetForAction(action));
        }
    }
    return nullptr;
}

}
