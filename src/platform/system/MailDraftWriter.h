#pragma once

#include <string>
#include <vector>

namespace tempodial {

/// A mail before it is sent.
struct MailDraft
{
    /// A file that goes with the mail.
    struct Attachment
    {
        /// The file's name, without a folder.
        std::string name;
        /// The bytes, as they are.
        std::string content;
        /// The media type, such as "text/csv; charset=utf-8"; empty when it isn't known.
        std::string type;
    };

    /// Addresses.
    std::vector<std::string> recipients;
    std::string subject;
    /// A plain text or an HTML document, in UTF-8.
    std::string body;
    bool isHtml = false;
    std::vector<Attachment> attachments;
};

/// Writes drafts as files that a mail program opens for sending.
class MailDraftWriter
{
public:
    virtual ~MailDraftWriter() = default;

    /// Writes a draft, which takes the place of an old file as a whole. The same draft gives the same bytes at any
    /// time. Fails as opening a file for writing does, and when the disk refuses (61, 57).
    virtual void Write(const MailDraft& draft, const std::string& path) = 0;
};

}
