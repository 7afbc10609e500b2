#pragma once

#include <stdexcept>

namespace tempodial {

/// A mailbox that can't be opened; the text names the file and says what to do. The file was not written to.
class MailboxError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

}
