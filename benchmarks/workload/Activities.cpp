#include "workload/Activities.h"

#include "workload/Projects.h"

#include <array>
#include <string_view>

namespace tempodial {

namespace {

constexpr std::array<std::string_view, 16> Matters { "budget review", "minutes of the meeting", "offer for the roof",
    "plan of the week", "list of open points", "letter to the council", "first draft", "questions from the site",
    "costs by quarter", "holiday rota", "delivery dates", "contract, second version", "notes for Monday", "test report",
    "drawings of the yard", "answer to the complaint" };
constexpr std::array<std::string_view, 8> People { "Ada Byron", "Tom Okafor", "Mia Lindqvist", "Jan de Vries",
    "Rosa Moreno", "Ken Ito", "Ines Costa", "Paul Weber" };

/// The tracker's index of the program, how many of twenty activities are of it, and its name in an item.
struct Program
{
    int index;
    int share;
    std::string_view name;
};

constexpr std::array<Program, 8> Programs { { { 2, 4, "Microsoft Word" }, { 3, 3, "Microsoft Excel" },
    { 4, 1, "Microsoft PowerPoint" }, { 5, 4, "Microsoft Outlook" }, { 1, 3, "Internet Explorer" },
    { 6, 2, "Mozilla Firefox" }, { 8, 1, "Notepad" }, { 0, 2, "Drawing Board" } } };
constexpr std::uint32_t Shares = 20;

const Program& ProgramOf(std::uint32_t share)
{
    std::size_t number = 0;
    for (auto left = static_cast<int>(share); left >= Programs[number].share; ++number) {
        left -= Programs[number].share;
    }
    return Programs[number];
}

std::string Quoted(const std::string& text)
{
    return "\"" + text + "\"";
}

std::string Words(std::string_view first, std::string_view second)
{
    return std::string(first).append(" ").append(second);
}

}

Activities::Activities(std::uint32_t seed)
    : mRandom(seed)
{
}

std::uint32_t Activities::Below(std::uint32_t bound)
{
    return static_cast<std::uint32_t>((std::uint64_t { mRandom() } * bound) >> 32U);
}

std::string Activities::Topic(std::string& project)
{
    const auto belongs = Below(10) < 7;
    const auto number = Below(Projects::Usual);
    project = belongs ? Projects::Name(number) : "";
    std::string topic(Matters[Below(Matters.size())]);
    if (belongs) {
        topic = Words(project, topic);
    }
    return topic.append(" ").append(std::to_string(Below(1000)));
}

Activity Activities::Next()
{
    Activity activity;
    const auto& program = ProgramOf(Below(Shares));
    activity.application = program.index;
    activity.type = program.name;
    const auto topic = Topic(activity.project);
    const std::string person(People[Below(People.size())]);
    const auto add
        = [&](std::string name, std::string text) { activity.values.emplace_back(std::move(name), std::move(text)); };
    const auto document = [&](const char* name, const char* suffix) {
        const auto file = topic + suffix;
        add("WindowText", file + " - " + activity.type);
        add(name, file);
        activity.description = Quoted(file);
    };
    switch (program.index) {
    case 1:
    case 6: {
        const auto page = "http://intranet.example/pages/" + std::to_string(Below(100000));
        add("WindowText", topic + " - " + activity.type);
        add("URL", page);
        add("BaseURL", "http://intranet.example/");
        activity.description = Quoted(topic) + " (" + page + ")";
        break;
    }
    case 2:
        document("WordDocName", ".doc");
        break;
    case 3:
        document("ExcelDocName", ".xls");
        break;
    case 4:
        document("PPTDocName", ".ppt");
        break;
    case 5: {
        const bool composed = Below(2) == 0;
        add("WindowText", "Message");
        add("OutlookSubject", topic);
        add(composed ? "OutlookDirection" : "OutlookFolder", composed ? "composed" : "Inbox");
        add(composed ? "OutlookTo" : "OutlookFrom", person);
        activity.people = person;
        activity.type += composed ? " (wrote)" : " (read)";
        activity.description = Quoted(topic) + " - " + person;
        break;
    }
    default:
        if (program.index == 0) {
            add("AppName", activity.type);
        }
        add("WindowText", topic + " - " + activity.type);
        activity.description = Quoted(topic);
    }
    return activity;
}

}
