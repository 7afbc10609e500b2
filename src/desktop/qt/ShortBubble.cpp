#include "desktop/qt/ShortBubble.h"

#include "desktop/qt/RoomyRows.h"
#include "desktop/qt/ShownLine.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <algorithm>
#include <chrono>
#include <utility>

namespace tempodial {

namespace {

constexpr int ShortOneRole = Qt::UserRole;

}

ShortBubble::ShortBubble(const std::vector<Row>& rows, Wishes wishes, Opening opening, QWidget* parent)
    : QFrame(parent, opening == Opening::Asked ? Qt::Popup : Qt::ToolTip)
    , mWishes(std::move(wishes))
    , mOpening(opening)
    , mList(new QListWidget(this))
{
    constexpr int MostRows = 12;
    constexpr int WidestPixels = 520;
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    setAccessibleName("Short activities");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mList);
    mList->setFrameShape(QFrame::NoFrame);
    mList->setItemDelegate(new RoomyRows(mList));
    mList->setAccessibleName("Short activities");
    mList->setTextElideMode(Qt::ElideRight);
    mList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const auto& row : rows) {
        auto* item = new QListWidgetItem(row.text, mList);
        item->setToolTip(PlainToolTip(row.text));
        item->setData(ShortOneRole, static_cast<qlonglong>(row.number));
    }
    const auto shown = std::min(mList->count(), MostRows);
    mList->setFixedSize(std::min(mList->sizeHintForColumn(0) + 2 * mList->frameWidth() + MostRows, WidestPixels),
        shown * mList->sizeHintForRow(0) + 2);
    if (IsResting()) {
        setAttribute(Qt::WA_ShowWithoutActivating);
        mList->setFocusPolicy(Qt::NoFocus);
        mLeaving.setSingleShot(true);
        connect(&mLeaving, &QTimer::timeout, this, [this] { close(); });
    } else {
        // All of the run are selected until a person chooses one.
        mList->setCurrentRow(0);
    }
    mList->installEventFilter(this);
    connect(mList, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        if (item != nullptr) {
            mWishes.select(Current());
        }
    });
    connect(mList, &QListWidget::itemActivated, this, [this] {
        const auto number = Current();
        close();
        mWishes.open(number);
    });
    setFocusProxy(mList);
}

void ShortBubble::LeaveSoon()
{
    // The pointer takes a moment from one to the other.
    constexpr std::chrono::milliseconds Moment(300);
    if (IsResting() && !mLeaving.isActive()) {
        mLeaving.start(Moment);
    }
}

void ShortBubble::enterEvent(QEnterEvent* /*event*/)
{
    Stay();
}

void ShortBubble::leaveEvent(QEvent* /*event*/)
{
    LeaveSoon();
}

std::int64_t ShortBubble::Current() const
{
    const auto* item = mList->currentItem();
    return item == nullptr ? 0 : item->data(ShortOneRole).toLongLong();
}

bool ShortBubble::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        auto& key = static_cast<QKeyEvent&>(*event); // NOLINT(cppcoreguidelines-pro-type-static-cast-downcast)
        const bool isDigit = key.key() >= Qt::Key_1 && key.key() <= Qt::Key_9;
        if ((isDigit || key.key() == Qt::Key_Delete) && mWishes.key(key)) {
            close();
            return true;
        }
    }
    return QFrame::eventFilter(object, event);
}

}
