#pragma once

#include <string>

namespace tempodial {

/// Asks a person before something is done for good.
class Confirmation
{
public:
    /// Takes whether --yes is given.
    explicit Confirmation(bool isGiven)
        : mIsGiven(isGiven)
    {
    }

    /// Fails with a `UsageError` when there is nobody to ask.
    void RequirePossible() const;
    /// True when it may be done; the question ends in a question mark.
    bool Has(const std::string& question) const;

private:
    bool mIsGiven;
};

}
