#pragma once

#include "base/Failure.h"
#include "host/windows/HostCommandBarControl.h"

#include <utility>

namespace tempodial {

/// The members that every kind of control of a command bar has, for one kind.
template <class Interface> class HostControl : public Interface, public HostCommandBarControl
{
public:
    using HostCommandBarControl::HostCommandBarControl;

    CommandBarControlType Type() const override { return Now().type; }
    std::int32_t Id() const override { return Now().id; }
    std::string Caption() const override { return Now().caption; }
    void SetCaption(const std::string& caption) override { Change(&State::caption, caption); }
    std::string Tag() const override { return Now().tag; }
    void SetTag(const std::string& tag) override { Change(&State::tag, tag); }
    bool Enabled() const override { return Now().enabled; }
    void SetEnabled(bool enabled) override { Change(&State::enabled, enabled); }
    bool Visible() const override { return Now().visible; }
    void SetVisible(bool visible) override { Change(&State::visible, visible); }
    bool BeginGroup() const override { return Now().beginGroup; }
    void SetBeginGroup(bool beginGroup) override { Change(&State::beginGroup, beginGroup); }
    std::int32_t FaceId() const override
    {
        Now();
        throw Failure(Error::NotSupported);
    }
    Ref<CommandBarControl> Copy(const Ref<CommandBar>& bar) override { return CopyTo(bar); }
    void Delete() override { Remove(); }
};

}
