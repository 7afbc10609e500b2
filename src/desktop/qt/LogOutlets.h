#pragma once

#include "desktop/qt/Desk.h"
#include "desktop/qt/LogExport.h"

#include <QString>
#include <string>

namespace tempodial {

class MainWindow;

/// What of a window's log leaves the program: on paper, to the clipboard, into a file.
class LogOutlets
{
public:
    /// Both must live as long as this.
    LogOutlets(MainWindow& window, Desk& desk);

    /// Lets a person choose a printer, and prints what is shown there.
    void Print();
    /// Copies what is selected.
    void Copy();
    /// Lets a person choose a file of a form for what is selected, or else for all that is shown.
    void AskWhereToExport(const LogExport::FormWords& form);
    /// Writes that into a file, and says what was written.
    void ExportAndSay(const QString& path, LogExport::Form form);
    /// What would be written: how many, and which.
    QString Scope() const;
    /// The name that is offered for the file, without its ending.
    QString FileName() const;
    /// Writes that into a file; fails as the store and the file do.
    void Export(const std::string& path, LogExport::Form form) const;

private:
    QString Title() const;

    MainWindow& mWindow;
    Desk& mDesk;
};

}
