#pragma once

#include "base/Ref.h"
#include "driver/remote/ChildProcess.h"
#include "driver/remote/FaceObjects.h"
#include "driver/remote/RemotePrograms.h"
#include "faults/FaultPlan.h"
#include "host/system/TomlRegistry.h"
#include "platform/Platform.h"
#include "session/LoadedAddIn.h"
#include "wire/Conversation.h"
#include "wire/forms/AskedForms.h"

#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// How the add-in for Windows is started.
struct RemoteSettings
{
    RemotePrograms programs;
    /// The folder that stands in for the temporary folder.
    std::string profile;
    /// The folder of templates.
    std::string installFolder;
    /// The name of the user's locale.
    std::string locale;
};

/// The add-in for Windows in a program of its own, with real automation between it and the host. What it asks of the
/// host's clock, boxes, messages and desktop, the host's own surroundings answer; its registry is filled with the
/// host's at the start, and what it leaves in the product's key is brought back at the end.
class RemoteAddIn final : public LoadedAddIn
{
public:
    /// Starts the program and loads the add-in; fails with `Failure` (429).
    RemoteAddIn(RemoteSettings settings, Platform surroundings, Ref<TomlRegistry> registry);

    void Connect(const Ref<Application>& application) override;
    /// Ends the program, too; fails (429) when the add-in keeps an object or its module, or the program ends badly.
    void Disconnect() override;
    /// Fails (438), since they are in another program.
    TempodialMain& Members() const override;

    /// A person at its forms.
    FormHands& Forms() { return mForms; }
    /// Lets calls of the add-in to its surroundings there fail.
    void Add(const FaultPlan::Fault& fault);
    /// A value of its registry, nothing when there is none.
    Variant RegistryValue(Hive hive, const std::string& key, const std::string& value);
    /// Sets a value of its registry to a text or a number, or deletes it for nothing.
    void SetRegistryValue(Hive hive, const std::string& key, const std::string& value, const Variant& data);

private:
    WireValue Do(const std::string& word, const std::vector<WireValue>& arguments = {});
    WireValue Serve(FrameType type, FrameReader& body);
    WireValue Answer(const std::string& word, const std::vector<WireValue>& arguments) const;
    bool Raise(std::int64_t object, std::int32_t event, const std::vector<WireValue>& arguments);
    void FillRegistry();
    void BringRegistryBack();

    RemoteSettings mSettings;
    Platform mSurroundings;
    Ref<TomlRegistry> mRegistry;
    ChildProcess mProcess;
    Conversation mConversation;
    FaceObjects mObjects;
    AskedForms mForms { [this](const std::string& word, const std::vector<WireValue>& arguments) {
        return Do(word, arguments);
    } };
};

}
