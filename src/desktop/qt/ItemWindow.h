#pragma once

#include "desktop/qt/Desk.h"
#include "host/windows/HostInspector.h"

#include <QWidget>

class QBoxLayout;
class QLabel;
class QTextDocument;

namespace tempodial {

/// The window of an inspector of the host, whatever it shows: title, coming to the front, being closed, and a line for
/// what went wrong.
class ItemWindow : public QWidget
{
public:
    /// Stands before the title of what isn't saved.
    static constexpr auto UnsavedDot = "\u2022 ";

    ItemWindow(Desk& desk, Ref<HostInspector> inspector);

    /// A person prints what is shown.
    virtual void Print() = 0;
    /// What went wrong last, empty for nothing.
    QString Notice() const;

protected:
    /// What the window's title says of what is shown.
    virtual QString Title() const;
    /// Shows the content as it is now; the window isn't gone.
    virtual void FollowContent() = 0;
    /// Takes in what was typed before the window closes; false keeps it.
    virtual bool TakeIn() { return true; }
    /// Shows all as it is now; called when the content was made.
    void Follow();
    /// Says something at the foot until the next time something is done.
    void Say(const QString& text);
    /// Lets a person choose where to print a document, and prints it there.
    void PrintDocument(const QTextDocument& document);
    Desk& OwnDesk() const { return mDesk; }
    HostInspector& Model() const { return *mInspector; }
    const Ref<HostInspector>& Shown() const { return mInspector; }
    /// Where the content goes, from the top.
    QBoxLayout& Content() { return *mContent; }

    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    Desk& mDesk;
    Ref<HostInspector> mInspector;
    QBoxLayout* mContent;
    QLabel* mNotice;
    bool mComesToFront = false;
    Subscription mChanges;
    Subscription mEvents;
};

}
