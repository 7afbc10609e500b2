#pragma once

#include "platform/system/MailDraft.h"

#include <QTextDocument>
#include <string>

namespace tempodial {

/// A mail's text for display and print. It loads nothing: all that it shows is in the mail.
class ReportDocument final : public QTextDocument
{
public:
    explicit ReportDocument(QObject* parent);

    /// Shows a mail's text; one that is too long as its summary.
    void Show(const MailDraft& mail);
    /// The document as a PDF.
    std::string Pdf() const;

protected:
    QVariant loadResource(int type, const QUrl& name) override;
};

}
