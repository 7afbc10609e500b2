#pragma once

#include "desktop/StartRefusal.h"

#include <QMessageBox>

namespace tempodial {

/// What is on the screen in the place of windows that can't be opened: why, what to do, and whether to try again.
class RefusalBox final : public QMessageBox
{
public:
    explicit RefusalBox(const StartRefusal& refusal);

    /// Waits for a person; true when it is to be tried again.
    bool IsTriedAgain();
};

}
