#pragma once

#include "platform/system/MailDraft.h"

namespace tempodial {

/// Writes a draft as a MIME message to an open file, with a plain text for readers that don't show its page unless that
/// is empty; 0, or the system's number of the error that kept it from that.
using MimeMessageWriter = int (*)(const MailDraft& draft, const std::string& plainText, int descriptor);

/// The module that writes mails, and the name of its one function, a `MimeMessageWriter`.
inline constexpr auto MimeMessageModule = "tempodial-mail";
inline constexpr auto MimeMessageWriterName = "TempodialWriteMimeMessage";

}
