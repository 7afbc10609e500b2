#include "desktop/FailureWords.h"

#include <new>

namespace tempodial {

namespace {

/// True for a failure that says no more than its number does.
bool IsBare(const Failure& failure)
{
    return failure.Description() == ErrorText(failure.Number());
}

std::string SentenceOf(const Failure& failure, const std::string& folder)
{
    const auto& text = failure.Description();
    if (failure.Is(Error::DiskFull)) {
        return "The disk is full, so nothing was changed and nothing is lost: make room on the disk of " + folder
            + ", and do it again.";
    }
    if (failure.Is(Error::OutOfMemory)) {
        return "There isn't enough memory: close other programs, and do it again.";
    }
    if (failure.Is(Error::DeviceError)) {
        return text + ": see to the disk of " + folder + ", and do it again.";
    }
    if (failure.Is(Error::PermissionDenied) || failure.Is(Error::PathFileAccess)) {
        return text + ": see whether you may write to " + folder + ", and do it again.";
    }
    if ((failure.Is(Error::FileNotFound) || failure.Is(Error::PathNotFound)) && IsBare(failure)) {
        return text + ": see whether " + folder + " is still there as a whole, and do it again.";
    }
    return IsBare(failure) ? text + ": do it again, and if that fails too, quit and start again." : text;
}

}

std::string FailureSentence(const std::exception& failure, const std::string& folder)
{
    if (const auto* numbered = dynamic_cast<const Failure*>(&failure)) {
        return SentenceOf(*numbered, folder);
    }
    if (dynamic_cast<const std::bad_alloc*>(&failure) != nullptr) {
        return SentenceOf(Failure(Error::OutOfMemory), folder);
    }
    return failure.what();
}

std::string TroubleSentence(const Failure& trouble)
{
    if (trouble.Is(Error::OutOfMemory)) {
        return "There wasn't enough memory, so nothing more is changed: close other programs, and start this one "
               "again.";
    }
    return trouble.Description()
        + ", so nothing more is changed: quit, see what \"tempodial doctor\" says, and bring a backup back with "
          "\"tempodial restore\".";
}

}
