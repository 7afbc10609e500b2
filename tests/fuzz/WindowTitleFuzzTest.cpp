#include "base/Ascii.h"
#include "base/Text.h"
#include "fuzz/FuzzTarget.h"
#include "host/settings/TomlSettings.h"
#include "slots/SlotWords.h"
#include "slots/ViewSettings.h"

namespace tempodial {

namespace {

/// A window of that title is seen in programs of every form, and written down.
void WriteTitle(std::string_view input)
{
    static const auto views = ViewsBy({}, ReadSettingsFile(TEMPODIAL_SOURCE_DIR "/resources/programs.toml"), {});
    for (const auto* program : { "firefox", "code", "jetbrains-idea", "konsole", "slack", "thunderbird", "outlook",
             "winword", "soffice", "explorer", "signal", "unheard-of" }) {
        const auto seen = views.Make({ program, "", std::string(input), "wiki.example.com", false });
        SlotLine line(0, 1);
        Words { seen.view.program, seen.view.kind, seen.view.text, seen.view.project }.PutInto(line);
        Hold(IsAscii(line.Text()), "a line is ASCII");
        Hold(Length(seen.view.text) <= 200, "a text is short");
        Hold(seen.kind != Seen::Kind::View || !seen.view.program.empty(), "a program has a name");
    }
}

}

TEMPODIAL_FUZZ_TARGET(WindowTitle, WriteTitle)

}
