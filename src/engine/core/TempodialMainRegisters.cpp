#include "engine/core/TempodialMain.h"

namespace tempodial {

void TempodialMain::mExplorers_NewExplorer(const Ref<Explorer>& /*explorer*/)
{
    Failing("New Explorer error ", LineShape::TextOnly)([&] { Trace("NewExplorer called"); });
}

void TempodialMain::mInspectors_NewInspector(const Ref<Inspector>& /*inspector*/)
{
    Failing("NewInspector error ", LineShape::TextColonStep)([&] { Trace("NewInspector called"); });
}

}
