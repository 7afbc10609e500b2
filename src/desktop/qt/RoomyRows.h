#pragma once

#include <QStyledItemDelegate>
#include <algorithm>

namespace tempodial {

/// Gives the rows of a list room enough to be read and hit with ease, and their marks the size of those elsewhere.
class RoomyRows final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        constexpr int Room = 10;
        constexpr int Least = 26;
        const auto size = QStyledItemDelegate::sizeHint(option, index);
        return { size.width() + Room, std::max(size.height() + Room, Least) };
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        constexpr int Mark = 11;
        QStyledItemDelegate::initStyleOption(option, index);
        option->decorationSize = { Mark, Mark };
    }
};

}
