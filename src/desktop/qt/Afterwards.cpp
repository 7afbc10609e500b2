#include "desktop/qt/Afterwards.h"

#include <QTimer>
#include <utility>

namespace tempodial {

void Afterwards(QObject& object, std::function<void()> what)
{
    auto* timer = new QTimer(&object);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, &object, [timer, what = std::move(what)] {
        timer->deleteLater();
        what();
    });
    timer->start(0);
}

}
