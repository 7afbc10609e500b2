#include "scenarios/DrivenPerson.h"

#include "support/SlotLines.h"

#include <filesystem>
#include <fstream>

namespace tempodial {

namespace {

/// A slot of five minutes in which a document was open in the word processor.
SlotLine Slot(int minute, const std::string& document)
{
    constexpr int seconds = 60;
    return WordLine(minute * seconds, (minute + 5) * seconds, document);
}

}

DrivenPerson::DrivenPerson()
    : mDriver(std::make_unique<Driver>(ProfileOptions {
        .profile = mFolder.Path(), .locale = "en_US", .now = Date::FromParts({ 2006, 10, 10, 9, 0, 0 }) }))
{
}

DrivenPerson::~DrivenPerson()
{
    Leave();
}

Json DrivenPerson::Do(const Json& command)
{
    mCase.Did(command);
    auto answer = mDriver->Do(command);
    if (answer.at("ok") != true) {
        mRefusals.push_back(command.dump() + " " + answer.dump());
    }
    for (const auto& message : answer.at("messages")) {
        mMessages.push_back(message);
    }
    if (answer.contains("pumped")) {
        for (const auto& pumped : answer.at("pumped")) {
            mPumped.push_back(pumped);
        }
    }
    return answer;
}

void DrivenPerson::AtPump(int moment, const std::vector<Json>& commands)
{
    for (const auto& command : commands) {
        Do({ { "do", "onPump" }, { "at", moment }, { "then", command } });
    }
}

void DrivenPerson::Leave()
{
    if (mDriver) {
        mDriver->Exit();
        mDriver.reset();
    }
}

void DrivenPerson::WriteTracker() const
{
    const auto write = [this](const std::string& day, int minute, const std::vector<std::string>& documents) {
        std::vector<std::string> lines;
        for (const auto& document : documents) {
            lines.push_back(Slot(minute, document).Text());
            minute += 5;
        }
        WriteDay(day, lines);
    };
    write("20061009", 9 * 60, { "budget", "letter", "budget", "letter", "budget", "letter", "budget", "letter" });
    write("20061010", 7 * 60,
        { "budget", "minutes", "budget", "letter", "budget", "minutes", "budget", "letter", "budget", "minutes",
            "budget", "letter", "budget", "minutes", "budget", "letter" });
}

void DrivenPerson::WriteDay(const std::string& dayKey, const std::vector<std::string>& slots) const
{
    std::filesystem::create_directories(mFolder.Path("Tempodial"));
    const auto name = "tracker_granules" + dayKey + ".out";
    const auto text = TrackerText(slots);
    std::ofstream(mFolder.Path("Tempodial/" + name), std::ios::binary) << text;
    mCase.Wrote(name, text);
}

void DrivenPerson::WriteSlots() const
{
    WriteDay("20061010",
        { Slot(420, "budget").Text(), Slot(425, "budget").Continuation().Text(), Slot(425, "aside").Detail().Text(),
            Slot(430, "letter").Text() });
}

void DrivenPerson::Start(int explorers)
{
    Do({ { "do", "start" }, { "explorers", explorers } });
    Do({ { "do", "clock" }, { "advance", 10 } });
}

void DrivenPerson::Answers(const std::vector<std::string>& answers)
{
    Do({ { "do", "answers" }, { "answers", answers } });
}

void DrivenPerson::GoTo(int explorer, const std::string& folder)
{
    Do({ { "do", "explorer.folder" }, { "explorer", explorer }, { "folder", folder } });
}

Json DrivenPerson::Menu(int explorer, const Path& path)
{
    Path whole { "&Tempodial" };
    whole.insert(whole.end(), path.begin(), path.end());
    return Do({ { "do", "command" }, { "explorer", explorer }, { "bar", "Menu Bar" }, { "path", whole } });
}

Json DrivenPerson::Refresh(int explorer)
{
    return Do(
        { { "do", "command" }, { "explorer", explorer }, { "bar", "Standard" }, { "path", { "Refre&sh Tempodial" } } });
}

Json DrivenPerson::Toolbar(int inspector, const std::string& caption)
{
    return Do({ { "do", "command" }, { "inspector", inspector }, { "bar", "Tempodial" }, { "path", { caption } } });
}

Json DrivenPerson::Items()
{
    return Do({ { "do", "items" } }).value("items", Json::array());
}

Json DrivenPerson::ItemsOf(const std::string& description)
{
    auto found = Json::array();
    for (const auto& item : Items()) {
        if (item.at("properties").value("Description", "") == "\"" + description + "\"") {
            found.push_back(item);
        }
    }
    return found;
}

int DrivenPerson::OpenFirst(const std::string& description)
{
    const auto items = ItemsOf(description);
    if (items.empty()) {
        return 0;
    }
    const auto answer = Do({ { "do", "inspector.open" }, { "entryId", items[0].at("entryId") } });
    return answer.contains("inspector") && answer.at("inspector").is_number() ? answer.at("inspector").get<int>() : 0;
}

void DrivenPerson::Set(int inspector, const std::string& control, const Json& value)
{
    Do({ { "do", "inspector.set" }, { "inspector", inspector }, { "control", control }, { "value", value } });
}

Json DrivenPerson::CloseInspector(int inspector)
{
    return Do({ { "do", "inspector.close" }, { "inspector", inspector } });
}

Json DrivenPerson::Click(const std::string& form, const std::string& control)
{
    return Do({ { "do", "form.click" }, { "form", form }, { "control", control } });
}

Json DrivenPerson::Type(const std::string& form, const std::string& control, const std::string& text)
{
    return Do({ { "do", "form.type" }, { "form", form }, { "control", control }, { "text", text } });
}

Json DrivenPerson::Choose(const std::string& form, const std::string& control, const std::string& text)
{
    return Do({ { "do", "form.choose" }, { "form", form }, { "control", control }, { "text", text } });
}

Json DrivenPerson::Check(const std::string& form, const std::string& control, bool checked)
{
    return Do({ { "do", "form.check" }, { "form", form }, { "control", control }, { "checked", checked } });
}

Json DrivenPerson::CloseForm(const std::string& form)
{
    return Do({ { "do", "form.close" }, { "form", form } });
}

Json DrivenPerson::Form(const std::string& name)
{
    Json found;
    const auto answer = Do({ { "do", "forms" } });
    for (const auto& form : answer.at("forms")) {
        if (form.at("class") == name) {
            found = form;
        }
    }
    return found;
}

Json DrivenPerson::MenuEntry(int explorer, const std::string& caption)
{
    const auto bar = Bar("explorer", explorer, "Menu Bar");
    for (const auto& menu : bar.value("controls", Json::array())) {
        for (const auto& entry : menu.at("controls")) {
            if (menu.at("caption") == "&Tempodial" && entry.at("caption") == caption) {
                return entry;
            }
        }
    }
    return nullptr;
}

Json DrivenPerson::Bar(const std::string& kind, int number, const std::string& name)
{
    const auto window = Do({ { "do", kind + ".state" }, { kind, number } });
    for (const auto& bar : window.value("bars", Json::array())) {
        if (bar.at("name") == name) {
            return bar;
        }
    }
    return Json::object();
}

std::vector<std::string> DrivenPerson::Trace()
{
    return Do({ { "do", "trace" } }).at("lines").get<std::vector<std::string>>();
}

}
