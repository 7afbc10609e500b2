#pragma once

#include "desktop/qt/Desk.h"
#include "host/windows/HostInspector.h"

#include <QToolBar>
#include <cstdint>
#include <functional>

class QToolButton;

namespace tempodial {

/// The commands of an item's window as its model has them: the host's own, with the items beside behind two of them,
/// and the product's.
class CommandBarView final : public QToolBar
{
public:
    /// Takes what is asked before a command runs, which may hold it back by false.
    CommandBarView(Desk& desk, Ref<HostInspector> inspector, std::function<bool()> mayRun, QWidget* parent);

    /// Shows the model as it is now, if it has changed.
    void Follow();
    /// The button of a command by its caption without a key; null for none.
    QToolButton* ButtonOf(const QString& caption) const;

private:
    void AddCommand(const Ref<HostCommandBarControl>& command);
    /// An item in those lists: when it begins, and what it is.
    QString LineOf(const Ref<StoreItem>& item) const;
    void FillWithItems(QMenu& menu, std::int32_t command);
    /// Does something at the window unless something holds it back.
    void Run(const std::function<void()>& work);

    Desk& mDesk;
    Ref<HostInspector> mInspector;
    std::function<bool()> mMayRun;
    bool mHasChanged = true;
    Subscription mChanges;
};

}
