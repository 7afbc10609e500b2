#pragma once

#include "base/Ref.h"
#include "host/store/Mailbox.h"
#include "host/windows/ChangeEvents.h"
#include "platform/objectmodel/MailItem.h"
#include "platform/system/MailDraft.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// A mail as a plain model: what it holds, for whoever shows it, sends it or writes it to a file.
class HostMail final : public MailItem, public std::enable_shared_from_this<HostMail>
{
public:
    /// Called when the mail is to be shown.
    using Shower = std::function<void(const Ref<HostMail>& mail)>;

    /// A new mail of that number, which that mailbox is to keep.
    HostMail(std::int32_t number, Ref<Mailbox> mailbox, Shower shower);

    ObjectClass Class() const override { return ObjectClass::Mail; }
    std::string MessageClass() const override { return "IPM.Note"; }
    std::string EntryID() const override { return mRow == 0 ? "" : mMailbox->DraftId(mRow); }
    std::string Subject() const override { return mDraft.subject; }
    void SetSubject(const std::string& subject) override;
    std::string Body() const override { return mDraft.isHtml ? "" : mDraft.body; }
    void SetBody(const std::string& body) override;
    std::string HTMLBody() const override { return mDraft.isHtml ? mDraft.body : ""; }
    void SetHTMLBody(const std::string& html) override;
    Ref<tempodial::Attachments> Attachments() override;
    Ref<tempodial::Recipients> Recipients() override;
    void Display() override;

    /// Subscribes whoever draws the mail.
    Subscription SubscribeToChanges(ChangeEvents events) { return mChanges.Subscribe(std::move(events)); }
    /// The mail's number, from 1 and never given again.
    std::int32_t Number() const { return mNumber; }
    /// A person keeps the mail among the mailbox's drafts, anew when it is gone from there; fails as the store does.
    void Save();
    /// Everything in it.
    const MailDraft& Draft() const { return mDraft; }
    /// Everything in it, of which nothing is left in the mail: it may be long, and must not be held twice.
    MailDraft TakeDraft() { return std::exchange(mDraft, {}); }
    /// The paths of the files that couldn't be attached.
    const std::vector<std::string>& NotAttached() const { return mNotAttached; }

private:
    class AttachmentList;
    class RecipientList;

    std::int32_t mNumber;
    Ref<Mailbox> mMailbox;
    Shower mShower;
    MailDraft mDraft;
    std::vector<std::string> mNotAttached;
    /// Its row among the drafts, 0 until the first save.
    std::int64_t mRow = 0;
    ChangeSource mChanges;
};

}
