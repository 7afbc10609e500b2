#pragma once

#include "standin/AddInModule.h"
#include "standin/ObjectTable.h"
#include "standin/PrivateRegistry.h"
#include "standin/StandardChannel.h"
#include "standin/WindowHands.h"
#include "wire/Conversation.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// The program that stands in for Outlook around the real add-in: what the host asks for, it does.
class StandIn
{
public:
    StandIn();

    /// Serves the host until it closes.
    void Run();
    /// The add-in's calls of the host's objects, by class and member.
    const std::map<std::string, CallFigures>& ObjectCalls() const { return mObjects.Calls(); }

private:
    /// What is done by a word.
    using Work = std::function<WireValue(const std::vector<WireValue>& arguments)>;

    WireValue Serve(FrameType type, FrameReader& body);
    WireValue Raise(FrameReader& body);
    WireValue Do(FrameReader& body);
    /// Does what is asked of forms with their windows. Where the module is that for tests, what these refuse must be
    /// refused by the models, too, in whose words it is told; and each must show what its model holds. Fails with
    /// `WireFailure` otherwise.
    WireValue DoWithWindows(const std::string& word, const std::vector<WireValue>& arguments);
    /// What the module's models hold, when the windows show the same.
    WireValue ComparedForms();
    AddInModule& Module();

    StandardChannel mChannel;
    Conversation mHost;
    ObjectTable mObjects { mHost };
    std::optional<PrivateRegistry> mRegistry;
    std::optional<AddInModule> mModule;
    std::map<std::string, Work> mWorks;
    WindowHands mHands;
};

}
