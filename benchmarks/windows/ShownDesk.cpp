#include "ShownDesk.h"

#include "desktop/qt/AgendaView.h"
#include "desktop/qt/QtMessageBox.h"
#include "session/InstalledForm.h"

#include <QCoreApplication>
#include <QEvent>

namespace tempodial {

ShownDesk::ShownDesk(const std::string& profile, Date now)
{
    const ProfileOptions options { .profile = profile, .locale = "en_US", .now = now };
    mDesk = std::make_unique<tempodial::Desk>(RequireForm(options), profile + "/desktop.toml", mLook);
    mDesk->Start(MakeRef<QtMessageBox>(mDesk->Session().Mailbox(), [this] { mDesk->Show(); }));
    mWindows = std::make_unique<HostWindows>(*mDesk);
    mWindow = mWindows->WindowOf(mDesk->Windows().OpenExplorers().front());
    mWindow->Agenda().viewport()->installEventFilter(this);
}

ShownDesk::~ShownDesk()
{
    mWindows.reset();
    Settle();
    mDesk->Exit();
}

bool ShownDesk::Settle()
{
    const auto before = mPaints;
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return mPaints > before;
}

bool ShownDesk::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint) {
        ++mPaints;
    }
    return QObject::eventFilter(watched, event);
}

}
