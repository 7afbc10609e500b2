#pragma once

#include "engine/foundation/TempodialStrings.h"
#include "support/TraceFixture.h"

namespace tempodial {

/// A trace and the words, for the classes that make up the text of a report.
class ReportsFixture : public TraceFixture
{
protected:
    ReportsFixture();

    Ref<TempodialStrings> mStrings = MakeRef<TempodialStrings>();
};

}
