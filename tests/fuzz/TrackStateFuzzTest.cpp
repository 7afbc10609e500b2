#include "fuzz/FuzzTarget.h"
#include "track/TrackState.h"
#include "track/WrittenLines.h"

namespace tempodial {

namespace {

/// What a recorder finds when it starts, and a day's file out of which lines are taken.
void StartFromFiles(std::string_view input)
{
    const auto state = TrackState::Of(std::string(input));
    const auto text = state.Text();
    Hold(TrackState::Of(text).Text() == text, "a state that was read is kept as it is");
    std::string content(input);
    const auto before = WrittenLines::Of(content);
    constexpr std::int64_t Noon = 43200;
    const auto erased = EraseLines(content, Noon, 1);
    Hold(content.size() <= input.size(), "taking lines out adds none");
    Hold(WrittenLines::Of(content).slots <= before.slots, "nor slots");
    Hold(EraseLines(content, Noon, 1).forgotten == 0 || erased.forgotten == 0, "what is taken out is gone");
}

}

TEMPODIAL_FUZZ_TARGET(TrackState, StartFromFiles)

}
