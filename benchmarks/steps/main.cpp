// What a step costs besides the change that it keeps: activities of a profile get another project and are saved, once
// as a step and once without, in turn and in the same process. Prints the seconds of the processor that each took.

#include "host/store/MailboxDatabase.h"
#include "host/store/MailboxStore.h"
#include "host/store/StoreItem.h"
#include "review/ActivityReader.h"
#include "session/Steps.h"

#include <algorithm>
#include <ctime>
#include <exception>
#include <functional>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

using tempodial::ActivitiesStartingIn;
using tempodial::ItemNumbered;
using tempodial::Period;
using tempodial::Profile;
using tempodial::Steps;

namespace {

constexpr auto Usage = "usage: bench-steps PROFILE ACTIVITIES\n";

double Seconds(const std::function<void()>& work)
{
    const auto begin = std::clock();
    work();
    return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

void Run(const std::string& folder, std::size_t most)
{
    const Profile profile(folder, "en_US", std::nullopt);
    auto activities = ActivitiesStartingIn(profile, Period::Always());
    activities.resize(std::min(activities.size(), most));
    const auto change = [&](const std::string& project) {
        for (const auto& activity : activities) {
            const auto item = ItemNumbered(profile, activity.number);
            item->SetMileage(project);
            item->UserProperties()->Item("Project")->SetValue(project);
            item->Save();
        }
    };
    const auto with = Seconds([&] { Steps(profile).Record("bench", [&] { change("With"); }); });
    auto& database = profile.Mailbox()->Store()->Database();
    const auto without = Seconds([&] {
        database.Hold();
        change("Without");
        database.CommitHeld();
    });
    std::cout << with << ' ' << without << '\n';
}

}

int main(int count, char** arguments)
{
    try {
        const std::vector<std::string> words(arguments + 1, arguments + count);
        if (words.size() != 2) {
            std::cerr << Usage;
            return 2;
        }
        Run(words[0], std::stoul(words[1]));
        return 0;
    } catch (const std::exception& problem) {
        std::cerr << "bench-steps: " << problem.what() << '\n';
        return 1;
    }
}
