#pragma once

#include "base/SettingsFile.h"
#include "host/settings/TomlSettings.h"

#include <string>

namespace tempodial {

/// A file of settings that the program keeps and people may edit. One that can't be used stays as it is until something
/// else has to be in its place, and then beside that.
class EditedFile
{
public:
    explicit EditedFile(std::string path);

    /// What `take` makes of the file, or of one without records when that one can't be used.
    template <class Take> auto TakenBy(const Take& take)
    {
        try {
            auto taken = take(ReadSettingsFile(mPath));
            mRefusal.clear();
            return taken;
        } catch (const SettingsFileError& error) {
            mRefusal = error.what();
        }
        return take(SettingsFile { mPath, {} });
    }
    const std::string& Path() const { return mPath; }
    /// Why the file can't be used, with what to do; empty when it can.
    const std::string& Refusal() const { return mRefusal; }
    /// Where a file that can't be used goes when another is to be in its place.
    std::string PathAside() const;

    /// Puts other content into the file, unless it can't be used. Fails as writing a file does.
    void Keep(const SettingsFile& content) const;
    /// Moves a file that can't be used aside, so that another can be in its place. Fails as moving a file does.
    void PutAside();

private:
    std::string mPath;
    std::string mRefusal;
};

}
