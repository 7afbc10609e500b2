// What it costs to find the project of a subject, without the lines that tell of it in the trace: the median of a
// number of rounds in microseconds, for 50 and for 500 projects with a rule each.

#include "base/Ref.h"
#include "engine/core/TempodialMain.h"
#include "engine/foundation/TempodialCommonUtils.h"
#include "engine/foundation/TempodialDebugLog.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/projects/TempodialProjectManager.h"
#include "session/Profile.h"
#include "workload/Activities.h"
#include "workload/Projects.h"

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

using namespace tempodial;

namespace {

constexpr std::size_t SubjectLength = 80;
constexpr std::size_t SubjectCount = 2000;
constexpr int Rounds = 15;

/// Subjects of eighty characters, three of ten without a project.
std::vector<std::string> Subjects(std::size_t projects)
{
    Activities activities(1);
    std::vector<std::string> subjects;
    for (std::size_t index = 0; index < SubjectCount; ++index) {
        auto activity = activities.Next();
        if (!activity.project.empty()) {
            const auto at = activity.description.find(activity.project);
            activity.description.replace(
                at, activity.project.size(), Projects::Name(activities.Below(static_cast<std::uint32_t>(projects))));
        }
        auto subject = activity.type + ", " + activity.description;
        subject.resize(SubjectLength, '.');
        subjects.push_back(std::move(subject));
    }
    return subjects;
}

/// Microseconds of the processor so far, which no neighbour's load adds to.
double Processor()
{
    timespec time {};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) / 1e3;
}

/// Microseconds a subject.
double Measure(TempodialProjectManager& manager, const std::vector<std::string>& subjects)
{
    std::vector<double> times;
    for (int round = 0; round < Rounds; ++round) {
        const auto start = Processor();
        for (const auto& subject : subjects) {
            manager.WhatProject(subject, "");
        }
        times.push_back((Processor() - start) / static_cast<double>(subjects.size()));
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

}

int main()
{
    try {
        const auto platform = MakeRef<Platform>();
        const auto main = MakeRef<TempodialMain>(platform);
        main->mStrings = MakeRef<TempodialStrings>();
        main->mStrings->Initialize();
        // A log that was never told of any files writes no lines.
        const auto log = MakeRef<TempodialDebugLog>(platform);
        for (const std::size_t projects : { 50, 500 }) {
            TempodialProjectManager manager(platform);
            manager.Initialize(main, nullptr, nullptr, log);
            for (std::size_t number = 0; number < projects; ++number) {
                manager.UpdateorAddProjectRule(Projects::Name(number), Projects::Rule(number), "");
            }
            const auto subjects = Subjects(projects);
            const auto found = std::count_if(subjects.begin(), subjects.end(),
                [&](const auto& subject) { return manager.WhatProject(subject, "") != main->mStrings->mNoProject; });
            if (found * 10 < static_cast<std::ptrdiff_t>(subjects.size()) * 6) {
                std::cerr << "bench-classification: the rules find only " << found << " projects\n";
                return 1;
            }
            std::cout << projects << ' ' << Measure(manager, subjects) << '\n';
        }
        return 0;
    } catch (const std::exception& problem) {
        std::cerr << "bench-classification: " << problem.what() << '\n';
        return 1;
    }
}
