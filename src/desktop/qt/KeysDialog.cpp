#include "desktop/qt/KeysDialog.h"

#include "desktop/KeyGuide.h"
#include "desktop/qt/RoomyRows.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QTreeWidget>

namespace tempodial {

namespace {

constexpr QSize KeysDialogSize(620, 640);

}

KeysDialog::KeysDialog(QWidget* parent)
    : QDialog(parent)
    , mList(new QTreeWidget(this))
{
    setWindowTitle("Keys");
    setAttribute(Qt::WA_DeleteOnClose);
    resize(KeysDialogSize);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(mList);
    mList->setHeaderLabels({ "Keys", "What they do" });
    mList->setItemDelegate(new RoomyRows(mList));
    mList->setUniformRowHeights(true);
    mList->setAllColumnsShowFocus(true);
    mList->setAccessibleName("Keys");
    QTreeWidgetItem* place = nullptr;
    for (const auto& line : KeyGuide()) {
        if (place == nullptr || place->text(0) != line.place) {
            place = new QTreeWidgetItem(mList, { line.place });
            place->setExpanded(true);
            auto bold = font();
            bold.setWeight(QFont::DemiBold);
            place->setFont(0, bold);
        }
        auto* item = new QTreeWidgetItem(place, { line.keys, line.what });
        item->setToolTip(1, line.what);
    }
    mList->resizeColumnToContents(0);
    mList->setCurrentItem(mList->topLevelItem(0));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { close(); });
    layout->addWidget(buttons);
}

}
