#include "host/windows/HostCommandBarControls.h"

#include "base/Failure.h"
#include "base/Text.h"

#include <cstddef>

namespace tempodial {

namespace {

/// A caption as one says it: its key isn't marked.
std::string Spoken(const std::string& caption)
{
    return Replace(caption, "&", "");
}

}

std::int32_t HostCommandBarControls::Count()
{
    mBar->CheckThere();
    return static_cast<std::int32_t>(mBar->Entries().size());
}

Ref<CommandBarControl> HostCommandBarControls::Item(std::int32_t index)
{
    if (index < 1 || index > Count()) {
        throw Failure(Error::InvalidCall);
    }
    return mBar->Entries()[static_cast<std::size_t>(index) - 1].As<CommandBarControl>();
}

Ref<CommandBarControl> HostCommandBarControls::ItemCaptioned(const std::string& caption)
{
    mBar->CheckThere();
    for (const auto& control : mBar->Entries()) {
        if (EqualIgnoringCase(Spoken(control->Now().caption), Spoken(caption))) {
            return control.As<CommandBarControl>();
        }
    }
    throw Failure(Error::InvalidCall);
}

Ref<CommandBarControl> HostCommandBarControls::Add(const CommandBarAddition& addition)
{
    return mBar->Add(addition).As<CommandBarControl>();
}

}
