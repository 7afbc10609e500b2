#pragma once

#include "base/Ref.h"
#include "driver/DriverMessageBox.h"
#include "host/store/Mailbox.h"

namespace tempodial {

/// Shows the product's messages in windows, in each of which the button of the answer is clicked as soon as it is
/// there. A window that shows another text, or has no such button, fails with `RequestError`.
DriverMessageBox::Shower ClickedMessages(const Ref<Mailbox>& mailbox);

}
