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

    /// The keys that save what is shown, and keep the window open.
    static constexpr auto SaveKeys = "Ctrl+Shift+S";

    void Print() override;
    CommandBarView& Commands() const { return *mCommands; }
    /// The page; null for an item without one.
    PageView* Page() const { return mPage; }
    const QLabel& Why() const { return *mWhy; }
    const QPlainTextEdit& Body() const { return *mBody; }

protected:
    QString Title() const override;
    void FollowContent() override;
    bool TakeIn() override;

private:
    void ShowWhy();
    void Save();

    CommandBarView* mCommands;
    PageView* mPage = nullptr;
    QLabel* mTimes;
    QLabel* mWhy;
    QPlainTextEdit* mBody;
};

}
