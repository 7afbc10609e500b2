#pragma once

#include "support/ProgramFixture.h"

#include <string>
#include <vector>

namespace tempodial {

/// What corrects single activities: on 10 October @1 from 09:00 to 09:10 with a detail, @2 of the project "Other" from
/// 09:10, @3 from 09:15, each until the next begins, the last at 09:30.
class CorrectionFixture : public ProgramFixture
{
protected:
    void SetUp() override
    {
        WriteTracker("20061010",
            { WordSlot(32400, 33000, "a.doc"), WordLine(32700, 33000, "aside.doc").Detail().Text(),
                WordLine(33000, 33300, "b.doc").Node("Project", "Other").Text(), WordSlot(33300, 34200, "c.doc") });
        ASSERT_EQ(Run({ "sync" }).status, 0);
    }
    /// All activities in order of start, a line each: number, times, subject, and "by hand" where it is so.
    std::vector<std::string> Log() const
    {
        std::vector<std::string> lines;
        for (const auto& item : Json({ "list", "2006-10" })) {
            lines.push_back(Line(item));
        }
        return lines;
    }
    static std::string Line(const nlohmann::json& item)
    {
        const auto time = [&](const char* name) { return item.at(name).get<std::string>().substr(11, 5); };
        return "@" + item.at("id").dump() + " " + time("start") + "-" + time("end") + " "
            + item.at("subject").get<std::string>();
    }
    std::string Body(int number) const
    {
        for (const auto& item : Json({ "list", "2006-10" })) {
            if (item.at("id") == number) {
                return item.at("body");
            }
        }
        return "no activity";
    }
    /// Runs a command and reads its JSON, whatever it says beside that.
    nlohmann::json Answer(Arguments arguments) const
    {
        arguments.insert(arguments.begin(), "--json");
        const auto result = Run(arguments);
        EXPECT_EQ(result.status, 0) << result.error;
        return nlohmann::json::parse(result.out);
    }
    /// What must come back byte for byte when everything is taken back.
    std::string Everything() const
    {
        return Run({ "export", "2006", "--format", "json" }).out + Run({ "projects", "--json" }).out;
    }
};

}
