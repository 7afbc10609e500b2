#include "standin/rig/Rig.h"

#include "addin/win32/UserLocale.h"
#include "addin/win32/Win32Surroundings.h"
#include "engine/core/ProductWords.h"
#include "faults/Wrapped.h"
#include "standin/rig/RigSurroundings.h"
#include "wire/WireFailure.h"

namespace tempodial {

namespace {

FormKey KeyOf(const WireValue& value)
{
    return value.kind == WireKind::Text ? FormKey(value.text) : FormKey(static_cast<std::int32_t>(value.number));
}

WireValue ToWire(const ControlSnapshot& control)
{
    std::vector<WireValue> list;
    for (const auto& entry : control.list) {
        list.push_back(WireValue::Text(entry));
    }
    return WireValue::List({ WireValue::Text(control.name), WireValue::Number(static_cast<std::int64_t>(control.kind)),
        WireValue::Text(control.text), WireValue::List(std::move(list)), WireValue::Number(control.index),
        WireValue::Flag(control.checked), WireValue::Flag(control.enabled), WireValue::Flag(control.visible),
        WireValue::Text(control.tip), WireValue::Number(control.min), WireValue::Number(control.max),
        WireValue::Number(control.value) });
}

WireValue ToWire(const FormSnapshot& form)
{
    std::vector<WireValue> controls;
    for (const auto& control : form.controls) {
        controls.push_back(ToWire(control));
    }
    return WireValue::List({ WireValue::Number(form.number), WireValue::Text(form.className),
        WireValue::Text(form.title), WireValue::Flag(form.visible), WireValue::List(std::move(controls)) });
}

WireValue ToWire(const std::vector<FormSnapshot>& forms)
{
    std::vector<WireValue> list;
    for (const auto& form : forms) {
        list.push_back(ToWire(form));
    }
    return WireValue::List(std::move(list));
}

}

Rig& Rig::Only()
{
    static Rig rig;
    return rig;
}

Rig::Rig()
{
    mWorks["locale"] = [this](const Arguments& arguments) {
        mLocale = arguments.at(0).text;
        return WireValue();
    };
    mWorks["install"] = [this](const Arguments& arguments) {
        mInstallFolder = arguments.at(0).text;
        return WireValue();
    };
    mWorks["fault"] = [this](const Arguments& arguments) {
        mFaults->Add({ .call = arguments.at(0).text,
            .skip = arguments.at(1).number,
            .times = arguments.at(2).number,
            .failure = Failure(static_cast<std::int32_t>(arguments.at(3).number), arguments.at(4).text) });
        return WireValue();
    };
    mWorks["forms"] = [this](const Arguments&) { return ToWire(mHands.Forms()); };
    mWorks["form.type"] = [this](const Arguments& arguments) {
        mHands.Type(KeyOf(arguments.at(0)), arguments.at(1).text, arguments.at(2).text);
        return WireValue();
    };
    mWorks["form.choose"] = [this](const Arguments& arguments) {
        mHands.Choose(KeyOf(arguments.at(0)), arguments.at(1).text, KeyOf(arguments.at(2)));
        return WireValue();
    };
    mWorks["form.check"] = [this](const Arguments& arguments) {
        mHands.Check(KeyOf(arguments.at(0)), arguments.at(1).text, arguments.at(2).number != 0);
        return WireValue();
    };
    mWorks["form.click"] = [this](const Arguments& arguments) {
        mHands.Click(KeyOf(arguments.at(0)), arguments.at(1).text);
        return WireValue();
    };
    mWorks["form.close"]
        = [this](const Arguments& arguments) { return WireValue::Flag(mHands.Close(KeyOf(arguments.at(0)))); };
}

WireValue Rig::Do(const std::string& word, const std::vector<WireValue>& arguments)
{
    const auto found = mWorks.find(word);
    if (found == mWorks.end()) {
        throw WireFailure(WireFailure::Refused, "nobody can do \"" + word + "\"");
    }
    return found->second(arguments);
}

Platform Rig::Surroundings()
{
    auto platform = Win32Surroundings({ .text = FileText::OfHost(),
        .title = ProductName,
        .installPlace = { ProductKey, InstallFolderValue },
        .installFolder = mInstallFolder,
        .locale = PatternsOfLocale(mLocale) });
    const auto& host = mHost.value();
    platform.clock = MakeRef<RigClock>(host);
    platform.messageBox = MakeRef<RigMessageBox>(host);
    platform.eventPump = MakeRef<RigEventPump>(host, platform.eventPump);
    platform.shell = MakeRef<RigShell>(host, platform.shell);
    platform.forms = mForms;
    return Wrapped(platform, mFaults);
}

void Rig::End()
{
    mForms->CloseAll();
}

}
