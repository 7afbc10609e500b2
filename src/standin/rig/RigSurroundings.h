#pragma once

#include "base/Ref.h"
#include "platform/Platform.h"
#include "standin/rig/RigHost.h"

#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// The host's clock.
class RigClock final : public Clock
{
public:
    explicit RigClock(RigHost host)
        : mHost(host)
    {
    }

    Date Now() override { return Date::FromSeconds(mHost.Ask("now").number); }

private:
    RigHost mHost;
};

/// The host's message boxes.
class RigMessageBox final : public MessageBox
{
public:
    explicit RigMessageBox(RigHost host)
        : mHost(host)
    {
    }

    Answer Show(const std::string& text, const std::vector<Answer>& buttons, MessageIcon icon) override;

private:
    RigHost mHost;
};

/// The messages of this program, and then those of the host.
class RigEventPump final : public EventPump
{
public:
    RigEventPump(RigHost host, Ref<EventPump> own)
        : mHost(host)
        , mOwn(std::move(own))
    {
    }

    void ProcessPending() override
    {
        mOwn->ProcessPending();
        mHost.Ask("pump");
    }

private:
    RigHost mHost;
    Ref<EventPump> mOwn;
};

/// The host's desktop, on the thread of this program.
class RigShell final : public Shell
{
public:
    RigShell(RigHost host, Ref<Shell> own)
        : mHost(host)
        , mOwn(std::move(own))
    {
    }

    void Open(const std::string& document) override { mHost.Ask("shell", { WireValue::Text(document) }); }
    std::int32_t ThreadId() override { return mOwn->ThreadId(); }

private:
    RigHost mHost;
    Ref<Shell> mOwn;
};

}
