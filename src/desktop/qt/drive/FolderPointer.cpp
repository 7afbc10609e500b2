#include "desktop/qt/drive/FolderPointer.h"

#include "base/Failure.h"
#include "desktop/qt/FoldersDialog.h"
#include "desktop/qt/MainCommands.h"
#include "desktop/qt/MainWindow.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/drive/MenuPointer.h"
#include "driver/RequestError.h"
#include "host/windows/BarNames.h"
#include "host/windows/BuiltInCommand.h"
#include "platform/objectmodel/Views.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

namespace tempodial {

FolderPointer::FolderPointer(MainWindow& window)
    : mWindow(window)
{
    for (const auto& bar : window.Explorer()->Bars()->All()) {
        for (const auto& entry : bar->Entries()) {
            const auto& now = entry->Now();
            if (bar->Name() == MenuBarName && now.id == BuiltInCommand::ViewMenu && now.visible && now.enabled) {
                mViewMenu = now.caption;
            }
        }
    }
}

void FolderPointer::Choose(const std::vector<std::string>& folders) const
{
    ClickInMenus(*mWindow.menuBar(), { mViewMenu, MainCommands::FolderCaption });
    const auto dialogs = mWindow.findChildren<QDialog*>(FoldersDialog::Name);
    // One that was closed may not have gone yet.
    if (dialogs.empty() || !dialogs.back()->isVisible()) {
        throw RequestError("the list of folders doesn't open");
    }
    auto* dialog = dialogs.back();
    auto* list = dialog->findChild<QListWidget*>();
    Qt::KeyboardModifiers modifiers;
    for (const auto& folder : folders) {
        const auto rows = list->findItems(ToQt(folder), Qt::MatchExactly | Qt::MatchCaseSensitive);
        if (rows.empty()) {
            dialog->reject();
            throw RequestError("the list of folders doesn't show \"" + folder + "\"");
        }
        list->scrollToItem(rows.front());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, list->visualItemRect(rows.front()).center());
        modifiers = Qt::ControlModifier;
    }
    QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

void FolderPointer::PickView(const std::string& name) const
{
    ClickInMenus(*mWindow.menuBar(), { mViewMenu, MainCommands::ViewsCaption, FromQt(ToQt(name).replace("&", "&&")) });
}

bool FolderPointer::HasView(const std::string& name) const
{
    try {
        const auto views = mWindow.Explorer()->CurrentFolder()->Views();
        const auto view = views->ItemNamed(name);
        return view && view->Name() == name;
    } catch (const Failure&) {
        // The folder may be gone.
        return false;
    }
}

}
