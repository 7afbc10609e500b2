#include "desktop/qt/ReportDocument.h"

#include "desktop/ReportPage.h"
#include "desktop/qt/QtText.h"

#include <QBuffer>
#include <QImage>
#include <QPdfWriter>
#include <QUrl>

namespace tempodial {

namespace {

/// Around the page, in pixels.
constexpr int PageMargin = 16;
/// The colour of bars, as the product's page has it.
constexpr QRgb BarColour = 0xff3d7cae;

}

ReportDocument::ReportDocument(QObject* parent)
    : QTextDocument(parent)
{
    setUndoRedoEnabled(false);
    setDocumentMargin(PageMargin);
}

void ReportDocument::Show(const MailDraft& mail)
{
    if (mail.isHtml) {
        setHtml(ToQt(ReportPage::ForViewer(mail.body)));
    } else {
        // The head of a plain one says too little to be shown by itself.
        setPlainText(ReportPage::IsTooLong(mail.body) ? QString() : ToQt(mail.body));
    }
}

std::string ReportDocument::Pdf() const
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setTitle(metaInformation(QTextDocument::DocumentTitle));
        print(&writer);
    }
    return buffer.data().toStdString();
}

QVariant ReportDocument::loadResource(int type, const QUrl& name)
{
    if (type != QTextDocument::ImageResource || name != QUrl(ReportPage::BarImage)) {
        return {};
    }
    QImage image(1, ReportPage::BarHeight, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (int line = ReportPage::BarGap; line < image.height(); ++line) {
        image.setPixel(0, line, BarColour);
    }
    return image;
}

}
