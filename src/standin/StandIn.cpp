#include "standin/StandIn.h"

#include "addin/base/SystemText.h"
#include "forms/FormDifferences.h"
#include "forms/FormRefusal.h"
#include "standin/StandInObject.h"
#include "standin/WindowEyes.h"
#include "wire/WireFailure.h"
#include "wire/forms/FormRequest.h"
#include "wire/forms/FormWire.h"

namespace tempodial {

StandIn::StandIn()
    : mHost(mChannel, [this](FrameType type, FrameReader& body) { return Serve(type, body); })
{
    using Arguments = std::vector<WireValue>;
    mWorks["environment"] = [](const Arguments& arguments) {
        SetEnvironmentVariableW(Wide(arguments.at(0).text).c_str(), Wide(arguments.at(1).text).c_str());
        return WireValue();
    };
    mWorks["hives"] = [this](const Arguments&) {
        mRegistry.emplace();
        return WireValue();
    };
    mWorks["registry.set"] = [](const Arguments& arguments) {
        PrivateRegistry::Set(arguments);
        return WireValue();
    };
    mWorks["registry.get"] = [](const Arguments& arguments) { return PrivateRegistry::Get(arguments); };
    mWorks["registry.list"] = [](const Arguments& arguments) { return PrivateRegistry::List(arguments); };
    mWorks["load"] = [this](const Arguments& arguments) {
        mModule.emplace(arguments.at(0).text, mHost);
        return WireValue();
    };
    mWorks["connect"] = [this](const Arguments& arguments) {
        Module().Connect(mObjects.Object(arguments.at(0).number, arguments.at(0).text));
        return WireValue();
    };
    mWorks["startup"] = [this](const Arguments&) {
        Module().CompleteStartup();
        return WireValue();
    };
    mWorks["disconnect"] = [this](const Arguments&) {
        const auto canUnload = Module().Disconnect();
        return WireValue::List(
            { WireValue::Flag(canUnload), WireValue::Number(static_cast<std::int64_t>(mObjects.Count())) });
    };
}

void StandIn::Run()
{
    while (mHost.ServeNext()) { }
}

WireValue StandIn::Serve(FrameType type, FrameReader& body)
{
    try {
        if (type == FrameType::Event) {
            return Raise(body);
        }
        if (type == FrameType::Do) {
            return Do(body);
        }
    } catch (const WireFailure&) {
        throw;
    } catch (const WireBroken&) {
        throw;
    } catch (const std::exception& error) {
        throw WireFailure(WireFailure::Refused, error.what());
    }
    throw WireBroken("the host has sent a frame that isn't meant for this end");
}

WireValue StandIn::Raise(FrameReader& body)
{
    const auto number = body.Number();
    const auto event = static_cast<DISPID>(body.Number());
    const auto arguments = body.Values();
    const auto object = mObjects.Find(number);
    return WireValue::Flag(object && object->Raise(event, arguments));
}

WireValue StandIn::Do(FrameReader& body)
{
    const auto word = body.Text();
    const auto arguments = body.Values();
    if (IsFormRequest(word)) {
        return DoWithWindows(word, arguments);
    }
    const auto found = mWorks.find(word);
    return found == mWorks.end() ? Module().Do(word, arguments) : found->second(arguments);
}

WireValue StandIn::DoWithWindows(const std::string& word, const std::vector<WireValue>& arguments)
{
    WireValue done;
    try {
        done = DoFormRequest(mHands, word, arguments);
    } catch (const FormRefusal& refusal) {
        if (!Module().IsForTests()) {
            throw;
        }
        Module().Do(word, arguments);
        throw WireFailure(
            WireFailure::Refused, std::string("the windows refuse what the models do: ") + refusal.what());
    }
    if (!Module().IsForTests()) {
        return done;
    }
    const auto forms = ComparedForms();
    return word == "forms" ? forms : done;
}

WireValue StandIn::ComparedForms()
{
    auto forms = Module().Do("forms", {});
    auto visible = FormsFromWire(forms);
    std::erase_if(visible, [](const FormSnapshot& form) { return !form.visible; });
    if (const auto differences = FormDifferences(visible, mHands.Forms()); !differences.empty()) {
        throw WireFailure(WireFailure::Refused, differences.front());
    }
    return forms;
}

AddInModule& StandIn::Module()
{
    if (!mModule) {
        throw WireFailure(WireFailure::Refused, "no add-in is loaded");
    }
    return *mModule;
}

}
