#pragma once

#include "platform/objectmodel/OutlookItem.h"

#include <string>

namespace tempodial {

/// The files attached to a mail.
class Attachments
{
public:
    virtual ~Attachments() = default;

    /// Attaches a copy of a file, taken at once, under the file's name; an absent file fails (53).
    virtual void Add(const std::string& path) = 0;
};

/// Whom a mail goes to.
class Recipients
{
public:
    virtual ~Recipients() = default;

    /// Adds an address; may be refused by the security guard (287).
    virtual void Add(const std::string& address) = 0;
};

/// A mail that the user looks over and sends.
class MailItem : public OutlookItem
{
public:
    /// The plain text.
    virtual std::string Body() const = 0;
    /// Sets the plain text, which takes the place of an HTML document.
    virtual void SetBody(const std::string& body) = 0;
    /// The HTML document, empty for a mail in plain text.
    virtual std::string HTMLBody() const = 0;
    /// Sets the HTML document, which takes the place of a plain text.
    virtual void SetHTMLBody(const std::string& html) = 0;
    virtual Ref<tempodial::Attachments> Attachments() = 0;
    virtual Ref<tempodial::Recipients> Recipients() = 0;
    /// Shows the mail in a window of its own, without blocking.
    virtual void Display() = 0;
};

}
