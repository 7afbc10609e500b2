#include "host/windows/HostMail.h"

#include "base/Failure.h"
#include "host/files/FileDescriptor.h"
#include "host/files/PathOperations.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>

namespace tempodial {

namespace {

/// More than this the mailbox holds in no case.
constexpr std::size_t LargestAttachment = std::numeric_limits<std::int32_t>::max();

}

/// The attachments of a mail, which it keeps alive.
class HostMail::AttachmentList final : public tempodial::Attachments
{
public:
    explicit AttachmentList(std::shared_ptr<HostMail> mail)
        : mMail(std::move(mail))
    {
    }

    void Add(const std::string& path) override
    {
        try {
            mMail->mDraft.attachments.push_back({ path.substr(path.find_last_of("/\\") + 1), Read(path), "" });
            mMail->mChanges.Tell();
        } catch (...) {
            mMail->mNotAttached.push_back(path);
            throw;
        }
    }

private:
    static std::string Read(const std::string& path)
    {
        const NativePath native(path);
        const auto status = StatusAt(native, Links::Followed);
        if (status && status->kind != FileStatus::Kind::File) {
            throw Failure(Error::DeviceError);
        }
        return Opened(native).ReadAll(LargestAttachment);
    }
    static FileDescriptor Opened(const NativePath& path)
    {
        try {
            return { path, Opening::Reading };
        } catch (const Failure&) {
            throw Failure(Error::FileNotFound);
        }
    }

    std::shared_ptr<HostMail> mMail;
};

/// The recipients of a mail, which it keeps alive.
class HostMail::RecipientList final : public tempodial::Recipients
{
public:
    explicit RecipientList(std::shared_ptr<HostMail> mail)
        : mMail(std::move(mail))
    {
    }

    void Add(const std::string& address) override
    {
        mMail->mDraft.recipients.push_back(address);
        mMail->mChanges.Tell();
    }

private:
    std::shared_ptr<HostMail> mMail;
};

HostMail::HostMail(std::int32_t number, Ref<Mailbox> mailbox, Shower shower)
    : mNumber(number)
    , mMailbox(std::move(mailbox))
    , mShower(std::move(shower))
{
}

void HostMail::SetSubject(const std::string& subject)
{
    mDraft.subject = subject;
    mChanges.Tell();
}

void HostMail::SetBody(const std::string& body)
{
    mDraft.body = body;
    mDraft.isHtml = false;
    mChanges.Tell();
}

void HostMail::SetHTMLBody(const std::string& html)
{
    mDraft.body = html;
    mDraft.isHtml = true;
    mChanges.Tell();
}

Ref<tempodial::Attachments> HostMail::Attachments()
{
    return MakeRef<AttachmentList>(shared_from_this());
}

Ref<tempodial::Recipients> HostMail::Recipients()
{
    return MakeRef<RecipientList>(shared_from_this());
}

void HostMail::Display()
{
    mShower(shared_from_this());
}

void HostMail::Save()
{
    auto& drafts = mMailbox->Drafts();
    if (mRow == 0 || !drafts.Update(mRow, mDraft)) {
        mRow = drafts.Save(mDraft);
    }
}

}
