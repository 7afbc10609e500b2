#include "workload/WatchedYear.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <set>

namespace tempodial {

namespace {

TEST(WatchedYearTest, Write_Days_AreAnExportOfSoManyEvents)
{
    const TempFolder folder(TempFolder::InMemory());
    WatchedYear(Date::FromYearMonthDay(2025, 6, 30)).Write(folder.Path("year.json"), 2, 100);
    const auto buckets = nlohmann::json::parse(folder.Read("year.json")).at("buckets");
    std::size_t events = 0;
    std::set<std::string> types;
    for (const auto& bucket : buckets) {
        events += bucket.at("events").size();
        types.insert(bucket.at("type"));
    }
    EXPECT_EQ(events, 200U);
    EXPECT_EQ(types, (std::set<std::string> { "afkstatus", "currentwindow", "web.tab.current" }));
    const auto& windows = buckets.at("currentwindow_box").at("events");
    EXPECT_EQ(windows.front().at("timestamp").get<std::string>().substr(0, 10), "2025-06-30");
    EXPECT_EQ(windows.back().at("timestamp").get<std::string>().substr(0, 10), "2025-06-29");
}

}

}
