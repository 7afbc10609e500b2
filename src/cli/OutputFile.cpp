#include "cli/OutputFile.h"

#include "base/Failure.h"
#include "cli/CommandError.h"
#include "host/files/ReplacementFile.h"
#include "host/system/GMimeDraftWriter.h"
#include "terminal/UsageError.h"

#include <string_view>

namespace tempodial {

namespace {

/// True for a mailbox, or another file that holds a database: nothing that an answer may take the place of.
bool IsDatabase(const std::string& path)
{
    constexpr std::string_view mark = "SQLite format 3";
    std::string head(mark.size(), '\0');
    try {
        // Doesn't wait at a pipe, as a stream would.
        const FileDescriptor file(NativePath(path), Opening::Reading);
        return file.Read(head.data(), head.size()) == head.size() && head == mark;
    } catch (const Failure&) {
        return false;
    }
}

/// Runs what writes the file; a failure is told with what to do about it.
template <class Writing> void WriteOrTell(const std::string& path, Writing&& writing)
{
    if (IsDatabase(path)) {
        throw CommandError(path + " is a mailbox or another database: give another file");
    }
    try {
        writing();
    } catch (const Failure& failure) {
        if (failure.Is(Error::CannotCreateObject)) {
            throw CommandError(path + " couldn't be written: the program's part for mails can't be loaded: install the "
                + "program again");
        }
        throw CommandError(
            path + " couldn't be written: " + failure.Description() + ": see to its folder and its disk");
    }
}

}

void OutputFile::Declare(ArgumentList& arguments, const std::string& help, bool isRequired)
{
    const auto* form = "--out FILE";
    if (isRequired) {
        arguments.Required(form, mPath, help);
    } else {
        arguments.Optional(form, mPath, help);
    }
}

bool OutputFile::IsNamed() const
{
    if (mPath && mPath->empty()) {
        throw UsageError("--out names no file: give the path of one");
    }
    return mPath.has_value();
}

void OutputFile::Write(const std::string& text) const
{
    WriteOrTell(Path(), [&] {
        ReplacementFile file { NativePath(Path()) };
        file.Write(text);
        file.Commit();
    });
}

void OutputFile::Write(const MailDraft& mail) const
{
    WriteOrTell(Path(), [&] { GMimeDraftWriter().Write(mail, Path()); });
}

}
