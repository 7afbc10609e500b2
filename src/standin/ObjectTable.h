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
    /// A member of a class was called.
    void Note(const std::string& className, const char* member) { ++mCalls[className + "." + member]; }
    /// How often members were called, by class and member.
    const std::map<std::string, std::size_t>& Calls() const { return mCalls; }
    /// How long the add-in has waited for answers; what it does itself in events meanwhile counts, too.
    std::chrono::steady_clock::duration InCalls() const { return mInCalls; }

private:
    WireValue ListToWire(SAFEARRAY* array) const;
    WireValue ObjectToWire(IDispatch* object) const;

    Conversation& mHost;
    std::map<std::string, std::size_t> mCalls;
    mutable std::chrono::steady_clock::duration mInCalls {};
    /// How many answers are waited for at this moment, one in the other.
    mutable int mDepth = 0;
    std::map<std::int64_t, StandInObject*> mObjects;
};

}
