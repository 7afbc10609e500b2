#include "engine/import/HistoryText.h"
#include "fuzz/FuzzTarget.h"
#include "support/AddInFixture.h"

#include <algorithm>
#include <filesystem>

namespace tempodial {

namespace {

/// The add-in, whose profile is emptied for each input.
class Importer
{
public:
    Importer()
    {
        mAddIn.Connect();
        // Nothing of what is traced is looked at.
        mAddIn.main->mTempodialDebugLog->Initialize(nullptr, "", "", "", 0);
    }

    void Import(std::string_view input)
    {
        mAddIn.WriteTracker(Day, { std::string(input) });
        std::filesystem::remove(mFolder.Path("Tempodial/TempodialHistory.out"));
        Sync();
        for (const auto& item : mAddIn.Items()) {
            Hold(item->Start() <= item->End(), "an activity ends after its start");
        }
        const bool isWhole = IsLoadedToItsEnd() && !HasContinuedDetail(input);
        Sync();
        if (isWhole) {
            Hold(mAddIn.mailbox->Statistics().created == 0, "a second sync makes no activity");
            Hold(mAddIn.mailbox->Statistics().extended == 0, "a second sync adds no time");
        }
        for (const auto& item : mAddIn.Items()) {
            item->Delete();
        }
    }

private:
    static constexpr auto Day = "20061010";

    void Sync()
    {
        mAddIn.mailbox->MarkStatistics();
        mAddIn.main->SyncData(0, true);
        Hold(mAddIn.mailbox->Statistics().failed.empty(), "what stands in a file can be saved");
        Hold(mAddIn.HasFile(std::string("tracker_granules") + Day + ".out"), "the file of today stays");
    }
    /// True when a line may be both a detail and a continuation. A detail that ends where the count stands is taken
    /// again, and a continuation of nothing is an activity.
    static bool HasContinuedDetail(std::string_view input)
    {
        for (std::size_t start = 0; start < input.size();) {
            const auto line = input.substr(start, input.find('\n', start) - start);
            if (line.find("<Detail") != std::string_view::npos
                && line.find("<Continuation") != std::string_view::npos) {
                return true;
            }
            start += line.size() + 1;
        }
        return false;
    }
    /// True when no activity ends behind the count of the history: a line that ends before an earlier one takes the
    /// count back, and the next sync begins there.
    bool IsLoadedToItsEnd() const
    {
        const HistoryText history(mAddIn.HistoryText());
        const auto position = history.Find(Day);
        const auto items = mAddIn.Items();
        if (position == 0) {
            return items.empty();
        }
        const auto loaded = Date::FromYearMonthDay(2006, 10, 10).AddSeconds(history.Count(position));
        return std::all_of(items.begin(), items.end(), [&](const auto& item) { return item->End() <= loaded; });
    }

    TempFolder mFolder { TempFolder::InMemory() };
    TestAddIn mAddIn { mFolder.Path() };
};

/// A whole tracker file of today is imported, twice.
void ImportTwice(std::string_view input)
{
    static Importer importer;
    importer.Import(input);
}

}

TEMPODIAL_FUZZ_TARGET(TrackerFile, ImportTwice)

}
