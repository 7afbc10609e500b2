#pragma once

#include <QApplication>
#include <exception>
#include <functional>

namespace tempodial {

/// The toolkit's application as the outer door of all that a person and the system do at its windows: no failure leaves
/// an event, since the toolkit can't take one.
class GuardedApplication final : public QApplication
{
public:
    using QApplication::QApplication;

    /// Told what an event failed with.
    std::function<void(const std::exception& failure)> mFailed;

    bool notify(QObject* receiver, QEvent* event) override;

private:
    void Tell(const std::exception& failure) const noexcept;
};

}
