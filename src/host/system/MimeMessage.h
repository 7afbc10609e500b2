#pragma once

#include "platform/system/MailDraftWriter.h"

namespace tempodial {

/// Writes a draft as a MIME message to an open file; 0, or the system's number of the error that kept it from that.
using MimeMessageWriter = int (*)(const MailDraft& draft, int descriptor);

/// The module that writes mails, and the name of its one function, a `MimeMessageWriter`.
inline constexpr auto MimeMessageModule = "tempodial-mail";
inline constexpr auto MimeMessageWriterName = "TempodialWriteMimeMessage";

}
