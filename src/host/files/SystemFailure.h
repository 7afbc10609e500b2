#pragma once

#include "base/Failure.h"

#include <string>

namespace tempodial {

/// The failure that an error number of the system stands for; the one place in which these are mapped.
class SystemFailure : public Failure
{
public:
    explicit SystemFailure(int error);
    /// The failure that it means where it happened, if that is another.
    SystemFailure(int error, Error meaning);

    /// True when nothing stands at the path.
    bool IsAbsence() const noexcept;
    /// The system's own words for it.
    std::string Reason() const;

private:
    int mError;
};

}
