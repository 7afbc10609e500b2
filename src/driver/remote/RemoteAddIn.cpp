#include "driver/remote/RemoteAddIn.h"

#include "driver/remote/WindowsPath.h"
#include "engine/core/ProductWords.h"
#include "platform/controls/EventPump.h"
#include "platform/controls/MessageBox.h"
#include "wire/WireFailure.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace tempodial {

namespace {

constexpr std::chrono::seconds Patience(60);
constexpr auto StandInName = "tempodial-standin.exe";
constexpr auto ModuleName = "TempodialRig.dll";

/// A locale's name as the other system has it.
std::string LocaleForWindows(const std::string& name)
{
    auto other = name.substr(0, name.find_first_of(".@"));
    std::replace(other.begin(), other.end(), '_', '-');
    return other == "C" || other == "POSIX" ? "en-US" : other;
}

WireValue ToWire(const Variant& data)
{
    if (const auto* number = data.If<std::int32_t>()) {
        return WireValue::Number(*number);
    }
    return data.IsEmpty() ? WireValue() : WireValue::Text(data.ToText());
}

Variant DataFromWire(const WireValue& value)
{
    if (value.kind == WireKind::Number) {
        return static_cast<std::int32_t>(value.number);
    }
    return value.kind == WireKind::Text ? Variant(value.text) : Variant();
}

WireValue HiveToWire(Hive hive)
{
    return WireValue::Flag(hive == Hive::LocalMachine);
}

}

RemoteAddIn::RemoteAddIn(RemoteSettings settings, Platform surroundings, Ref<TomlRegistry> registry)
    : mSettings(std::move(settings))
    , mSurroundings(std::move(surroundings))
    , mRegistry(std::move(registry))
    , mProcess({ "wine", mSettings.programs.folder + "/" + StandInName }, Patience)
    , mConversation(mProcess, [this](FrameType type, FrameReader& body) { return Serve(type, body); })
    , mObjects([this](std::int64_t object, std::int32_t event, const std::vector<WireValue>& arguments) {
        return Raise(object, event, arguments);
    })
{
    try {
        for (const auto* name : { "TMP", "TEMP" }) {
            Do("environment", { WireValue::Text(name), WireValue::Text(ToWindowsPath(mSettings.profile)) });
        }
        FillRegistry();
        const auto& installed = mSettings.programs.installed;
        const auto& module = installed.empty() ? mSettings.programs.folder + "/" + ModuleName : installed;
        Do("load", { WireValue::Text(ToWindowsPath(module)) });
        if (installed.empty()) {
            Do("locale", { WireValue::Text(LocaleForWindows(mSettings.locale)) });
            Do("install", { WireValue::Text(ToWindowsPath(mSettings.installFolder)) });
        }
    } catch (const WireFailure& failure) {
        throw Failure(Error::CannotCreateObject, failure.what());
    }
}

void RemoteAddIn::Connect(const Ref<Application>& application)
{
    Do("connect", { mObjects.Give(application) });
    Do("startup");
}

void RemoteAddIn::Disconnect()
{
    const auto left = Do("disconnect");
    BringRegistryBack();
    const auto status = mProcess.Finish();
    if (status != 0) {
        throw Failure(Error::CannotCreateObject,
            "the program that stands in for Outlook ended with the status " + std::to_string(status));
    }
    if (left.list.at(0).number == 0 || left.list.at(1).number != 0 || mObjects.Count() != 0) {
        throw Failure(Error::CannotCreateObject,
            "the add-in has kept " + std::to_string(left.list.at(1).number) + " objects, and "
                + std::to_string(mObjects.Count()) + " of the host's"
                + (left.list.at(0).number == 0 ? "; its module is still in use" : ""));
    }
}

TempodialMain& RemoteAddIn::Members() const
{
    throw Failure(Error::NotSupported);
}

void RemoteAddIn::Add(const FaultPlan::Fault& fault)
{
    Do("fault",
        { WireValue::Text(fault.call), WireValue::Number(fault.skip), WireValue::Number(fault.times),
            WireValue::Number(fault.failure.Number()), WireValue::Text(fault.failure.Description()) });
}

Variant RemoteAddIn::RegistryValue(Hive hive, const std::string& key, const std::string& value)
{
    return DataFromWire(Do("registry.get", { HiveToWire(hive), WireValue::Text(key), WireValue::Text(value) }));
}

void RemoteAddIn::SetRegistryValue(Hive hive, const std::string& key, const std::string& value, const Variant& data)
{
    Do("registry.set", { HiveToWire(hive), WireValue::Text(key), WireValue::Text(value), ToWire(data) });
}

WireValue RemoteAddIn::Do(const std::string& word, const std::vector<WireValue>& arguments)
{
    FrameWriter request(FrameType::Do);
    request.Text(word).Values(arguments);
    try {
        return mConversation.Ask(request);
    } catch (const WireBroken& broken) {
        throw Failure(Error::ServerUnavailable,
            std::string("the program that stands in for Outlook failed: ") + broken.what() + "; its exit status is "
                + std::to_string(mProcess.Finish()));
    }
}

bool RemoteAddIn::Raise(std::int64_t object, std::int32_t event, const std::vector<WireValue>& arguments)
{
    FrameWriter request(FrameType::Event);
    request.Number(object).Number(event).Values(arguments);
    try {
        return mConversation.Ask(request).number != 0;
    } catch (const std::runtime_error& error) {
        throw Failure(Error::ServerUnavailable, error.what());
    }
}

WireValue RemoteAddIn::Serve(FrameType type, FrameReader& body)
{
    try {
        switch (type) {
        case FrameType::Call: {
            const auto object = body.Number();
            const auto flags = body.Byte();
            const auto member = body.Text();
            return mObjects.Call(object, flags, member, body.Values());
        }
        case FrameType::Advise: {
            const auto object = body.Number();
            mObjects.Listen(object, body.Byte() != 0);
            return {};
        }
        case FrameType::Free:
            mObjects.Free(body.Number());
            return {};
        case FrameType::Surroundings: {
            const auto word = body.Text();
            return Answer(word, body.Values());
        }
        default:
            throw WireBroken("a frame that isn't meant for this end came over the wire");
        }
    } catch (const WireFailure&) {
        throw;
    } catch (const WireBroken&) {
        throw;
    } catch (...) {
        const auto failure = Failure::FromCurrentException();
        throw WireFailure(failure.Number(), failure.Description());
    }
}

WireValue RemoteAddIn::Answer(const std::string& word, const std::vector<WireValue>& arguments) const
{
    if (word == "now") {
        return WireValue::Moment(mSurroundings.clock->Now().Seconds());
    }
    if (word == "pump") {
        mSurroundings.eventPump->ProcessPending();
        return {};
    }
    if (word == "shell") {
        mSurroundings.shell->Open(FromWindowsPath(arguments.at(0).text));
        return {};
    }
    if (word == "box") {
        std::vector<tempodial::Answer> buttons;
        for (const auto& button : arguments.at(2).list) {
            buttons.push_back(static_cast<tempodial::Answer>(button.number));
        }
        const auto icon = static_cast<MessageIcon>(arguments.at(1).number);
        return WireValue::Number(
            static_cast<std::int64_t>(mSurroundings.messageBox->Show(arguments.at(0).text, buttons, icon)));
    }
    throw WireFailure(WireFailure::Refused, "nobody answers \"" + word + "\"");
}

void RemoteAddIn::FillRegistry()
{
    Do("hives");
    for (const auto& entry : mRegistry->Entries()) {
        SetRegistryValue(entry.hive, entry.key, entry.value, entry.data);
    }
}

void RemoteAddIn::BringRegistryBack()
{
    mRegistry->Together([this] {
        for (const auto hive : { Hive::CurrentUser, Hive::LocalMachine }) {
            const auto values = Do("registry.list", { HiveToWire(hive), WireValue::Text(ProductKey) });
            for (const auto& entry : values.list) {
                const auto& name = entry.list.at(0).text;
                const auto data = DataFromWire(entry.list.at(1));
                if (mRegistry->Get(hive, ProductKey, name) == data) {
                    continue;
                }
                if (const auto* number = data.If<std::int32_t>()) {
                    mRegistry->WriteNumber(hive, ProductKey, name, *number);
                } else {
                    mRegistry->Write(hive, ProductKey, name, data.ToText());
                }
            }
        }
    });
}

}
