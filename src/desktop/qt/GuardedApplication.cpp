#include "desktop/qt/GuardedApplication.h"

#include <exception>
#include <stdexcept>

namespace tempodial {

bool GuardedApplication::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& failure) {
        Tell(failure);
    } catch (...) {
        Tell(std::runtime_error("Something failed that has no words for it: try once more."));
    }
    return true;
}

void GuardedApplication::Tell(const std::exception& failure) const noexcept
{
    try {
        if (mFailed) {
            mFailed(failure);
        }
    } catch (...) { // NOLINT(bugprone-empty-catch)
        // Whoever should have told it has failed; the program goes on.
    }
}

}
