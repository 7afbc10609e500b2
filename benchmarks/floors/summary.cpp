// The least that a table of times has to do: the minutes of a span of days are summed up by project and day in plain
// SQL, through the index by which the mailbox finds them, and each sum is printed.

#include "floors/Table.h"

#include <cstdio>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

using tempodial::Table;

int main(int count, char** arguments)
{
    try {
        const std::vector<std::string> words(arguments + 1, arguments + count);
        if (words.size() != 3) {
            std::cerr << "usage: floor-summary MAILBOX FROM UNTIL\n";
            return 2;
        }
        auto* database = Table::Open(words[0]);
        {
            Table sums(database,
                "WITH RECURSIVE class (number) AS (SELECT 0 UNION ALL SELECT number + 1 FROM class WHERE number < 15) "
                "SELECT mileage, starts / 86400, sum(ends / 60 - starts / 60) FROM class CROSS JOIN item "
                "INDEXED BY item_span WHERE folder = (SELECT folder FROM item LIMIT 1) AND span = class.number "
                "AND starts >= ? AND starts < ? GROUP BY 1, 2");
            sums.Bind(std::int64_t { std::stoll(words[1]) }).Bind(std::int64_t { std::stoll(words[2]) });
            while (sums.Step()) {
                const std::string name(sums.Text(0));
                std::printf("%s,%lld,%lld\n", name.c_str(), static_cast<long long>(sums.Int(1)),
                    static_cast<long long>(sums.Int(2)));
            }
        }
        sqlite3_close(database);
        return 0;
    } catch (const std::exception& problem) {
        std::cerr << "floor-summary: " << problem.what() << '\n';
        return 1;
    }
}
