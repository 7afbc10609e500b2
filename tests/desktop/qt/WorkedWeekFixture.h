#pragma once

#include "DesktopFixture.h"

namespace tempodial {

/// A window on three activities of Wednesday and one of Thursday.
class WorkedWeekFixture : public DesktopFixture
{
protected:
    WorkedWeekFixture()
    {
        Add("Alpha", "Plan", "Writer", On(15, 9), On(15, 10));
        Add("", "Inbox", "Mail", On(15, 10), On(15, 11));
        Add("Beta", "Sheet", "Calc", On(15, 13), On(15, 14));
        Add("Beta", "Letter", "Writer", On(16, 9), On(16, 10));
        mWindow = &Open();
    }

    MainWindow* mWindow;
};

}
