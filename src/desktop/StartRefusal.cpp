#include "desktop/StartRefusal.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "desktop/FailureWords.h"
#include "session/OpenProfile.h"
#include "session/ProfileError.h"

namespace tempodial {

namespace {

/// The folder of the profile; a word for it when nobody can tell.
std::string FolderOf(const ProfileOptions& options)
{
    try {
        return ProfilePath(options);
    } catch (const std::exception&) {
        return "the profile";
    }
}

std::string AsSentence(std::string text)
{
    if (!text.empty() && text.front() >= 'a' && text.front() <= 'z') {
        text.front() = static_cast<char>(text.front() - 'a' + 'A');
    }
    return text + (text.ends_with(".") ? "" : ".");
}

/// A word as shells take it.
std::string Quoted(const std::string& word)
{
    return "'" + Replace(word, "'", R"('\'')") + "'";
}

}

StartRefusal::StartRefusal(const std::exception& failure, const ProfileOptions& options)
    : reason(AsSentence(FailureSentence(failure, FolderOf(options))))
{
    if (dynamic_cast<const ProfileInUse*>(&failure) != nullptr) {
        remedy = "Nothing was changed. When that program has ended, try again.";
        return;
    }
    const auto named = options.profile ? " --profile " + Quoted(*options.profile) : std::string();
    remedy = "Nothing was changed. See to it and try again. In a terminal, \"tempodial" + named
        + " doctor\" tells all that is wrong, and \"tempodial" + named
        + " restore --replace FILE\" brings a backup back and keeps what is there beside it.";
}

}
