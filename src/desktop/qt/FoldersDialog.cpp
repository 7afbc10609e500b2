#include "desktop/qt/FoldersDialog.h"

#include "desktop/qt/QtText.h"
#include "host/store/FoldersBelow.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <algorithm>
#include <utility>

namespace tempodial {

FoldersDialog::FoldersDialog(Desk& desk, Ref<HostExplorer> explorer, QWidget* parent)
    : QDialog(parent)
    , mDesk(desk)
    , mExplorer(std::move(explorer))
    , mList(new QListWidget(this))
{
    setObjectName(Name);
    setWindowTitle("Folder");
    setAttribute(Qt::WA_DeleteOnClose);
    auto* layout = new QVBoxLayout(this);
    auto* label = new QLabel("&Go to a folder, or choose several to see them side by side:", this);
    label->setBuddy(mList);
    layout->addWidget(label);
    layout->addWidget(mList);
    mList->setSelectionMode(QAbstractItemView::ExtendedSelection);
    mDesk.Do([this] {
        const auto& mailbox = mDesk.Session().Mailbox();
        mFolders = FoldersBelow(mailbox->FolderByPath(""));
        for (const auto& folder : mFolders) {
            mList->addItem(ToQt(mailbox->PathOf(folder)));
        }
    });
    connect(mList, &QListWidget::itemSelectionChanged, this, [this] { FollowChoice(); });
    connect(mList, &QListWidget::itemDoubleClicked, this, [this] { accept(); });
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { accept(); });
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { reject(); });
    layout->addWidget(buttons);
}

void FoldersDialog::FollowChoice()
{
    std::erase_if(mChosen, [this](int row) { return !mList->item(row)->isSelected(); });
    for (int row = 0; row < mList->count(); ++row) {
        if (mList->item(row)->isSelected() && std::find(mChosen.begin(), mChosen.end(), row) == mChosen.end()) {
            mChosen.push_back(row);
        }
    }
}

void FoldersDialog::accept()
{
    std::vector<Ref<MAPIFolder>> chosen;
    for (const auto row : mChosen) {
        chosen.push_back(mFolders[static_cast<std::size_t>(row)]);
    }
    QDialog::accept();
    mDesk.Do([&] {
        if (chosen.size() > 1) {
            mExplorer->ShowBeside(chosen);
        } else if (!chosen.empty()) {
            mExplorer->GoTo(chosen.front());
        }
    });
}

}
