#include "desktop/qt/GuardedApplication.h"

#include <exception>

namespace tempodial {

bool GuardedApplication::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& failure) {
        Tell(failure.what());
    } catch (...) {
        Tell("Something failed that has no words for it: try once more.");
    }
    return true;
}

void GuardedApplication::Tell(const std::string& message) const noexcept
{
    try {
        if (mFailed) {
            mFailed(message);
        }
    } catch (...) { // NOLINT(bugprone-empty-catch)
        // Whoever should have told it has failed; the program goes on.
    }
}

}
