#include "desktop/ImportTroubles.h"

#include "desktop/FailureWords.h"
#include "faults/UndoneWork.h"
#include "host/files/PathOperations.h"
#include "session/ProductFacts.h"

#include <iterator>
#include <utility>

namespace tempodial {

namespace {

constexpr std::string_view JournalClass = "ImportJournal";
constexpr std::string_view RegistryClass = "Registry";
/// What to do about a file before the product is let go on with it.
constexpr auto ThenRefresh = ", and refresh.";

std::string NameOf(std::string_view path)
{
    return std::string(path.substr(path.rfind('/') + 1));
}

/// The name of a tracker's file once it is finished.
std::string FinishedName(const std::string& name)
{
    constexpr std::string_view ending = ".out";
    const auto begin = std::string_view(TrackerFilePrefix).size();
    return FinishedTrackerFileName(name.substr(begin, name.size() - begin - ending.size()));
}

bool IsThere(const std::string& path)
{
    return StatusAt(NativePath::Exactly(path), Links::Followed).has_value();
}

bool IsFolder(std::string_view path)
{
    const auto status = StatusAt(NativePath::Exactly(std::string(path)), Links::Followed);
    return status && status->kind == FileStatus::Kind::Folder;
}

}

ImportTroubles::ImportTroubles(std::string folder, std::string dataFolder)
    : mFolder(std::move(folder))
    , mDataFolder(std::move(dataFolder))
{
}

void ImportTroubles::Before(const InterposedCall& call)
{
    const auto isOfJournal = call.classes.front() == JournalClass;
    if (isOfJournal && (call.member == "Begin" || call.member == "End")) {
        Look();
        mHasImported = mHasImported || call.member == "End";
    } else if (call.member == "OpenTextFile" && !call.opensForWriting
        && call.path.starts_with(mDataFolder + "/" + TrackerFilePrefix)) {
        const auto status = StatusAt(NativePath::Exactly(std::string(call.path)), Links::Followed);
        if (status && status->kind == FileStatus::Kind::File) {
            mSizes.try_emplace(std::string(call.path), status->size);
        }
    }
}

void ImportTroubles::Look()
{
    for (auto seen = mSizes.begin(); seen != mSizes.end();) {
        LookAt(seen->first, seen->second);
        seen = IsThere(seen->first) ? std::next(seen) : mSizes.erase(seen);
    }
}

void ImportTroubles::LookAt(const std::string& path, std::uint64_t& size)
{
    const auto name = NameOf(path);
    const auto status = StatusAt(NativePath::Exactly(path), Links::Followed);
    if (!status) {
        if (!IsThere(mDataFolder + "/" + FinishedName(name))
            && !IsThere(mDataFolder + "/" + KeptFolderName + "/" + name)) {
            Note("The tracker's file " + name + " has gone; what was imported of it is in the log: put it back into "
                + mDataFolder + ", or see whether the tracker still runs.");
        }
    } else if (status->kind != FileStatus::Kind::File) {
        Note("There is no file any more at " + path + "; what was imported of it is in the log: move away what stands "
            + "there" + ThenRefresh);
    } else {
        if (status->size < std::exchange(size, status->size)) {
            Note("The tracker's file " + name
                + " has become shorter; what was imported of it is in the log: put a whole " + "one back into "
                + mDataFolder + ThenRefresh);
        }
    }
}

void ImportTroubles::Failed(const InterposedCall& call, const Failure& failure)
{
    const auto className = call.classes.front();
    const auto undone = UndoneWork(call, failure);
    if (className == JournalClass) {
        Note("The import ended early, and goes on from there the next time. " + FailureSentence(failure, mFolder));
    } else if (className == RegistryClass && call.member == "Write") {
        Note("\"" + std::string(call.key) + "\" couldn't be kept in " + RegistryFileName + ". "
            + FailureSentence(failure, mFolder));
    } else if (!undone.empty() && IsFolder(call.path)) {
        Note("There is a folder at " + std::string(call.path) + ", where a file should be: move it away" + ThenRefresh);
    } else if (!undone.empty() && failure.Is(Error::DiskFull)) {
        Note(NameOf(call.path) + " couldn't be " + std::string(undone) + ". " + FailureSentence(failure, mFolder));
    } else if (!undone.empty()) {
        Note(std::string(call.path) + " couldn't be " + std::string(undone) + ": " + failure.Description()
            + ". See to that file and its rights" + ThenRefresh);
    }
}

void ImportTroubles::Note(const std::string& sentence)
{
    if (mSentences.find(sentence) == std::string::npos) {
        mSentences += (mSentences.empty() ? "" : " ") + sentence;
    }
}

std::string ImportTroubles::Take()
{
    return std::exchange(mSentences, {});
}

bool ImportTroubles::TakeImported()
{
    return std::exchange(mHasImported, false);
}

}
