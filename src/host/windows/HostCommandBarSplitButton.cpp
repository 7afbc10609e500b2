#include "host/windows/HostCommandBarSplitButton.h"

#include "host/windows/HostCommandBar.h"

namespace tempodial {

void HostCommandBarSplitButton::Click()
{
    CheckUsable();
    if (const auto run = Bar()->Runner()) {
        run(Now().id);
    }
}

}
