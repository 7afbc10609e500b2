#include "desktop/qt/LogOutlets.h"

#include "desktop/ActivityTable.h"
#include "desktop/ActivityWords.h"
#include "desktop/DesktopStrings.h"
#include "desktop/qt/LogPage.h"
#include "desktop/qt/MainWindow.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/SavedFile.h"

#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QStandardPaths>

namespace tempodial {

LogOutlets::LogOutlets(MainWindow& window, Desk& desk)
    : mWindow(window)
    , mDesk(desk)
{
}

QString LogOutlets::Title() const
{
    return ToQt(ActivityWords(mDesk.Formats(), mDesk.ShownTitles()).PeriodTitle(mWindow.Log().Days()));
}

void LogOutlets::Print()
{
    const auto& shown = mWindow.ShownActivities();
    const LogPage page(
        Title(), ToQt(ActivityWords::Summary(shown)), ActivityTable(mDesk.Formats(), mDesk.ShownTitles(), shown));
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, &mWindow);
    if (dialog.exec() == QDialog::Accepted) {
        page.print(&printer);
    }
}

void LogOutlets::Copy()
{
    const auto selected = mWindow.SelectedActivities();
    if (selected.empty()) {
        mWindow.Say("Nothing is selected: select what is to be copied, or all with Ctrl+A.");
        return;
    }
    QGuiApplication::clipboard()->setText(ToQt(ActivityTable(mDesk.Formats(), mDesk.ShownTitles(), selected).Text()));
    mWindow.Say("Copied: " + ToQt(ActivityWords::Summary(selected)));
}

void LogOutlets::AskWhereToExport(const LogExport::FormWords& form)
{
    const auto folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const auto path = QFileDialog::getSaveFileName(
        &mWindow, "Export " + Scope(), folder + "/" + FileName() + form.ending, form.filter);
    if (!path.isEmpty()) {
        ExportAndSay(path, form.form);
    }
}

void LogOutlets::ExportAndSay(const QString& path, LogExport::Form form)
{
    mDesk.Do([&] {
        const auto scope = Scope();
        Export(FromQt(path), form);
        mWindow.Say("Saved " + scope + " as " + path);
    });
}

QString LogOutlets::Scope() const
{
    const auto selected = mWindow.SelectedActivities().size();
    const auto shown = mWindow.ShownActivities().size();
    const auto all = ToQt(ActivitiesText(static_cast<std::int64_t>(shown)));
    if (selected == 0) {
        return mWindow.IsSearched() ? all + " that the search has found" : all + " of " + Title();
    }
    return QString::number(selected) + " selected of " + all;
}

QString LogOutlets::FileName() const
{
    const bool isPart = !mWindow.SelectedActivities().empty() || mWindow.IsSearched();
    return Title().replace('/', '-') + (isPart ? ", in part" : "");
}

void LogOutlets::Export(const std::string& path, LogExport::Form form) const
{
    const auto selected = mWindow.SelectedActivities();
    SaveFile(path,
        LogExport(mDesk.Profile(), mDesk.ShownTitles(), selected.empty() ? mWindow.ShownActivities() : selected)
            .In(form));
}

}
