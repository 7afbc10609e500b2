#pragma once

#include "desktop/qt/ItemWindow.h"
#include "platform/system/MailDraft.h"

#include <string>

class QAction;
class QTextBrowser;
class QToolBar;

namespace tempodial {

class BrowserPages;
class ReportDocument;

/// The window of a mail: a report, to be read, printed, kept as a file or handed on. It sends nothing.
class ReportWindow final : public ItemWindow
{
public:
    /// Where the report can be kept, each in a file of its own kind.
    enum class Form { Pdf, Mail, Table };

    ReportWindow(Desk& desk, Ref<HostInspector> inspector, BrowserPages& pages);

    void Print() override;
    /// Writes the report into a file, in the place of one that is there. Fails as writing does, and (5) for a table
    /// when none is attached.
    void Save(Form form, const std::string& path);
    /// Puts the report on the clipboard, as the product made it.
    void Copy();
    const QTextBrowser& Viewer() const { return *mViewer; }
    const ReportDocument& Document() const { return *mDocument; }
    /// A command of the bar by its text; null for none.
    QAction* CommandOf(const QString& text) const;

protected:
    void FollowContent() override;

private:
    const MailDraft& Mail() const;
    void AddCommands();
    void AskWhere(Form form);
    void ShowHead();

    BrowserPages& mPages;
    QToolBar* mBar;
    QAction* mSaveTable = nullptr;
    QLabel* mSubject;
    QLabel* mAttachments;
    QLabel* mTooLong;
    QTextBrowser* mViewer;
    ReportDocument* mDocument;
    bool mHasChanged = true;
    Subscription mMailChanges;
};

}
