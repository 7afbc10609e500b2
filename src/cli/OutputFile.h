#pragma once

#include "cli/Reply.h"
#include "platform/system/MailDraft.h"
#include "terminal/ArgumentList.h"

#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// The argument --out of a command: where its answer goes. The answer takes a file's place as a whole, links are
/// followed, devices and pipes are written to, and "-" is standard output.
class OutputFile
{
public:
    /// Adds the argument to a command; it is kept here as it is parsed.
    void Declare(ArgumentList& arguments, const std::string& help, bool isRequired);
    /// The same for an argument of another form, which may be left out.
    void DeclareAs(ArgumentList& arguments, const std::string& form, const std::string& help);
    /// True when a place is named. Fails with a `UsageError` when the argument is empty, with a `CommandError` for a
    /// folder and for a file of a profile.
    bool IsNamed() const;
    const std::string& Path() const { return *mPath; }
    /// True when the place is standard output.
    bool IsStandardOutput() const;
    /// What the name ends in behind its last dot, in lower case; empty when it has none.
    std::string End() const;
    /// The form of the answer, which the name's end says: one of those given. Fails with a `UsageError` for another
    /// end, which for standard output, a device and a pipe gives the empty text.
    std::string Form(const std::vector<std::string>& forms) const;
    /// Puts an answer there, and into the reply what is said of that for people, or the answer itself where that goes
    /// to standard output. Fails with a `CommandError`.
    void Write(std::string text, Reply& reply) const;
    /// The same with a mail, and a plain text for readers that don't show its page unless that is empty.
    void Write(const MailDraft& mail, const std::string& plainText, Reply& reply) const;

private:
    std::optional<std::string> mPath;
};

}
