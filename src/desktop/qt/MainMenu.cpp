#include "desktop/qt/MainMenu.h"

#include "desktop/qt/FlatButton.h"
#include "desktop/qt/QtText.h"
#include "host/windows/BarNames.h"
#include "host/windows/HostCommandBarPopup.h"
#include "session/ActivityGesture.h"

#include <QAction>
#include <QBoxLayout>
#include <QMenuBar>

namespace tempodial {

MainMenu::MainMenu(Desk& desk, Ref<HostExplorer> explorer, QMenuBar& menus, QBoxLayout& buttons, std::vector<Own> own)
    : mDesk(desk)
    , mExplorer(std::move(explorer))
    , mMenus(menus)
    , mButtons(buttons)
    , mOwn(std::move(own))
    , mChanges(mExplorer->Bars()->SubscribeToChanges({ .Changed = [this] { mHasChanged = true; } }))
{
    Follow();
}

void MainMenu::Follow()
{
    if (!mHasChanged) {
        return;
    }
    mHasChanged = false;
    // One of them may be where the change came from.
    for (auto* menu : mMenus.findChildren<QMenu*>(Qt::FindDirectChildrenOnly)) {
        menu->deleteLater();
    }
    mMenus.clear();
    for (const auto& bar : mExplorer->Bars()->All()) {
        if (bar->Name() == ButtonBarName) {
            FillButtons(*bar);
        } else if (bar->Name() == MenuBarName) {
            for (const auto& entry : bar->Entries()) {
                const auto popup = entry.As<HostCommandBarPopup>();
                if (popup && entry->Now().visible) {
                    auto* menu = mMenus.addMenu(ToQt(entry->Now().caption));
                    FillMenu(*menu, *popup->Menu());
                    AddOwn(*menu, entry->Now().id);
                    menu->setEnabled(entry->Now().enabled && !menu->isEmpty());
                }
            }
        }
    }
}

void MainMenu::FillMenu(QMenu& menu, const HostCommandBar& bar)
{
    for (const auto& entry : bar.Entries()) {
        if (!entry->Now().visible) {
            continue;
        }
        if (entry->Now().beginGroup) {
            menu.addSeparator();
        }
        if (const auto popup = entry.As<HostCommandBarPopup>()) {
            FillMenu(*menu.addMenu(ToQt(entry->Now().caption)), *popup->Menu());
        } else {
            AddCommand(menu, entry);
        }
    }
}

void MainMenu::AddCommand(QMenu& menu, const Ref<HostCommandBarControl>& command)
{
    auto* action = menu.addAction(ToQt(command->Now().caption));
    action->setEnabled(command->Now().enabled);
    QObject::connect(action, &QAction::triggered, &menu, [this, command] { Click(command); });
}

void MainMenu::AddOwn(QMenu& menu, std::int32_t id)
{
    for (const auto& own : mOwn) {
        if (own.menu != id) {
            continue;
        }
        if (!menu.isEmpty()) {
            menu.addSeparator();
        }
        for (auto* action : own.actions) {
            if (action == nullptr) {
                menu.addSeparator();
            } else {
                menu.addAction(action);
            }
        }
    }
}

void MainMenu::FillButtons(const HostCommandBar& bar)
{
    while (auto* item = mButtons.takeAt(0)) {
        // It may be the button that was just clicked.
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
    for (const auto& entry : bar.Entries()) {
        // The host's own are in the menus.
        if (entry->Now().id != HostCommandBarControl::OwnId || !entry->Now().visible) {
            continue;
        }
        auto* button = new FlatButton(mDesk.Look(), ToQt(entry->Now().caption), mMenus.parentWidget());
        button->SetBeside({ .glyph = Glyph::Refresh });
        button->setEnabled(entry->Now().enabled);
        QObject::connect(button, &QPushButton::clicked, button, [this, entry] { Click(entry); });
        mButtons.addWidget(button);
    }
}

void MainMenu::Click(const Ref<HostCommandBarControl>& command)
{
    // The model may let go of it during the click.
    const auto held = command;
    mDesk.Do([&] { ClickCommandAsStep(mDesk.Profile(), *mExplorer, *held); });
}

}
