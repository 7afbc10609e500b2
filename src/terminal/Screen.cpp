#include "terminal/Screen.h"

#include <cstdlib>
#include <string_view>
#include <sys/ioctl.h>
#include <unistd.h>

namespace tempodial {

namespace {

/// The value of a variable, empty when there is none.
std::string_view ValueOf(const char* name)
{
    const auto* value = std::getenv(name);
    return value ? value : "";
}

}

Screen Screen::Of(int descriptor)
{
    Screen screen;
    if (::isatty(descriptor) == 0) {
        return screen;
    }
    screen.isTerminal = true;
    screen.isInteractive = ::isatty(STDIN_FILENO) != 0;
    screen.hasColors = ValueOf("NO_COLOR").empty() && ValueOf("TERM") != "dumb";
    winsize size {};
    if (::ioctl(descriptor, TIOCGWINSZ, &size) == 0) {
        screen.columns = size.ws_col > 0 ? size.ws_col : UsualColumns;
        screen.rows = size.ws_row > 0 ? size.ws_row : UsualRows;
    }
    return screen;
}

}
