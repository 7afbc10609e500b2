#pragma once

#include "host/files/ProgramModule.h"
#include "host/system/MimeMessage.h"
#include "platform/system/MailDraft.h"

#include <string>

namespace tempodial {

/// Writes drafts as MIME messages by GMime. That is in a module of its own, loaded for the first draft, so that runs
/// that write none don't pay for it.
class GMimeDraftWriter final
{
public:
    /// Takes the path of the module, which else is the program's own.
    explicit GMimeDraftWriter(std::string modulePath = ProgramModule::PathOf(MimeMessageModule));

    /// The text of a draft's file, the same for the same draft at any time, with a plain text for readers that don't
    /// show its page unless that is empty. Fails (429) when the module can't be loaded, and when there isn't enough
    /// memory (7, 61).
    std::string Text(const MailDraft& draft, const std::string& plainText = "");

private:
    ProgramModule mModule;
};

}
