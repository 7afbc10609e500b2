#include "desktop/qt/MainCommands.h"

#include "desktop/UserGuide.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/ColourMenu.h"
#include "desktop/qt/FoldersDialog.h"
#include "desktop/qt/KeysDialog.h"
#include "desktop/qt/MainWindow.h"
#include "desktop/qt/NavigationBar.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/SelectionBar.h"
#include "desktop/qt/SettingsDialog.h"
#include "desktop/qt/SidePanel.h"
#include "host/windows/BuiltInCommand.h"
#include "platform/objectmodel/Views.h"
#include "session/OpenProfile.h"
#include "session/ProductFacts.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <array>

namespace tempodial {

namespace {

/// A profile's path, unless it is the one that the program takes in any session.
std::optional<std::string> NamedProfile(const std::string& path)
{
    const bool isUsual = !qEnvironmentVariableIsSet("TEMPODIAL_PROFILE") && path == ProfilePath({});
    return isUsual ? std::nullopt : std::optional(path);
}

}

MainCommands::MainCommands(MainWindow& window, Desk& desk)
    : mWindow(window)
    , mDesk(desk)
    , mOutlets(window, desk)
    , mActions(window)
{
    MakeActions();
    MakeViewActions();
}

void MainCommands::MakeActions()
{
    using Command = BuiltInCommand;
    mActions.Add(Command::FileMenu, "New &Window", QKeySequence::New,
        [this] { mDesk.Do([this] { mDesk.Windows().OpenExplorer(mWindow.Explorer()->CurrentFolder()); }); });
    AddExports();
    mActions.Add(Command::FileMenu, "Open &Data Folder", {},
        [this] { mDesk.Do([this] { mDesk.Profile().Surroundings().shell->Open(mDesk.Profile().DataFolder()); }); });
    mActions.Add(Command::FileMenu, "&Close", QKeySequence::Close, [this] { mWindow.close(); });
    mActions.Add(Command::FileMenu, "&Quit", QKeySequence::Quit, [this] { mDesk.Quit(); });
    mActions.Add(Command::EditMenu, "&Undo", QKeySequence::Undo, [this] { mWindow.Undo(); });
    mActions.Add(Command::EditMenu, "&Redo", QKeySequence("Ctrl+Shift+Z"), [this] { mWindow.Redo(); });
    mActions.AddLine(Command::EditMenu);
    mActions.Add(Command::EditMenu, "Select &All", QKeySequence::SelectAll, [this] { mWindow.SelectAll(); });
    mActions.Add(Command::EditMenu, "&Copy", QKeySequence::Copy, [this] { mOutlets.Copy(); });
    mActions.Add(Command::EditMenu, "&Search", QKeySequence::Find, [this] { FocusSearch(); });
    mActions.Add(Command::GoMenu, "&Today", {}, [this] { mWindow.GoToToday(); });
    mActions.Add(Command::GoMenu, "&Back", QKeySequence("Alt+Left"), [this] { mWindow.Page(-1); });
    mActions.Add(Command::GoMenu, "&Forward", QKeySequence("Alt+Right"), [this] { mWindow.Page(1); });
    mActions.Add(Command::GoMenu, "&Date\u2026", QKeySequence("Ctrl+G"), [this] { mWindow.GoToDate(); });
    mActions.Add(Command::ActionsMenu, "&Open", {}, [this] { mWindow.OpenSelected(); });
    mActions.Add(Command::ActionsMenu, "Set &Project\u2026", QKeySequence("F2"), [this] {
        if (!mWindow.Selected().empty()) {
            mWindow.Foot().ShowAllProjects();
        }
    });
    mActions.Add(Command::ActionsMenu, "&Why This Project?", {}, [this] { mWindow.AskWhy(); });
    mActions.Add(Command::ActionsMenu, "Why, for &All Projects", {}, [this] { mWindow.ShowWhyTable(); });
    mActions.Add(Command::ActionsMenu, "Make a &Rule\u2026", {}, [this] { mWindow.MakeRule(); });
    mActions.Add(Command::ToolsMenu, "Refresh &Now", QKeySequence("F5"),
        [this] { mDesk.Do([this] { mDesk.Session().AddIn().SyncData(SavedDataDays, true); }); });
    mActions.AddLine(Command::ToolsMenu);
    mActions.Add(Command::ToolsMenu, "&Settings\u2026", QKeySequence("Ctrl+,"), [this] { ShowSettings(); });
    mActions.Add(Command::HelpMenu, "&Keys", {}, [this] { (new KeysDialog(&mWindow))->show(); });
}

void MainCommands::AddExports()
{
    auto* menu = new QMenu("&Export", &mWindow);
    for (const auto& form : LogExport::Forms) {
        auto* action = menu->addAction(form.caption);
        QObject::connect(action, &QAction::triggered, &mWindow, [this, &form] { mOutlets.AskWhereToExport(form); });
    }
    menu->actions().front()->setShortcut(QKeySequence("Ctrl+E"));
    mActions.AddMenu(BuiltInCommand::FileMenu, *menu);
}

void MainCommands::Run(std::int32_t command)
{
    if (command == BuiltInCommand::Print) {
        mOutlets.Print();
    } else if (command == BuiltInCommand::Find) {
        FocusSearch();
    } else if (command == BuiltInCommand::Help) {
        ShowGuide();
    }
}

void MainCommands::FocusSearch()
{
    mWindow.Bar().SearchField().setFocus(Qt::ShortcutFocusReason);
    mWindow.Bar().SearchField().selectAll();
}

void MainCommands::ShowGuide()
{
    mDesk.Do([this] {
        const auto path = UserGuidePath(mDesk.Profile());
        mDesk.Profile().Surroundings().shell->Open(path);
        mWindow.Say("If no browser opens with the user guide: it is " + ToQt(path));
    });
}

void MainCommands::ShowSettings()
{
    const Autostart autostart(
        Desk::ConfigFolder(), FromQt(QCoreApplication::applicationFilePath()), NamedProfile(mDesk.Profile().Path()));
    (new SettingsDialog(mDesk, autostart, &mWindow))->show();
}

void MainCommands::MakeViewActions()
{
    constexpr auto Menu = BuiltInCommand::ViewMenu;
    constexpr std::array views { std::pair(View::Day, "&Day"), std::pair(View::Week, "&Week"),
        std::pair(View::List, "&List"), std::pair(View::SortOut, "&Sort Out") };
    for (const auto& [view, text] : views) {
        const auto key = QKeySequence("Ctrl+" + QString::number(static_cast<int>(view) + 1));
        mActions.AddSwitch(
            Menu, text, key, [this, view = view] { return mWindow.ShownView() == view; },
            [this, view = view](bool) { mWindow.Choose(view); });
    }
    mActions.AddLine(Menu);
    using Span = DesktopSettings::ListSpan;
    for (const auto& [span, text] : { std::pair(Span::Week, "List of a Week"),
             std::pair(Span::Month, "List of a &Month"), std::pair(Span::Year, "List of a &Year") }) {
        mActions.AddSwitch(
            Menu, text, {}, [this, span = span] { return mDesk.Settings().listSpan == span; },
            [this, span = span](bool) {
                mDesk.Change([span](DesktopSettings& settings) { settings.listSpan = span; });
                mWindow.Choose(View::List);
            });
    }
    mActions.AddLine(Menu);
    mActions.Add(Menu, FolderCaption, {}, [this] { (new FoldersDialog(mDesk, mWindow.Explorer(), &mWindow))->show(); });
    auto* folderViews = new QMenu(ViewsCaption, &mWindow);
    QObject::connect(folderViews, &QMenu::aboutToShow, &mWindow, [this, folderViews] { FillViews(*folderViews); });
    mActions.AddMenu(Menu, *folderViews);
    mActions.AddLine(Menu);
    mActions.Add(Menu, "Zoom &In", QKeySequence::ZoomIn, [this] { mWindow.Agenda().Zoom(1); });
    mActions.Add(Menu, "Zoom &Out", QKeySequence::ZoomOut, [this] { mWindow.Agenda().Zoom(-1); });
    mActions.Add(Menu, "Zoom to &Fit", QKeySequence("Ctrl+0"), [this] { mWindow.Agenda().ZoomToFit(); });
    mActions.AddLine(Menu);
    auto* colours = new QMenu("&Colour By", &mWindow);
    FillColouredBy(*colours, mDesk);
    mActions.AddMenu(Menu, *colours);
    const auto addSetting = [this](const char* text, const char* keys, bool DesktopSettings::*setting) {
        mActions.AddSwitch(
            Menu, text, QKeySequence(keys), [this, setting] { return mDesk.Settings().*setting; },
            [this, setting](
                bool on) { mDesk.Change([setting, on](DesktopSettings& settings) { settings.*setting = on; }); });
    };
    addSetting("Fold Short &Ones", "", &DesktopSettings::foldsShortOnes);
    addSetting("Hide &Titles", "Ctrl+Shift+H", &DesktopSettings::hidesTitles);
    addSetting("Side &Panel", "F9", &DesktopSettings::hasSidePanel);
    mActions.Add(Menu, "&Next Pane", QKeySequence("F6"), [this] { mWindow.NextPane(1); });
    mActions.Add(Menu, "P&revious Pane", QKeySequence("Shift+F6"), [this] { mWindow.NextPane(-1); });
    mActions.AddLine(Menu);
    using Look = DesktopSettings::Appearance;
    for (const auto& [look, text] :
        { std::pair(Look::System, "Colours of the S&ystem"), std::pair(Look::Light, "L&ight"),
            std::pair(Look::Dark, "Dar&k"), std::pair(Look::HighContrast, "&High Contrast") }) {
        mActions.AddSwitch(
            Menu, text, {}, [this, look = look] { return mDesk.Settings().appearance == look; },
            [this, look = look](
                bool) { mDesk.Change([look](DesktopSettings& settings) { settings.appearance = look; }); });
    }
}

void MainCommands::FillViews(QMenu& menu)
{
    menu.clear();
    mDesk.Do([&] {
        const auto& explorer = mWindow.Explorer();
        const auto current = explorer->CurrentView();
        const auto views = explorer->CurrentFolder()->Views();
        for (std::int32_t i = 1; i <= views->Count(); ++i) {
            const auto name = views->Item(i)->Name();
            auto* action = menu.addAction(ToQt(name).replace("&", "&&"));
            action->setCheckable(true);
            action->setChecked(name == current);
            QObject::connect(action, &QAction::triggered, &mWindow,
                [this, name] { mDesk.Do([&] { mWindow.Explorer()->PickView(name); }); });
        }
    });
    if (menu.isEmpty()) {
        menu.addAction("There is none")->setEnabled(false);
    }
}

void MainCommands::ShowMenu(const QPoint& place)
{
    if (mWindow.Selected().empty()) {
        return;
    }
    QMenu menu(&mWindow);
    QObject::connect(menu.addAction("&Open"), &QAction::triggered, &mWindow, [this] { mWindow.OpenSelected(); });
    mWindow.Foot().FillMenu(*menu.addMenu("Set &Project"));
    QObject::connect(menu.addAction("&Why This Project?"), &QAction::triggered, &mWindow, [this] { mWindow.AskWhy(); });
    QObject::connect(
        menu.addAction("Make a &Rule\u2026"), &QAction::triggered, &mWindow, [this] { mWindow.MakeRule(); });
    const bool isByProject = mWindow.Log().ColouredBy() == Coloured::Project;
    QObject::connect(menu.addAction(isByProject ? "O&nly This Project" : "O&nly This Application"), &QAction::triggered,
        &mWindow, [this] { ShowOnlySelected(); });
    menu.addSeparator();
    QObject::connect(menu.addAction("&Copy"), &QAction::triggered, &mWindow, [this] { mOutlets.Copy(); });
    QObject::connect(menu.addAction("&Delete"), &QAction::triggered, &mWindow, [this] { mWindow.DeleteSelected(); });
    menu.exec(place);
}

void MainCommands::ShowOnlySelected()
{
    ProjectRows::Names names;
    for (const auto& activity : mWindow.SelectedActivities()) {
        names.insert(mWindow.Log().ColourNameOf(activity));
    }
    mWindow.Side().Projects().ShowOnly(names);
}

bool MainCommands::TakeKey(const QKeyEvent& event)
{
    const auto place = event.key() - Qt::Key_1;
    // On some keyboards the digits need Shift.
    const auto modifiers = event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    if (place >= 0 && place < 9 && (modifiers == Qt::NoModifier || modifiers == Qt::ShiftModifier)) {
        return TakeDigit(static_cast<std::size_t>(place));
    }
    if (modifiers != Qt::NoModifier) {
        return false;
    }
    switch (event.key()) {
    case Qt::Key_PageUp:
        mWindow.Page(-1);
        return true;
    case Qt::Key_PageDown:
        mWindow.Page(1);
        return true;
    case Qt::Key_Delete:
        mWindow.DeleteSelected();
        return true;
    case Qt::Key_Escape:
        if (!mWindow.Bar().SearchField().text().isEmpty()) {
            mWindow.Bar().SearchField().clear();
            return true;
        }
        return mWindow.Side().Projects().ShowAll();
    default:
        break;
    }
    return TakeLetter(event.key()) || (mDesk.Settings().hasLetterKeys && TakeViewLetter(event.key()));
}

bool MainCommands::TakeDigit(std::size_t place)
{
    const auto& projects = mWindow.Foot().Projects();
    if (!mWindow.Selected().empty() && place < projects.size()) {
        // The list changes when the project is set.
        mWindow.SetProject(std::string(projects[place]));
    }
    return true;
}

bool MainCommands::TakeLetter(int key)
{
    switch (key) {
    case Qt::Key_N:
        mWindow.SetNewProject();
        return true;
    case Qt::Key_R:
        mWindow.MakeRule();
        return true;
    case Qt::Key_Y:
        mWindow.AskWhy();
        return true;
    default:
        return false;
    }
}

bool MainCommands::TakeViewLetter(int key)
{
    switch (key) {
    case Qt::Key_T:
        mWindow.GoToToday();
        return true;
    case Qt::Key_D:
        mWindow.Choose(View::Day);
        return true;
    case Qt::Key_W:
        mWindow.Choose(View::Week);
        return true;
    case Qt::Key_L:
        mWindow.Choose(View::List);
        return true;
    case Qt::Key_S:
        mWindow.Choose(View::SortOut);
        return true;
    default:
        return false;
    }
}

}
