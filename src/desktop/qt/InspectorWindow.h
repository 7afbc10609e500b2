#pragma once

#include "desktop/qt/ItemWindow.h"

class QLabel;
class QPlainTextEdit;

namespace tempodial {

class CommandBarView;
class PageView;

/// The window of an activity: its commands, its page, why it has its project, and its text; or of an appointment,
/// which has no page.
class InspectorWindow final : public ItemWindow
{
public:
    InspectorWindow(Desk& desk, Ref<HostInspector> inspector);

    void Print() override;
    CommandBarView& Commands() { return *mCommands; }
    /// The page; null for an item without one.
    PageView* Page() { return mPage; }
    const QLabel& Why() const { return *mWhy; }
    const QPlainTextEdit& Body() const { return *mBody; }

protected:
    void FollowContent() override;
    bool TakeIn() override;

private:
    void ShowWhy();

    CommandBarView* mCommands;
    PageView* mPage = nullptr;
    QLabel* mTimes;
    QLabel* mWhy;
    QPlainTextEdit* mBody;
};

}
