#pragma once

namespace tempodial {

/// Where a stream is shown, as far as that decides what is shown there.
struct Screen
{
    static constexpr int UsualColumns = 80;
    static constexpr int UsualRows = 24;

    bool isTerminal = false;
    /// Somebody can type as well.
    bool isInteractive = false;
    /// Colours are welcome there unless the user says otherwise: it is a terminal that isn't dumb, and NO_COLOR isn't
    /// set.
    bool hasColors = false;
    int columns = UsualColumns;
    int rows = UsualRows;

    /// The screen behind a stream of this process.
    static Screen Of(int descriptor);
};

}
