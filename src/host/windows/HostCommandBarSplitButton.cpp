#include "host/windows/HostCommandBarSplitButton.h"

#include "host/windows/HostCommandBar.h"

namespace tempodial {

void HostCommandBarSplitButton::Click()
{
    CheckUsable();
    if (const auto frame = Bar()->Frame(); frame && frame->run) {
        frame->run(Now().id);
    }
}

}
