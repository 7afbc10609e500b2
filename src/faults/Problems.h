#pragma once

#include <set>
#include <string>
#include <vector>

namespace tempodial {

/// What went wrong during a run and has to be told to the user, in order and each message once.
class Problems
{
public:
    /// Takes a message that says what went wrong and what to do.
    void Note(const std::string& message);
    /// Takes what went wrong with a file; the path is put in front of the message.
    void NoteFile(const std::string& path, const std::string& message);
    const std::vector<std::string>& Messages() const { return mMessages; }
    /// True when something went wrong with the file of that path.
    bool HasOneWith(const std::string& path) const { return mFiles.contains(path); }

private:
    std::vector<std::string> mMessages;
    std::set<std::string> mFiles;
};

}
