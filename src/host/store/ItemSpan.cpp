#include "host/store/ItemSpan.h"

namespace tempodial {

namespace {

// A quarter of an hour, and four times as much for each class; the last one reaches over all dates there are.
constexpr std::int64_t FirstReach = 900;
constexpr std::int64_t Growth = 4;
constexpr int Classes = 16;

}

std::int64_t ItemSpan::ClassOf(std::int64_t length)
{
    std::int64_t number = 0;
    for (auto reach = FirstReach; length >= reach && number < Classes - 1; reach *= Growth) {
        ++number;
    }
    return number;
}

std::string ItemSpan::ClassSql(const std::string& length)
{
    std::string sql = "CASE";
    auto reach = FirstReach;
    for (int number = 0; number < Classes - 1; ++number) {
        sql += " WHEN " + length + " < " + std::to_string(reach) + " THEN " + std::to_string(number);
        reach *= Growth;
    }
    return sql + " ELSE " + std::to_string(Classes - 1) + " END";
}

std::string ItemSpan::ClassRows()
{
    std::string rows;
    auto reach = FirstReach;
    for (int number = 0; number < Classes; ++number) {
        rows += (number == 0 ? "(" : ", (") + std::to_string(number) + ", " + std::to_string(reach) + ")";
        reach *= Growth;
    }
    return rows;
}

}
