#include "scenarios/FaultFixture.h"

#include <exception>
#include <set>
#include <string>

namespace tempodial {

void FaultFixture::RunWithFault(
    DrivenPerson& person, std::int64_t call, const std::function<void(DrivenPerson& person)>& run)
{
    person.Faults().FailCall(call);
    try {
        run(person);
    } catch (const std::exception& error) {
        ADD_FAILURE() << "left the host: " << error.what();
    }
}

void FaultFixture::LiveOn(DrivenPerson& person)
{
    const auto refusals = person.Refusals().size();
    person.Answers({ "no", "no", "no", "no" });
    const auto windows = person.Do({ { "do", "windows" } });
    for (const auto& inspector : windows.at("inspectors")) {
        person.Do({ { "do", "inspector.state" }, { "inspector", inspector } });
        person.Do({ { "do", "inspector.close" }, { "inspector", inspector } });
    }
    for (const auto& explorer : windows.at("explorers")) {
        person.Do({ { "do", "explorer.state" }, { "explorer", explorer } });
        person.Do({ { "do", "explorer.close" }, { "explorer", explorer } });
    }
    EXPECT_EQ(
        person.Do({ { "do", "windows" } }), Json::parse(R"({"ok":true,"explorers":[],"inspectors":[],"messages":[]})"));
    EXPECT_EQ(person.Refusals().size(), refusals);
    person.Do({ { "do", "stop" } });
    EXPECT_EQ(person.Do({ { "do", "forms" } }).at("forms"), Json::array());

    constexpr int Days = 3;
    for (int day = 1; day <= Days; ++day) {
        person.Start();
        EXPECT_EQ(person.MenuEntry(1, "Create Activity &Report...").value("enabled", false), true);
        person.Refresh(1);
        person.Do({ { "do", "stop" } });
    }
}

void FaultFixture::ExpectWhole(DrivenPerson& person, std::size_t least, std::size_t most)
{
    const auto items = person.Items();
    EXPECT_FALSE(items.empty());
    const auto& failed = person.Faults().FailedCall();
    if (failed.starts_with("Xml") || failed.starts_with("TextStream.Read")) {
        return;
    }
    std::set<std::string> starts;
    for (const auto& item : items) {
        starts.insert(item.at("start"));
    }
    // An activity that can't be asked whether it is one counts as an appointment, of which the add-in makes an
    // activity.
    const bool isUnknown = failed == "AppointmentItem.MessageClass:" || failed == "AppointmentItem.Subject:";
    EXPECT_LE(items.size(), starts.size() + (isUnknown ? 1 : 0));
    EXPECT_GE(starts.size(), least);
    EXPECT_LE(starts.size(), most);
}

}
