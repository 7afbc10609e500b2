#pragma once

#include <QFrame>
#include <cstdint>
#include <functional>
#include <vector>

class QListWidget;

namespace tempodial {

/// The short activities of a run one by one, in a list that opens beside them.
class ShortBubble final : public QFrame
{
public:
    struct Row
    {
        std::int64_t number = 0;
        QString text;
    };
    /// What a person wants of one of them.
    struct Wishes
    {
        std::function<void(std::int64_t number)> select;
        std::function<void(std::int64_t number)> open;
        /// A key that means nothing to the list; true when it was taken, and then the list goes.
        std::function<bool(QKeyEvent& event)> key;
    };

    ShortBubble(const std::vector<Row>& rows, Wishes wishes, QWidget* parent);

    QListWidget& List() { return *mList; }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    std::int64_t Current() const;

    Wishes mWishes;
    QListWidget* mList;
};

}
