#include "cli/OutputFile.h"

#include "base/Failure.h"
#include "base/MemoryShortage.h"
#include "base/Text.h"
#include "cli/CommandError.h"
#include "host/files/FileDescriptor.h"
#include "host/files/OutputTarget.h"
#include "host/files/PathOperations.h"
#include "host/system/GMimeDraftWriter.h"
#include "session/ProductFacts.h"
#include "terminal/ProgramRun.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

namespace tempodial {

namespace {

using Kind = OutputTarget::Kind;

/// True for a mailbox, or another file that holds a database: nothing that an answer may take the place of.
bool IsDatabase(const NativePath& path)
{
    constexpr std::string_view mark = "SQLite format 3";
    std::string head(mark.size(), '\0');
    try {
        const FileDescriptor file(path, Opening::Reading);
        return file.Read(head.data(), head.size()) == head.size() && head == mark;
    } catch (const Failure&) {
        return false;
    }
}

bool IsProfile(const std::string& folder)
{
    return StatusAt(NativePath::Exactly(folder + "/" + MailboxFileName), Links::Followed)
        || StatusAt(NativePath::Exactly(folder + "/" + RegistryFileName), Links::Followed);
}

/// True for what a profile holds or may come to hold: its mailbox and its registry with what stands beside them, and
/// all that is in its data folder. What a person puts beside those is no part of it.
bool BelongsToAProfile(const NativePath& path)
{
    auto name = path.Name();
    name.erase(0, name.find_first_not_of('.'));
    const bool isOurs
        = name.starts_with(MailboxFileName) || name.starts_with(RegistryFileName) || name.starts_with(LastSyncFileName);
    if (isOurs && IsProfile(path.Folder())) {
        return true;
    }
    for (auto level = NativePath::Exactly(path.Folder()); level.Text().size() > 1;
         level = NativePath::Exactly(level.Folder())) {
        if (level.Name() == DataFolderName && IsProfile(level.Folder())) {
            return true;
        }
    }
    return false;
}

/// Where the path leads; fails with a `CommandError` when no answer may go there.
OutputTarget TargetAt(const std::string& path)
{
    OutputTarget target(path);
    if (target.WhatItIs() == Kind::Folder) {
        throw CommandError(IsolatedLine(path) + " couldn't be written: it is a folder: name a file in it");
    }
    const bool isFile = target.WhatItIs() == Kind::File || target.WhatItIs() == Kind::Absent;
    if (isFile && IsDatabase(target.Path())) {
        throw CommandError(IsolatedLine(path) + " is a mailbox or another database: give another file");
    }
    if (isFile && BelongsToAProfile(target.Path())) {
        throw CommandError(IsolatedLine(path) + " is a file of a profile: give another file");
    }
    return target;
}

}

void OutputFile::Declare(ArgumentList& arguments, const std::string& help, bool isRequired)
{
    constexpr auto Form = "--out FILE";
    if (isRequired) {
        arguments.Required(Form, mPath, help);
    } else {
        DeclareAs(arguments, Form, help);
    }
}

void OutputFile::DeclareAs(ArgumentList& arguments, const std::string& form, const std::string& help)
{
    arguments.Optional(form, mPath, help);
}

bool OutputFile::IsNamed() const
{
    if (!mPath) {
        return false;
    }
    if (mPath->empty()) {
        throw UsageError("the name of the file to write is empty: give the path of one");
    }
    (void)TargetAt(Path());
    return true;
}

bool OutputFile::IsStandardOutput() const
{
    return OutputTarget(Path()).WhatItIs() == Kind::StandardOutput;
}

std::string OutputFile::End() const
{
    const auto name = NativePath(Path()).Name();
    const auto dot = name.rfind('.');
    return dot == std::string::npos ? "" : Fold(name.substr(dot + 1));
}

std::string OutputFile::Form(const std::vector<std::string>& forms) const
{
    auto end = End();
    if (std::find(forms.begin(), forms.end(), end) != forms.end()) {
        return end;
    }
    const auto kind = OutputTarget(Path()).WhatItIs();
    if (kind == Kind::StandardOutput || kind == Kind::Stream) {
        return "";
    }
    std::string ends;
    for (const auto& form : forms) {
        ends += (ends.empty() ? "." : &form == &forms.back() ? " or ." : ", .") + form;
    }
    throw UsageError("--out can't be " + InQuotes(Path()) + ": give a name that ends in " + ends);
}

void OutputFile::Write(std::string text, Reply& reply) const
{
    MemoryShortage::RequireNone();
    try {
        const auto target = TargetAt(Path());
        if (target.WhatItIs() == Kind::StandardOutput) {
            reply.content = std::move(text);
            reply.isRedirected = true;
            return;
        }
        if (target.WhatItIs() == Kind::Stream) {
            EndWithReader();
        }
        target.Write(text);
        reply.summary += (target.WhatItIs() == Kind::File ? "Replaced: " : "Written: ") + IsolatedLine(Path()) + "\n";
    } catch (const Failure& failure) {
        throw CommandError(IsolatedLine(Path()) + " couldn't be written: " + failure.Description()
            + ": see to its folder and its disk");
    }
}

void OutputFile::Write(const MailDraft& mail, const std::string& plainText, Reply& reply) const
{
    constexpr std::size_t Usual = std::size_t { 4 } << 20;
    constexpr std::size_t Copies = 8;
    auto size = mail.body.size();
    for (const auto& attachment : mail.attachments) {
        size += attachment.content.size();
    }
    MemoryShortage::Require(Usual + Copies * size);
    std::string text;
    try {
        text = GMimeDraftWriter().Text(mail, plainText);
    } catch (const Failure& failure) {
        throw CommandError(IsolatedLine(Path()) + " couldn't be written: "
            + (failure.Is(Error::CannotCreateObject)
                    ? "the program's part for mails can't be loaded: install the program again"
                    : failure.Description() + ": close other programs and run the command again"));
    }
    Write(std::move(text), reply);
}

}
