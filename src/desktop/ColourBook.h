#pragma once

#include "base/SettingsFile.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// What has a tone of its own.
enum class Coloured { Project, Application };

/// The tone of a project or an application.
struct ToneUse
{
    /// The place among the tones.
    std::size_t tone = 0;
    /// True when the mark is striped, since all tones were taken.
    bool isStriped = false;

    friend bool operator==(const ToneUse&, const ToneUse&) = default;
};

/// The tones of projects and of applications, given in the order of their first appearance and kept from then on.
class ColourBook
{
public:
    /// The file's name, in the profile.
    static constexpr auto FileName = "colours.toml";

    /// Takes what is kept; fails with `SettingsFileError` when it can't be used.
    explicit ColourBook(const SettingsFile& file);

    /// The tone of a name, whatever the case of its letters; one that hasn't any gets the first of those that are given
    /// to fewest. Nothing for what is no project, and for the empty name.
    std::optional<ToneUse> ToneOf(Coloured kind, const std::string& name);
    /// Gives a name the tone that a person has chosen for it.
    void Choose(Coloured kind, const std::string& name, std::size_t tone);

    /// True when there is more to be kept than was read.
    bool HasChanged() const { return mHasChanged; }
    /// What is to be kept, which has then not changed any more.
    SettingsFile Keep();

private:
    struct Entry
    {
        Coloured kind = Coloured::Project;
        std::string name;
        std::string foldedName;
        ToneUse use;
    };

    Entry* Find(Coloured kind, const std::string& foldedName);
    ToneUse Next(Coloured kind) const;

    std::string mPath;
    std::vector<Entry> mEntries;
    bool mHasChanged = false;
};

}
