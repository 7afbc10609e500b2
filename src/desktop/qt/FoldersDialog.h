#pragma once

#include "desktop/qt/Desk.h"
#include "host/windows/HostExplorer.h"

#include <QDialog>
#include <vector>

class QListWidget;

namespace tempodial {

/// The folders of the mailbox, of which a person chooses the one that a window goes to, or several that it shows side
/// by side, the first that was chosen in front.
class FoldersDialog final : public QDialog
{
public:
    static constexpr auto Name = "folders";

    FoldersDialog(Desk& desk, Ref<HostExplorer> explorer, QWidget* parent);

    void accept() override;

private:
    void FollowChoice();

    Desk& mDesk;
    Ref<HostExplorer> mExplorer;
    QListWidget* mList;
    std::vector<Ref<MAPIFolder>> mFolders;
    /// The rows that are chosen, in the order in which they were.
    std::vector<int> mChosen;
};

}
