#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>
#include <utility>

namespace tempodial {

/// Counts how often a widget is painted by itself, which pictures of it don't tell since they always paint.
class PaintCounter final : public QObject
{
public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }

    /// How often it was painted since that was asked last.
    int Take()
    {
        QCoreApplication::processEvents();
        return std::exchange(mCount, 0);
    }

protected:
    bool eventFilter(QObject* /*object*/, QEvent* event) override
    {
        mCount += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int mCount = 0;
};

}
