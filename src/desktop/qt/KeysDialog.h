#pragma once

#include <QDialog>

class QTreeWidget;

namespace tempodial {

/// All keys and what they do, in a table.
class KeysDialog final : public QDialog
{
public:
    explicit KeysDialog(QWidget* parent);

    QTreeWidget& List() { return *mList; }

private:
    QTreeWidget* mList;
};

}
