#include "host/system/GMimeDraftWriter.h"

#include "host/files/MemoryFile.h"
#include "host/files/SystemFailure.h"

#include <utility>

namespace tempodial {

GMimeDraftWriter::GMimeDraftWriter(std::string modulePath)
    : mModule(std::move(modulePath))
{
}

std::string GMimeDraftWriter::Text(const MailDraft& draft, const std::string& plainText)
{
    const auto writeMessage = mModule.Get<MimeMessageWriter>(MimeMessageWriterName);
    const MemoryFile file;
    if (const auto error = writeMessage(draft, plainText, file.Descriptor()); error != 0) {
        throw SystemFailure(error);
    }
    return file.Text();
}

}
