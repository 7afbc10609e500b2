#include "Frames.h"

#include "desktop/qt/AgendaView.h"
#include "desktop/qt/NavigationBar.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <stdexcept>

namespace tempodial {

namespace {

constexpr int Many = 200;

void Press(QWidget& widget, Qt::Key key, const QString& text = {})
{
    for (const auto type : { QEvent::KeyPress, QEvent::KeyRelease }) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&widget, &event);
    }
}

}

std::vector<Spent> Frames::Measure(const std::string& what, int count, const std::function<void(int frame)>& input)
{
    std::vector<Spent> frames;
    mDesk.Settle();
    for (int frame = 0; frame < count; ++frame) {
        const auto begin = Spent::Now();
        input(frame);
        if (!mDesk.Settle()) {
            throw std::runtime_error("input " + std::to_string(frame) + " of \"" + what + "\" painted nothing");
        }
        frames.push_back(Spent::Now().Since(begin));
    }
    return frames;
}

void Frames::Wheel(int notches, Qt::KeyboardModifiers modifiers)
{
    constexpr int Notch = 120;
    auto* viewport = mDesk.Window().Agenda().viewport();
    const auto place = QPointF(viewport->rect().center());
    QWheelEvent event(place, viewport->mapToGlobal(place), {}, QPoint(0, notches * Notch), Qt::NoButton, modifiers,
        Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(viewport, &event);
}

void Frames::Mouse(QEvent::Type type, const QPointF& place, Qt::MouseButtons buttons)
{
    auto* viewport = mDesk.Window().Agenda().viewport();
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, viewport->mapToGlobal(place), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &event);
}

std::vector<Spent> Frames::Scroll()
{
    const auto* bar = mDesk.Window().Agenda().verticalScrollBar();
    int notches = -1;
    return Measure("scroll", Many, [&](int) {
        if (bar->value() == bar->maximum()) {
            notches = 1;
        } else if (bar->value() == bar->minimum()) {
            notches = -1;
        }
        Wheel(notches, Qt::NoModifier);
    });
}

std::vector<Spent> Frames::Zoom()
{
    constexpr double Least = 0.7;
    constexpr double Most = 6;
    int notches = -1;
    return Measure("zoom", Many, [&](int) {
        const auto zoom = mDesk.Window().Agenda().Scene().Scale().PixelsPerMinute();
        if (zoom <= Least) {
            notches = 1;
        } else if (zoom >= Most) {
            notches = -1;
        }
        Wheel(notches, Qt::ControlModifier);
    });
}

std::vector<Spent> Frames::Drag()
{
    auto& agenda = mDesk.Window().Agenda();
    agenda.SetFocusOn(agenda.Scene().Layout().Pieces().size() / 2);
    mDesk.Settle();
    const auto& scene = agenda.Scene();
    const auto from = agenda.InView(scene.Geometry().BoxOf(scene.Layout().Pieces()[*agenda.Focus()])).center();
    Mouse(QEvent::MouseButtonPress, from, Qt::LeftButton);
    constexpr int Beginning = 12;
    constexpr int There = 25;
    auto frames = Measure("drag", Many, [&](int frame) {
        const auto step = frame % (2 * There);
        const auto away = step < There ? step : 2 * There - step;
        Mouse(QEvent::MouseMove, from - QPointF(away, Beginning + away * 4), Qt::LeftButton);
    });
    Press(agenda, Qt::Key_Escape);
    Mouse(QEvent::MouseButtonRelease, from, Qt::NoButton);
    return frames;
}

std::vector<Spent> Frames::Search()
{
    auto& field = mDesk.Window().Bar().SearchField();
    const QString words = "budget";
    const auto length = static_cast<int>(words.size());
    return Measure("search", Many / (2 * length) * 2 * length, [&](int frame) {
        const auto step = frame % (2 * length);
        if (step < length) {
            Press(field, Qt::Key_unknown, words.mid(step, 1));
        } else {
            Press(field, Qt::Key_Backspace);
        }
    });
}

std::vector<Spent> Frames::Walk()
{
    auto& agenda = mDesk.Window().Agenda();
    agenda.SetFocusOn(0);
    return Measure("walk", Many, [&](int) { Press(agenda, Qt::Key_Down); });
}

}
