#include "desktop/qt/EmptyNote.h"

#include <QAbstractScrollArea>
#include <QEvent>

namespace tempodial {

EmptyNote::EmptyNote(QAbstractScrollArea& view)
    : QLabel(&view)
    , mView(view)
{
    constexpr int Margin = 16;
    setMargin(Margin);
    setTextFormat(Qt::RichText);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    hide();
    connect(this, &QLabel::linkActivated, this, [this] { mFollowLink(); });
    view.installEventFilter(this);
}

void EmptyNote::Say(const QString& text, const QString& link)
{
    const auto step = link.isEmpty() ? QString() : "<br><br><a href=\"#\">" + link.toHtmlEscaped() + "</a>";
    setText("<center>" + text.toHtmlEscaped() + step + "</center>");
    setVisible(!text.isEmpty());
    Place();
}

void EmptyNote::Place()
{
    adjustSize();
    auto place = rect();
    place.moveCenter(mView.viewport()->geometry().center());
    move(place.topLeft());
}

bool EmptyNote::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        Place();
    }
    return QLabel::eventFilter(object, event);
}

}
