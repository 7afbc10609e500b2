#include "track/TrackState.h"

#include <charconv>
#include <string_view>
#include <utility>

namespace tempodial {

namespace {

constexpr char Between = '\t';

/// The fields of a line, taken one after the other.
class FieldReader
{
public:
    explicit FieldReader(std::string_view line)
        : mRest(line)
    {
    }

    std::string Text()
    {
        const auto end = mRest.find(Between);
        const std::string field(mRest.substr(0, end));
        mIsWhole = mIsWhole && !mIsOver;
        mIsOver = end == std::string_view::npos;
        mRest.remove_prefix(mIsOver ? mRest.size() : end + 1);
        return field;
    }

    std::int64_t Number()
    {
        const auto field = Text();
        std::int64_t number = 0;
        const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), number);
        mIsWhole = mIsWhole && error == std::errc() && end == field.data() + field.size();
        return number;
    }

    /// All that follows, whatever is in it.
    std::string Rest() const { return std::string(mRest); }
    /// True when all fields were there, and numbers where they had to be.
    bool IsWhole() const { return mIsWhole; }

private:
    std::string_view mRest;
    bool mIsOver = false;
    bool mIsWhole = true;
};

std::string ViewText(const SlotView& view)
{
    return std::to_string(static_cast<int>(view.sort)) + Between + std::to_string(view.kind) + Between + view.program
        + Between + view.text + Between + view.place + Between + view.project;
}

SlotView ViewOf(FieldReader& fields)
{
    SlotView view;
    const auto sort = fields.Number();
    const bool isSort = sort >= 0 && sort <= static_cast<int>(ProgramSort::Shell);
    view.sort = isSort ? static_cast<ProgramSort>(sort) : ProgramSort::Other;
    view.kind = static_cast<int>(fields.Number());
    view.program = fields.Text();
    view.text = fields.Text();
    view.place = fields.Text();
    view.project = fields.Text();
    return view;
}

void TakeStateLine(TrackState& state, std::string_view line)
{
    FieldReader fields(line);
    const auto kind = fields.Text();
    if (kind == "paused") {
        state.isPaused = true;
        const auto until = fields.Number();
        state.pausedUntil = fields.IsWhole() ? std::optional(until) : std::nullopt;
    } else if (kind == "project") {
        state.project = fields.Text();
    } else if (kind == "input") {
        const auto input = fields.Number();
        const auto patience = fields.Number();
        if (fields.IsWhole()) {
            state.input = input;
            state.patience = patience;
        }
    } else if (kind == "slot") {
        OpenSlot slot;
        slot.start = fields.Number();
        slot.presence = fields.Number();
        if (fields.IsWhole() && slot.start % SlotSeconds == 0 && slot.presence >= 0) {
            state.slots.push_back(std::move(slot));
        }
    } else if (kind == "line") {
        const auto midnight = fields.Number();
        if (fields.IsWhole() && midnight % DaySeconds == 0) {
            state.unsaved.push_back({ midnight, fields.Rest() });
        }
    } else if (kind == "view" && !state.slots.empty()) {
        const auto time = fields.Number();
        auto view = ViewOf(fields);
        if (fields.IsWhole() && time >= 0 && !view.program.empty()) {
            state.slots.back().views.push_back({ std::move(view), time });
        }
    } else if (kind == "stretch" || kind == "empty") {
        ViewStretch stretch;
        stretch.begin = fields.Number();
        stretch.end = fields.Number();
        if (kind == "stretch") {
            stretch.view = ViewOf(fields);
        }
        if (fields.IsWhole()) {
            state.stretches.push_back(std::move(stretch));
        }
    }
}

}

std::string TrackState::Text() const
{
    std::string text = "Tempodial track state 1\n";
    if (isPaused) {
        text += "paused";
        text += pausedUntil ? Between + std::to_string(*pausedUntil) : "";
        text += "\n";
    }
    if (!project.empty()) {
        text += std::string("project") + Between + project + "\n";
    }
    text += std::string("input") + Between + std::to_string(input) + Between + std::to_string(patience) + "\n";
    for (const auto& slot : slots) {
        text += std::string("slot") + Between + std::to_string(slot.start) + Between + std::to_string(slot.presence)
            + "\n";
        for (const auto& time : slot.views) {
            text += std::string("view") + Between + std::to_string(time.seconds) + Between + ViewText(time.view) + "\n";
        }
    }
    for (const auto& stretch : stretches) {
        text += std::string(stretch.view ? "stretch" : "empty") + Between + std::to_string(stretch.begin) + Between
            + std::to_string(stretch.end) + (stretch.view ? Between + ViewText(*stretch.view) : "") + "\n";
    }
    for (const auto& line : unsaved) {
        text += std::string("line") + Between + std::to_string(line.midnight) + Between + line.text + "\n";
    }
    return text;
}

TrackState TrackState::Of(const std::string& text)
{
    TrackState state;
    for (std::string_view rest = text; !rest.empty();) {
        const auto end = rest.find('\n');
        if (end == std::string_view::npos) {
            break; // a line that was cut off
        }
        TakeStateLine(state, rest.substr(0, end));
        rest.remove_prefix(end + 1);
    }
    return state;
}

}
