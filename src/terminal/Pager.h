#pragma once

#include <string>
#include <utility>

namespace tempodial {

/// A program of the user's that shows a long text screen by screen.
class Pager
{
public:
    /// Takes the shell's command for it; an empty one and "cat" are none.
    explicit Pager(std::string command)
        : mCommand(std::move(command))
    {
    }
    /// The one that the user has chosen by TEMPODIAL_PAGER or else PAGER, or else the usual one.
    static Pager Chosen();

    /// Shows a text and waits until the user has seen enough of it, what is more than that being lost. False when there
    /// is no such program, and nothing was shown.
    bool Show(const std::string& text) const;

private:
    std::string mCommand;
};

}
