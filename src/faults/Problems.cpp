#include "faults/Problems.h"

#include <algorithm>

namespace tempodial {

void Problems::Note(const std::string& message)
{
    if (std::find(mMessages.begin(), mMessages.end(), message) == mMessages.end()) {
        mMessages.push_back(message);
    }
}

void Problems::NoteFile(const std::string& path, const std::string& message)
{
    Note(path + " " + message);
    mFiles.insert(path);
}

}
