#include "desktop/qt/ItemWindow.h"

#include "desktop/qt/QtText.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QShortcut>
#include <QTextDocument>

namespace tempodial {

ItemWindow::ItemWindow(Desk& desk, Ref<HostInspector> inspector)
    : mDesk(desk)
    , mInspector(std::move(inspector))
    , mContent(new QVBoxLayout)
    , mNotice(new QLabel(this))
    , mChanges(mInspector->SubscribeToChanges({ .Changed = {}, .BroughtToFront = [this] { mComesToFront = true; } }))
    , mEvents(desk.Subscribe({ .Changed = [this] { Follow(); },
          .Restyled = [this] { Follow(); },
          .Failed =
              [this](const std::string& message) {
                  if (isActiveWindow()) {
                      Say(ToQt(message));
                  }
              } }))
{
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(mContent, 1);
    mNotice->setTextFormat(Qt::PlainText);
    mNotice->setWordWrap(true);
    mNotice->hide();
    layout->addWidget(mNotice);
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, [this] { close(); });
}

QString ItemWindow::Notice() const
{
    return mNotice->isHidden() ? QString() : mNotice->text();
}

void ItemWindow::Say(const QString& text)
{
    mNotice->setText(text);
    mNotice->setVisible(!text.isEmpty());
}

QString ItemWindow::Title() const
{
    return ToQt(mInspector->Caption());
}

void ItemWindow::Follow()
{
    if (mInspector->IsGone()) {
        return;
    }
    const auto& item = mInspector->ShownItem();
    const bool isUnsaved = item && item->HasChanges();
    setWindowTitle((isUnsaved ? UnsavedDot : "") + Title());
    FollowContent();
    if (std::exchange(mComesToFront, false) && isVisible() && !isActiveWindow()) {
        raise();
        activateWindow();
    }
}

void ItemWindow::PrintDocument(const QTextDocument& document)
{
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted) {
        document.print(&printer);
    }
}

void ItemWindow::closeEvent(QCloseEvent* event)
{
    if (!mInspector->IsGone() && TakeIn()) {
        mDesk.Do([this] { mInspector->Close(); });
    }
    // The model says whether the window goes.
    event->setAccepted(mInspector->IsGone());
}

void ItemWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && !mInspector->IsGone()
        && mDesk.Windows().ActiveInspector() != mInspector) {
        mDesk.Do([this] { mDesk.Windows().ActivateInspector(mInspector); });
    }
}

}
