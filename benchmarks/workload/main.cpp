#include "base/Number.h"
#include "workload/Projects.h"
#include "workload/TrackerFiles.h"
#include "workload/WatchedYear.h"
#include "workload/WorkLogFiller.h"

#include <exception>
#include <iostream>
#include <string_view>
#include <vector>

using tempodial::Date;
using tempodial::Projects;
using tempodial::ToInt32;
using tempodial::TrackerFiles;
using tempodial::WatchedYear;
using tempodial::WorkLogFiller;

namespace {

constexpr auto Usage
    = "usage: tempodial-workload tracker FOLDER YYYY-MM-DD DAYS LINES\n"
      "       tempodial-workload mailbox PROFILE YYYY-MM-DD DAYS\n"
      "       tempodial-workload watched FILE YYYY-MM-DD DAYS EVENTS\n"
      "       tempodial-workload projects\n"
      "Writes tracker files, fills the work log of a profile, writes an export of ActivityWatch, or lists\n"
      "projects and their rules;\n"
      "the date is that of the last day.\n";

Date DayOf(const std::string& text)
{
    return Date::FromTexts(text.substr(0, 4), ToInt32(text.substr(5, 2)), text.substr(8));
}

bool Run(const std::vector<std::string>& arguments)
{
    if (arguments.size() == 5 && arguments[0] == "tracker") {
        TrackerFiles(arguments[1]).Write(DayOf(arguments[2]), ToInt32(arguments[3]), ToInt32(arguments[4]));
        return true;
    }
    if (arguments.size() == 4 && arguments[0] == "mailbox") {
        WorkLogFiller(arguments[1]).Fill(DayOf(arguments[2]), ToInt32(arguments[3]));
        return true;
    }
    if (arguments.size() == 5 && arguments[0] == "watched") {
        WatchedYear(DayOf(arguments[2])).Write(arguments[1], ToInt32(arguments[3]), ToInt32(arguments[4]));
        return true;
    }
    if (arguments.size() == 1 && arguments[0] == "projects") {
        for (std::size_t number = 0; number < Projects::Usual; ++number) {
            std::cout << Projects::Name(number) << '\t' << Projects::Rule(number) << '\n';
        }
        return true;
    }
    return false;
}

}

int main(int count, char** arguments)
{
    try {
        if (Run({ arguments + 1, arguments + count })) {
            return 0;
        }
        std::cerr << Usage;
        return 2;
    } catch (const std::exception& problem) {
        std::cerr << "tempodial-workload: " << problem.what() << '\n';
        return 1;
    }
}
