#pragma once

#include "desktop/ActivityTable.h"
#include "desktop/qt/Desk.h"

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
    /// Lets a person choose a file for what is selected, or else for all that is shown.
    void AskWhereToExport();
    /// Writes that into a file: a table for spreadsheets, or plain lines where its name says so. Fails as the file
    /// does.
    void Export(const std::string& path) const;

private:
    QString Title() const;
    ActivityTable Table() const;

    MainWindow& mWindow;
    Desk& mDesk;
};

}
