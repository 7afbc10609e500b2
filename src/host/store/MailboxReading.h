#pragma once

#include "base/Ref.h"
#include "host/store/Mailbox.h"
#include "platform/system/LocaleFormats.h"
#include "platform/system/XmlDocument.h"

#include <string>

namespace tempodial {

/// Opens the mailbox of a file for reading, as it is at this moment, without a change to it; where there is none it is
/// an empty one. Another process may write it meanwhile: `isHeld` tells that one has it open and so looked it over.
/// Throws `MailboxError` as `Mailbox::Open` does. A write to it fails (70).
Ref<Mailbox> OpenMailboxForReading(
    const std::string& path, Ref<LocaleFormats> formats, Ref<XmlFactory> xml, bool isHeld);

}
