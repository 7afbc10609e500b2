#include "desktop/qt/BrowserPages.h"

#include "base/Failure.h"
#include "desktop/qt/QtText.h"
#include "host/files/ReplacementFile.h"

namespace tempodial {

void BrowserPages::Open(const MailDraft& mail)
{
    if (!mFolder) {
        mFolder = std::make_unique<QTemporaryDir>();
    }
    if (!mFolder->isValid()) {
        throw Failure(Error::PathNotFound, "There is no room for temporary files: " + FromQt(mFolder->errorString()));
    }
    const auto name = "report-" + std::to_string(++mCount) + (mail.isHtml ? ".html" : ".txt");
    const auto path = FromQt(mFolder->filePath(ToQt(name)));
    ReplacementFile file(NativePath::Exactly(path));
    file.Write(mail.body);
    file.TakePlace();
    mOpen(path);
}

}
