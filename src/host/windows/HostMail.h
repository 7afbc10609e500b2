#pragma once

#include "platform/objectmodel/MailItem.h"
#include "platform/system/MailDraftWriter.h"

#include <functional>
#include <memory>
#include <string>

namespace tempodial {

/// A mail as a plain model: what it holds, for whoever shows it, sends it or writes it to a file.
class HostMail final : public MailItem, public std::enable_shared_from_this<HostMail>
{
public:
    /// Called when the mail is to be shown.
    using Shower = std::function<void(const Ref<HostMail>& mail)>;

    explicit HostMail(Shower shower);

    ObjectClass Class() const override { return ObjectClass::Mail; }
    std::string MessageClass() const override { return "IPM.Note"; }
    /// Empty: a mail is saved when it is sent or kept by whoever shows it.
    std::string EntryID() const override { return ""; }
    std::string Subject() const override { return mDraft.subject; }
    void SetSubject(const std::string& subject) override { mDraft.subject = subject; }
    std::string Body() const override { return mDraft.isHtml ? "" : mDraft.body; }
    void SetBody(const std::string& body) override;
    std::string HTMLBody() const override { return mDraft.isHtml ? mDraft.body : ""; }
    void SetHTMLBody(const std::string& html) override;
    Ref<tempodial::Attachments> Attachments() override;
    Ref<tempodial::Recipients> Recipients() override;
    void Display() override;

    /// Everything in it.
    const MailDraft& Draft() const { return mDraft; }

private:
    class AttachmentList;
    class RecipientList;

    Shower mShower;
    MailDraft mDraft;
};

}
