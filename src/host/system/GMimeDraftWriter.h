#pragma once

#include "host/files/ProgramModule.h"
#include "host/system/MimeMessage.h"
#include "platform/system/MailDraftWriter.h"

#include <string>

namespace tempodial {

/// Writes drafts as MIME messages by GMime. That is in a module of its own, loaded for the first draft, so that runs
/// that write none don't pay for it.
class GMimeDraftWriter final : public MailDraftWriter
{
public:
    /// Takes the path of the module, which else is the program's own.
    explicit GMimeDraftWriter(std::string modulePath = ProgramModule::PathOf(MimeMessageModule));

    /// The text of a draft's file, with a plain text for readers that don't show its page unless that is empty. Fails
    /// (429) when the module can't be loaded, and when there isn't enough memory (7, 61).
    std::string Text(const MailDraft& draft, const std::string& plainText = "");
    /// Fails also as `Text` does.
    void Write(const MailDraft& draft, const std::string& path) override;

private:
    ProgramModule mModule;
};

}
