#pragma once

#include "addin/base/AddInDesigner.h"
#include "addin/base/ComRef.h"
#include "wire/Conversation.h"
#include "wire/RigLink.h"

#include <string>
#include <vector>

namespace tempodial {

/// The add-in's module, loaded and called as Outlook does it.
class AddInModule
{
public:
    /// Loads the module of that path and makes the add-in's object. What isn't there fails with `WireFailure`. The way
    /// to the host must outlive it.
    AddInModule(const std::string& path, Conversation& host);
    ~AddInModule();
    AddInModule(const AddInModule&) = delete;
    AddInModule& operator=(const AddInModule&) = delete;

    void Connect(const ComRef<IDispatch>& application);
    void CompleteStartup();
    /// Begins the shut-down, disconnects the add-in and lets its object go. True when the module could be unloaded
    /// then.
    bool Disconnect();
    /// True for the test build of the module.
    bool IsForTests() const { return GetProcAddress(mModule, RigAttachName) != nullptr; }
    /// Does what the test build of the module offers, by the word and its arguments.
    WireValue Do(const std::string& word, const std::vector<WireValue>& arguments);

private:
    template <class Function> Function Find(const char* name) const;
    static void AskHost(void* end, const char* bytes, std::size_t size, RigReply reply, void* context);

    HMODULE mModule;
    RigLink mLink;
    ComRef<IDTExtensibility2> mAddIn;
};

}
