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

}
