#include "desktop/qt/ReportWindow.h"

#include "base/Failure.h"
#include "desktop/ReportPage.h"
#include "desktop/qt/BrowserPages.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/ReportDocument.h"
#include "desktop/qt/SavedFile.h"
#include "desktop/qt/WindowRoom.h"
#include "host/system/GMimeDraftWriter.h"

#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QFileDialog>
#include <QLabel>
#include <QLocale>
#include <QMimeData>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTextBrowser>
#include <QToolBar>
#include <algorithm>

namespace tempodial {

namespace {

constexpr QSize UsualReportSize(760, 720);
constexpr auto TableEnding = ".csv";
constexpr auto TableType = "text/csv; charset=utf-8";
constexpr auto TooLongText = "This report is too long to be shown here as a whole. Open it in the browser, or save it.";

bool IsTable(const MailDraft::Attachment& attachment)
{
    return attachment.name.ends_with(TableEnding);
}

const MailDraft::Attachment* TableOf(const MailDraft& mail)
{
    const auto found = std::find_if(mail.attachments.begin(), mail.attachments.end(), IsTable);
    return found == mail.attachments.end() ? nullptr : &*found;
}

/// What is asked for a file's name with, and what it ends in.
std::pair<QString, QString> WordsOf(ReportWindow::Form form)
{
    switch (form) {
    case ReportWindow::Form::Pdf:
        return { "Save as PDF", ".pdf" };
    case ReportWindow::Form::Mail:
        return { "Save as E-mail", ".eml" };
    default:
        return { "Save Table", TableEnding };
    }
}

/// Reports are paper in every theme, as they are sent.
QPalette Paper()
{
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, QColor("#1f2933"));
    palette.setColor(QPalette::Link, QColor("#1d5f96"));
    return palette;
}

}

ReportWindow::ReportWindow(Desk& desk, Ref<HostInspector> inspector, BrowserPages& pages)
    : ItemWindow(desk, std::move(inspector))
    , mPages(pages)
    , mBar(new QToolBar(this))
    , mSubject(new QLabel(this))
    , mAttachments(new QLabel(this))
    , mTooLong(new QLabel(TooLongText, this))
    , mViewer(new QTextBrowser(this))
    , mDocument(new ReportDocument(mViewer))
    , mMailChanges(Model().ShownMail()->SubscribeToChanges({ .Changed = [this] { mHasChanged = true; } }))
{
    resize(UsualReportSize * LetterScale(*this));
    AddCommands();
    auto font = mSubject->font();
    font.setBold(true);
    mSubject->setFont(font);
    for (auto* label : { mSubject, mAttachments, mTooLong }) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    mViewer->setOpenLinks(false);
    mViewer->setDocument(mDocument);
    mViewer->setAccessibleName("Report");
    Content().addWidget(mBar);
    Content().addWidget(mSubject);
    Content().addWidget(mAttachments);
    Content().addWidget(mTooLong);
    Content().addWidget(mViewer, 1);
    Follow();
}

void ReportWindow::AddCommands()
{
    const auto add = [this](const char* text, const QKeySequence& keys, auto run) {
        auto* action = mBar->addAction(text);
        action->setShortcut(keys);
        connect(action, &QAction::triggered, this, run);
        return action;
    };
    mBar->setMovable(false);
    add("Print", QKeySequence::Print, [this] { Print(); });
    mBar->addSeparator();
    add("Save as PDF", {}, [this] { AskWhere(Form::Pdf); });
    add("Save as E-mail", QKeySequence::Save, [this] { AskWhere(Form::Mail); });
    mSaveTable = add("Save Table", {}, [this] { AskWhere(Form::Table); });
    mBar->addSeparator();
    add("Copy", QKeySequence("Ctrl+Shift+C"), [this] { Copy(); });
    add("Open in Browser", {}, [this] { OwnDesk().Do([this] { mPages.Open(Mail()); }); });
}

const MailDraft& ReportWindow::Mail() const
{
    return Model().ShownMail()->Draft();
}

void ReportWindow::FollowContent()
{
    mViewer->setPalette(Paper());
    if (std::exchange(mHasChanged, false)) {
        ShowHead();
        mDocument->Show(Mail());
        mViewer->moveCursor(QTextCursor::Start);
        mViewer->verticalScrollBar()->setValue(0);
    }
}

void ReportWindow::ShowHead()
{
    const auto& mail = Mail();
    mSubject->setText(ToQt(mail.subject));
    QStringList attached;
    for (const auto& attachment : mail.attachments) {
        attached += ToQt(attachment.name) + " ("
            + QLocale(QLocale::English)
                  .formattedDataSize(
                      static_cast<qint64>(attachment.content.size()), 0, QLocale::DataSizeTraditionalFormat)
            + ")";
    }
    mAttachments->setText("Attached: " + attached.join(", "));
    mAttachments->setVisible(!attached.isEmpty());
    mTooLong->setVisible(ReportPage::IsTooLong(mail.body));
    mSaveTable->setEnabled(TableOf(mail) != nullptr);
}

void ReportWindow::Print()
{
    PrintDocument(*mDocument);
}

void ReportWindow::AskWhere(Form form)
{
    const auto [title, ending] = WordsOf(form);
    const auto folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const auto path = QFileDialog::getSaveFileName(
        this, title, folder + "/" + mSubject->text().replace('/', '-') + ending, "*" + ending);
    if (!path.isEmpty()) {
        Say({});
        OwnDesk().Do([&] {
            Save(form, FromQt(path));
            Say("Saved as " + path);
        });
    }
}

void ReportWindow::Save(Form form, const std::string& path)
{
    std::string content;
    if (form == Form::Pdf) {
        content = mDocument->Pdf();
    } else if (form == Form::Mail) {
        auto mail = Mail();
        for (auto& attachment : mail.attachments) {
            attachment.type = IsTable(attachment) ? TableType : attachment.type;
        }
        content = GMimeDraftWriter().Text(mail, mail.isHtml ? FromQt(mDocument->toPlainText()) : "");
    } else if (const auto* table = TableOf(Mail())) {
        content = table->content;
    } else {
        throw Failure(Error::InvalidCall, "No table is attached to this report");
    }
    SaveFile(path, content);
}

void ReportWindow::Copy()
{
    auto* content = new QMimeData;
    if (Mail().isHtml) {
        content->setHtml(ToQt(Mail().body));
    }
    content->setText(Mail().isHtml ? mDocument->toPlainText() : ToQt(Mail().body));
    QApplication::clipboard()->setMimeData(content);
    Say("Copied");
}

QAction* ReportWindow::CommandOf(const QString& text) const
{
    for (auto* action : mBar->actions()) {
        if (action->text() == text) {
            return action;
        }
    }
    return nullptr;
}

}
