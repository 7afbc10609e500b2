#include "standin/rig/RigSurroundings.h"

#include "addin/dll/Surroundings.h"
#include "standin/rig/Rig.h"

namespace tempodial {

Ref<const Platform> Surroundings(const ComRef<IDispatch>& application)
{
    return MakeRef<Platform>(Rig::Only().Surroundings(application));
}

void EndSurroundings()
{
    Rig::Only().End();
}

Answer RigMessageBox::Show(const std::string& text, const std::vector<Answer>& buttons, MessageIcon icon)
{
    std::vector<WireValue> offered;
    for (const auto button : buttons) {
        offered.push_back(WireValue::Number(static_cast<std::int64_t>(button)));
    }
    const auto answer = mHost.Ask("box",
        { WireValue::Text(text), WireValue::Number(static_cast<std::int64_t>(icon)),
            WireValue::List(std::move(offered)) });
    return static_cast<Answer>(answer.number);
}

}
