#pragma once

namespace tempodial {

/// Runs one statement whose failure can be reported nowhere. False when it failed.
template <class Statement> bool Quietly(Statement&& statement) noexcept
{
    try {
        statement();
        return true;
    } catch (...) {
        return false;
    }
}

}
