#pragma once

#include <QFrame>
#include <QTimer>
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

    /// Whether a person has asked for it, so that it takes the focus, or only rests where it belongs: then it goes when
    /// the pointer has left it and what it belongs to.
    enum class Opening { Asked, Resting };

    ShortBubble(const std::vector<Row>& rows, Wishes wishes, Opening opening, QWidget* parent);

    QListWidget& List() { return *mList; }
    bool IsResting() const { return mOpening == Opening::Resting; }
    /// The pointer is on what a resting one belongs to, or has left that.
    void Stay() { mLeaving.stop(); }
    void LeaveSoon();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    std::int64_t Current() const;

    Wishes mWishes;
    Opening mOpening;
    QListWidget* mList;
    QTimer mLeaving;
};

}
