#include "host/system/GMimeDraftWriter.h"

#include "host/files/ReplacementFile.h"
#include "host/files/SystemFailure.h"

#include <utility>

namespace tempodial {

GMimeDraftWriter::GMimeDraftWriter(std::string modulePath)
    : mModule(std::move(modulePath))
{
}

void GMimeDraftWriter::Write(const MailDraft& draft, const std::string& path)
{
    const auto writeMessage = mModule.Get<MimeMessageWriter>(MimeMessageWriterName);
    ReplacementFile file { NativePath(path) };
    if (const auto error = writeMessage(draft, file.Descriptor()); error != 0) {
        throw SystemFailure(error);
    }
    file.Commit();
}

}
