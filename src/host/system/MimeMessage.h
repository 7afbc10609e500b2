#pragma once

#include "platform/system/MailDraftWriter.h"

namespace tempodial {

/// Writes a draft as a MIME message to an open file; 0, or the system's number of the error that kept it from that.
using MimeMessageWriter = int (*)(const MailDraft& draft, int descriptor);

/// The name of the one function of the module that is a `MimeMessageWriter`.
inline constexpr auto MimeMessageWriterName = "TempodialWriteMimeMessage";

}
