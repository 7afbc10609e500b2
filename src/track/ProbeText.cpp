#include "track/ProbeText.h"

#include "slots/PlainText.h"
#include "track/TrackMoment.h"

#include <algorithm>
#include <cstddef>

namespace tempodial {

namespace {

std::string JsonText(const std::string& text)
{
    std::string json = "\"";
    for (const char character : PlainText(text)) {
        if (character == '"' || character == '\\') {
            json += '\\';
        }
        json += character;
    }
    return json + '"';
}

std::string JsonFlag(bool flag)
{
    return flag ? "true" : "false";
}

/// What a desktop tells, as people say it.
std::string SightText(const DesktopSight& sight)
{
    std::string text;
    const auto add = [&text](bool isSeen, const char* what) {
        if (isSeen) {
            text += (text.empty() ? "" : ", ") + std::string(what);
        }
    };
    add(sight.window, "window");
    add(sight.title, "title");
    add(sight.idle, "idle");
    add(sight.lock, "lock");
    return text.empty() ? "nothing" : text;
}

}

std::string ProbeJson(const std::vector<DesktopTrial>& trials)
{
    std::string json = "[";
    for (const auto& trial : trials) {
        json += json.size() == 1 ? "\n" : ",\n";
        json += "  {\n    \"backend\": " + JsonText(trial.name) + ",\n    \"window\": " + JsonFlag(trial.sight.window)
            + ",\n    \"title\": " + JsonFlag(trial.sight.title) + ",\n    \"idle\": " + JsonFlag(trial.sight.idle)
            + ",\n    \"lock\": " + JsonFlag(trial.sight.lock)
            + ",\n    \"why\": " + (trial.sight.why.empty() ? "null" : JsonText(trial.sight.why))
            + (trial.isChosen ? ",\n    \"chosen\": true" : "") + "\n  }";
    }
    return json + "\n]\n";
}

std::string ProbeText(const std::vector<DesktopTrial>& trials)
{
    constexpr std::size_t NameWidth = 7;
    std::string text;
    for (const auto& trial : trials) {
        text += (trial.isChosen ? "* " : "  ") + trial.name
            + std::string(NameWidth - std::min(trial.name.size(), NameWidth - 1), ' ');
        const bool isSeen = trial.sight.window;
        text += isSeen ? "sees " + SightText(trial.sight) : "";
        text += trial.sight.why.empty() ? "" : (isSeen ? "; " : "") + PlainText(trial.sight.why);
        text += "\n";
    }
    return text;
}

std::string OnceJson(const std::string& desktop, const Seen& made, const Observation& seen)
{
    const bool isView = made.kind == Seen::Kind::View;
    return "{\n  \"backend\": " + JsonText(desktop)
        + ",\n  \"program\": " + (isView ? JsonText(made.view.program) : "null")
        + ",\n  \"kind\": " + (isView ? std::to_string(made.view.kind) : "null")
        + ",\n  \"text\": " + (isView ? JsonText(made.view.text) : "null")
        + ",\n  \"idleSeconds\": " + (seen.idle ? std::to_string(*seen.idle / MillisecondsOfSecond) : "null")
        + ",\n  \"locked\": " + JsonFlag(seen.isLocked || made.kind == Seen::Kind::Locked) + "\n}\n";
}

std::string OnceText(const Seen& made, const Observation& seen)
{
    if (seen.isLocked || made.kind == Seen::Kind::Locked) {
        return "locked\n";
    }
    if (made.kind == Seen::Kind::View) {
        return made.view.program + (made.view.text.empty() ? "" : ", " + made.view.text) + "\n";
    }
    return "nothing\n";
}

}
