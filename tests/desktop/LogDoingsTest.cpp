#include "desktop/LogDoings.h"

#include "desktop/LogFixture.h"
#include "session/ActivityGesture.h"
#include "session/WorkLogFolder.h"
#include "support/TestDatabase.h"
#include "support/TestMailbox.h"

#include <algorithm>
#include <ctime>
#include <limits>

namespace tempodial {

namespace {

class LogDoingsTest : public LogFixture
{
protected:
    /// Activities of half an hour, one behind the other.
    std::vector<std::int64_t> AddMany(std::size_t count)
    {
        const auto& mailbox = mSession.Mailbox();
        const auto first = Added("many", On(2, 0));
        const auto model = mailbox->Stored(ItemNumbered(mSession.Profile(), first.number));
        const auto log = WorkLogOf(mSession.Profile());
        std::vector<std::int64_t> numbers { first.number };
        TestDatabase(mailbox).Atomically([&] {
            for (std::size_t i = 1; i < count; ++i) {
                auto data = model;
                data.start = model.start.AddMinutes(30 * static_cast<std::int64_t>(i));
                data.end = data.start.AddMinutes(30);
                const auto item = mailbox->NewItem(log, data);
                item->Save();
                numbers.push_back(item->Number());
            }
        });
        return numbers;
    }
    /// The processor time of something, at the best of a few times.
    template <class Work> static std::clock_t Fastest(const Work& work)
    {
        auto fastest = std::numeric_limits<std::clock_t>::max();
        for (int time = 0; time < 5; ++time) {
            const auto begin = std::clock();
            work();
            fastest = std::min(fastest, std::clock() - begin);
        }
        return fastest;
    }
    HostExplorer& Window() { return *mSession.Windows().OpenExplorers().front(); }

    LogDoings mDoings { mSession };
};

}

TEST_F(LogDoingsTest, Select_SomeGoneAndSomeElsewhere_SelectsTheOthersInTheirOrder)
{
    const auto early = Added("early", On(9, 9));
    const auto gone = Added("gone", On(9, 10));
    const auto late = Added("late", On(9, 11));
    const auto elsewhere = NewTestItem(mSession.Mailbox(), "elsewhere");
    elsewhere->Save();
    ItemNumbered(mSession.Profile(), gone.number)->Delete();
    mDoings.Select(Window(), { late.number, gone.number, elsewhere->Number(), early.number });
    const auto items = SelectedItems(Window());
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0].As<StoreItem>(), ItemNumbered(mSession.Profile(), late.number)) << "there is one object of each";
    EXPECT_EQ(items[1].As<StoreItem>()->Number(), early.number);
}

TEST_F(LogDoingsTest, Select_Many_ReadsThemTogether)
{
    constexpr std::size_t Many = 3000;
    const auto numbers = AddMany(Many);
    const auto oneByOne = Fastest([&] {
        for (const auto number : numbers) {
            ASSERT_TRUE(ActivityNumbered(mSession.Profile(), number));
            ASSERT_TRUE(ItemNumbered(mSession.Profile(), number));
        }
    });
    const auto together = Fastest([&] {
        // What is selected is there already.
        mDoings.Select(Window(), {});
        mDoings.Select(Window(), numbers);
    });
    EXPECT_EQ(Window().Selection()->Count(), static_cast<std::int32_t>(Many));
    EXPECT_LT(together, oneByOne);
}

}
