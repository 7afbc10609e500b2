#include "cli/Confirmation.h"

#include "base/Text.h"
#include "terminal/Screen.h"
#include "terminal/UsageError.h"

#include <iostream>
#include <unistd.h>

namespace tempodial {

void Confirmation::RequirePossible() const
{
    if (!mIsGiven && !Screen::Of(STDERR_FILENO).isInteractive) {
        throw UsageError("there is no terminal to ask on: give --yes to do it without being asked, or --preview to see "
                         "what would be done");
    }
}

bool Confirmation::Has(const std::string& question) const
{
    if (mIsGiven) {
        return true;
    }
    std::cerr << question << " [y/N] " << std::flush;
    std::string answer;
    std::getline(std::cin, answer);
    answer = Trim(answer);
    return EqualIgnoringCase(answer, "y") || EqualIgnoringCase(answer, "yes");
}

}
