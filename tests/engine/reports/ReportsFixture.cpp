#include "engine/reports/ReportsFixture.h"

namespace tempodial {

ReportsFixture::ReportsFixture()
{
    mStrings->Initialize();
}

}
