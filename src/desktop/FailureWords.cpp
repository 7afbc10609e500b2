#include "desktop/FailureWords.h"

#include "base/Failure.h"

namespace tempodial {

std::string FailureSentence(const std::exception& failure, const std::string& folder)
{
    const auto* numbered = dynamic_cast<const Failure*>(&failure);
    if (numbered != nullptr && numbered->Is(Error::DiskFull)) {
        return "The disk is full, so nothing was changed and nothing is lost: make room on the disk of " + folder
            + ", and do it again.";
    }
    if (numbered != nullptr && (numbered->Is(Error::PermissionDenied) || numbered->Is(Error::PathFileAccess))) {
        return std::string(failure.what()) + ": see whether you may write to " + folder + ", and do it again.";
    }
    return failure.what();
}

}
