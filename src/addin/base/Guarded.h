#pragma once

#include "addin/base/Windows.h"

namespace tempodial {

/// The fence at every entry from outside: what fails inside ends there, and the caller hears that all went well.
template <class Work> HRESULT Guarded(Work&& work) noexcept
{
    try {
        work();
    } catch (...) { // NOLINT(bugprone-empty-catch)
        // A failure that goes further would end the program around us.
    }
    return S_OK;
}

}
