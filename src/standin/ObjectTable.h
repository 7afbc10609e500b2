#pragma once

#include "addin/base/AutomationValue.h"
#include "addin/base/ComRef.h"
#include "wire/Conversation.h"
#include "wire/WireValue.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

namespace tempodial {

class StandInObject;

/// How often a member was called, and how long that took at the host's, with what was done here in events meanwhile.
struct CallFigures
{
    std::size_t count = 0;
    std::chrono::steady_clock::duration waited {};
};

/// The objects of the host that stand here for it, by their numbers. An object goes with its last reference, and the
/// host is told.
class ObjectTable
{
public:
    /// Takes the way to the host, which must outlive it.
    explicit ObjectTable(Conversation& host)
        : mHost(host)
    {
    }

    /// The object of a number, made when none stands for it yet.
    ComRef<IDispatch> Object(std::int64_t number, const std::string& className);
    /// The same when it is there, nothing otherwise.
    ComRef<StandInObject> Find(std::int64_t number) const;
    /// How many objects there are.
    std::size_t Count() const { return mObjects.size(); }
    /// An object goes.
    void Remove(std::int64_t number);

    /// A value that goes to the host. What can't be passed on fails (13).
    WireValue ToWire(const VARIANT& value) const;
    /// A value that came from the host.
    AutomationValue FromWire(const WireValue& value);

    /// Asks the host; fails with `WireFailure`. When the host is gone, so is this program.
    WireValue Ask(FrameWriter& request) const;
    /// The same for a call of a member, which is counted.
    WireValue AskForMember(const std::string& className, const char* member, FrameWriter& request);
    /// The calls of members, by class and member.
    const std::map<std::string, CallFigures>& Calls() const { return mCalls; }

private:
    WireValue ListToWire(SAFEARRAY* array) const;
    WireValue ObjectToWire(IDispatch* object) const;

    Conversation& mHost;
    std::map<std::string, CallFigures> mCalls;
    std::map<std::int64_t, StandInObject*> mObjects;
};

}
