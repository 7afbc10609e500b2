#include "host/settings/TomlSettings.h"
#include "slots/SlotWords.h"
#include "slots/ViewSettings.h"

#include <gtest/gtest.h>

#include <vector>

namespace tempodial {

namespace {

/// Ids of one program, a caption, and what comes of it.
struct Row
{
    std::vector<std::string> ids;
    std::string title;
    std::string program;
    int kind;
    std::string text;
};

const ViewMaker& Views()
{
    static const auto views
        = ViewsBy({}, ReadSettingsFile(TEMPODIAL_SOURCE_DIR "/resources/programs.toml"), SettingsFile());
    return views;
}

std::string NodesOf(const SlotView& view)
{
    SlotLine line(0, 1);
    Words { view.program, view.kind, view.text, view.project }.PutInto(line);
    return line.Text();
}

const Row Rows[] {
    { { "winword", "WINWORD.EXE", "Microsoft Word" }, "Plan.docx - Word", "Microsoft Word", 2, "Plan.docx" },
    { { "winword.exe" }, "Plan.docx  [Compatibility Mode] - Microsoft Word", "Microsoft Word", 2, "Plan.docx" },
    { { "winword.exe" }, "Plan.docx [Read-Only] - Compatibility Mode - Word", "Microsoft Word", 2, "Plan.docx" },
    { { "winword.exe" }, "Word", "Microsoft Word", 0, "" },
    { { "excel", "EXCEL.EXE" }, "Budget.xlsx - Excel", "Microsoft Excel", 3, "Budget.xlsx" },
    { { "powerpnt", "POWERPNT.EXE" }, "Talk.pptx - PowerPoint", "Microsoft Powerpoint", 4, "Talk.pptx" },
    { { "outlook", "OUTLOOK.EXE", "olk.exe" }, "Inbox - ann@example.com - Outlook", "Microsoft Outlook", 0, "Inbox" },
    { { "outlook.exe" }, "Plan for May - Message (HTML)", "Microsoft Outlook", 5, "Plan for May" },
    { { "outlook.exe" }, "Untitled - Message (HTML) ", "Microsoft Outlook", 0, "Untitled - Message (HTML)" },
    { { "notes.exe", "nlnotes" }, "Team room - IBM Notes", "Lotus Notes", 7, "Team room" },
    { { "notepad.exe" }, "*todo.txt - Notepad", "Notepad", 8, "todo.txt" },
    { { "explorer.exe" }, "Riverside - File Explorer", "Windows Explorer", 9, "Riverside" },
    { { "firefox", "org.mozilla.firefox", "firefox_firefox", "Navigator", "firefox.exe" },
        "(2) Plan \u2014 Mozilla Firefox", "Firefox", 0, "Plan" },
    { { "librewolf", "io.gitlab.librewolf-community", "librewolf.exe" }, "Plan \u2014 LibreWolf", "LibreWolf", 0,
        "Plan" },
    { { "google-chrome", "Google-chrome", "com.google.Chrome", "chrome.exe" }, "Plan - Google Chrome", "Google Chrome",
        0, "Plan" },
    { { "chromium", "chromium_chromium", "org.chromium.Chromium", "Chromium-browser" }, "Plan - Chromium", "Chromium",
        0, "Plan" },
    { { "msedge", "microsoft-edge", "com.microsoft.Edge", "msedge.exe" },
        "Plan and 2 more pages - Personal - Microsoft\u200b Edge", "Microsoft Edge", 0, "Plan" },
    { { "brave-browser", "com.brave.Browser", "brave.exe", "brave_brave" }, "Plan - Brave", "Brave", 0, "Plan" },
    { { "vivaldi-stable", "com.vivaldi.Vivaldi", "vivaldi.exe" }, "Plan - Vivaldi", "Vivaldi", 0, "Plan" },
    { { "opera", "com.opera.Opera", "opera.exe", "opera_opera" }, "Plan - Opera", "Opera", 0, "Plan" },
    { { "epiphany", "org.gnome.Epiphany" }, "Plan", "GNOME Web", 0, "Plan" },
    { { "falkon", "org.kde.falkon", "falkon.exe" }, "Plan - Falkon", "Falkon", 0, "Plan" },
    { { "iexplore.exe" }, "Plan - Windows Internet Explorer", "Internet Explorer", 0, "Plan" },
    { { "soffice", "soffice.bin", "soffice.exe", "libreoffice_libreoffice" }, "Sum.ods \u2014 LibreOffice Calc",
        "LibreOffice Calc", 0, "Sum.ods" },
    { { "libreoffice-writer", "org.libreoffice.LibreOffice.writer" }, "Plan.odt \u2014 LibreOffice Writer",
        "LibreOffice Writer", 0, "Plan.odt" },
    { { "libreoffice-calc" }, "Sum.ods - LibreOffice Calc", "LibreOffice Calc", 0, "Sum.ods" },
    { { "libreoffice-impress" }, "Talk.odp - LibreOffice Impress", "LibreOffice Impress", 0, "Talk.odp" },
    { { "libreoffice-draw" }, "Map.odg - LibreOffice Draw", "LibreOffice Draw", 0, "Map.odg" },
    { { "thunderbird", "org.mozilla.Thunderbird", "thunderbird_thunderbird", "thunderbird.exe" },
        "Write: Plan for May - Thunderbird", "Thunderbird", 0, "Write: Plan for May" },
    { { "thunderbird" }, "Inbox - ann@example.com - Mozilla Thunderbird", "Thunderbird", 0, "Inbox" },
    { { "evolution", "org.gnome.Evolution" }, "Inbox \u2014 Evolution", "Evolution", 0, "Inbox" },
    { { "geary", "org.gnome.Geary" }, "Inbox \u2014 ann@example.com", "Geary", 0, "Inbox" },
    { { "kmail", "org.kde.kmail2", "org.kde.kmail" }, "Inbox \u2014 KMail", "KMail", 0, "Inbox" },
    { { "okular", "org.kde.okular", "okular.exe" }, "Plan.pdf \u2014 Okular", "Okular", 0, "Plan.pdf" },
    { { "evince", "org.gnome.Evince" }, "Plan.pdf \u2014 Document Viewer", "Evince", 0, "Plan.pdf" },
    { { "papers", "org.gnome.Papers" }, "Plan.pdf", "Papers", 0, "Plan.pdf" },
    { { "zathura", "org.pwmt.zathura" }, "Plan.pdf", "Zathura", 0, "Plan.pdf" },
    { { "xreader" }, "Plan.pdf", "Xreader", 0, "Plan.pdf" },
    { { "AcroRd32.exe", "Acrobat.exe" }, "Plan.pdf - Adobe Acrobat Reader (64-bit)", "Adobe Acrobat", 0, "Plan.pdf" },
    { { "SumatraPDF.exe" }, "Plan.pdf - SumatraPDF", "SumatraPDF", 0, "Plan.pdf" },
    { { "code", "Code", "code_code", "com.visualstudio.code", "Code.exe" },
        "\u25cf main.py - Atlas - Visual Studio Code", "Visual Studio Code", 0, "Atlas: main.py" },
    { { "codium", "VSCodium", "com.vscodium.codium", "codium_codium" }, "main.py - Atlas - VSCodium", "VSCodium", 0,
        "Atlas: main.py" },
    { { "jetbrains-pycharm-ce", "com.jetbrains.PyCharm-Community", "pycharm64.exe",
          "pycharm-community_pycharm-community" },
        "Atlas \u2013 main.py", "PyCharm", 0, "Atlas: main.py" },
    { { "jetbrains-idea", "idea64.exe", "com.jetbrains.IntelliJ-IDEA-Ultimate" }, "Atlas \u2013 Main.java",
        "IntelliJ IDEA", 0, "Atlas: Main.java" },
    { { "jetbrains-goland" }, "Atlas \u2013 main.go", "JetBrains", 0, "Atlas: main.go" },
    { { "sublime_text", "Sublime_text", "com.sublimetext.three", "sublime_text.exe" },
        "~/src/Atlas/main.py \u2022 (Atlas) - Sublime Text (UNREGISTERED)", "Sublime Text", 0, "Atlas: main.py" },
    { { "kate", "org.kde.kate", "kate.exe" }, "main.py  (~/src/Atlas) \u2014 Kate", "Kate", 0, "Atlas: main.py" },
    { { "gedit", "org.gnome.gedit" }, "*main.py (~/src/Atlas) - gedit", "gedit", 0, "Atlas: main.py" },
    { { "org.gnome.TextEditor", "gnome-text-editor" }, "main.py (~/src/Atlas) - Text Editor", "Text Editor", 0,
        "Atlas: main.py" },
    { { "gvim", "Gvim", "gvim.exe" }, "main.py + (~/src/Atlas) - GVIM1", "Vim", 0, "Atlas: main.py" },
    { { "emacs", "Emacs", "org.gnu.emacs" }, "main.py - GNU Emacs at box", "Emacs", 0, "main.py" },
    { { "gnome-terminal-server", "org.gnome.Terminal", "Gnome-terminal" }, "ann@box: ~/src", "Terminal", 0,
        "box: ~/src" },
    { { "konsole", "org.kde.konsole" }, "~/src : bash \u2014 Konsole", "Konsole", 0, "~/src" },
    { { "xterm", "XTerm", "UXTerm" }, "vim secret.txt", "XTerm", 0, "vim" },
    { { "foot", "footclient" }, "foot", "foot", 0, "" },
    { { "kitty" }, "make -j4 TOKEN=secret", "kitty", 0, "make" },
    { { "Alacritty", "alacritty" }, "ann@box:~", "Alacritty", 0, "box: ~" },
    { { "org.wezfurlong.wezterm", "wezterm-gui.exe" }, "~/src", "WezTerm", 0, "~/src" },
    { { "org.gnome.Ptyxis", "ptyxis" }, "ann@box:~/src", "Ptyxis", 0, "box: ~/src" },
    { { "WindowsTerminal.exe" }, "Windows PowerShell", "Windows Terminal", 0, "" },
    { { "powershell.exe", "pwsh" }, R"(Administrator: C:\Users)", "PowerShell", 0, R"(C:\Users)" },
    { { "nautilus", "org.gnome.Nautilus" }, "Riverside", "Files", 0, "Riverside" },
    { { "org.kde.dolphin", "dolphin" }, "Riverside \u2014 Dolphin", "Dolphin", 0, "Riverside" },
    { { "thunar", "Thunar" }, "Riverside - Thunar", "Thunar", 0, "Riverside" },
    { { "nemo", "Nemo" }, "Riverside", "Nemo", 0, "Riverside" },
    { { "pcmanfm", "pcmanfm-qt" }, "Riverside", "PCManFM", 0, "Riverside" },
    { { "slack", "Slack", "com.slack.Slack", "slack_slack", "slack.exe" },
        "general (Channel) - Atlas - 2 new items - Slack", "Slack", 0, "general (Atlas)" },
    { { "slack" }, "Ann Berger (DM) - Atlas - Slack", "Slack", 0, "Atlas" },
    { { "discord", "com.discordapp.Discord", "discord_discord", "Discord.exe" }, "#general | Atlas - Discord",
        "Discord", 0, "#general (Atlas)" },
    { { "telegram-desktop", "org.telegram.desktop", "telegram-desktop_telegram-desktop", "Telegram.exe" },
        "Ann Berger \u2013 (3)", "Telegram", 0, "" },
    { { "signal", "org.signal.Signal", "signal-desktop_signal-desktop", "Signal.exe" }, "Signal", "Signal", 0, "" },
    { { "element-desktop", "im.riot.Riot", "element.exe" }, "Element | #atlas", "Element", 0, "#atlas" },
    { { "teams", "ms-teams.exe", "com.microsoft.Teams", "teams-for-linux" }, "Chat | Ann Berger | Microsoft Teams",
        "Microsoft Teams", 0, "" },
    { { "zoom", "us.zoom.Zoom", "Zoom.exe", "zoom-client_zoom-client" }, "Weekly - Zoom Meeting", "Zoom", 0, "Weekly" },
    { { "webex", "com.webex.meeting", "CiscoCollabHost.exe" }, "Weekly", "Webex", 0, "Weekly" },
    { { "jitsi-meet", "org.jitsi.jitsi-meet" }, "Weekly | Jitsi Meet", "Jitsi Meet", 0, "Weekly" },
    { { "vlc", "org.videolan.VLC", "vlc_vlc", "vlc.exe" }, "talk.mkv - VLC media player", "VLC", 0, "talk.mkv" },
    { { "mpv", "io.mpv.Mpv" }, "talk.mkv - mpv", "mpv", 0, "talk.mkv" },
    { { "spotify", "com.spotify.Client", "spotify_spotify", "Spotify.exe" }, "Spotify Premium", "Spotify", 0, "" },
    { { "totem", "org.gnome.Totem" }, "talk.mkv", "Videos", 0, "talk.mkv" },
    { { "rhythmbox", "org.gnome.Rhythmbox3" }, "Song - Rhythmbox", "Rhythmbox", 0, "Song" },
    { { "org.gnome.Calculator", "calculator" }, "Calculator", "Calculator", 0, "" },
};

}

TEST(ShippedProgramsTest, Make_EachProgram_GivesItsNameKindAndText)
{
    for (const auto& row : Rows) {
        for (const auto& id : row.ids) {
            const auto seen = Views().Make({ id, "", row.title, "", false });
            SCOPED_TRACE(id + ", " + row.title);
            EXPECT_EQ(seen.kind, Seen::Kind::View);
            EXPECT_EQ(seen.view.program, row.program);
            EXPECT_EQ(seen.view.kind, row.kind);
            EXPECT_EQ(seen.view.text, row.text);
            EXPECT_NE(
                NodesOf(seen.view).find("<AppType>" + std::to_string(row.kind) + "</AppType>"), std::string::npos);
        }
    }
}

TEST(ShippedProgramsTest, Make_PageWithHost_NamesIt)
{
    EXPECT_EQ(Views().Make({ "firefox", "", "Plan", "wiki.example.com", false }).view.text, "Plan (wiki.example.com)");
}

TEST(ShippedProgramsTest, Make_LockScreens_SayThatNobodyIsThere)
{
    for (const auto* id : { "LockApp.exe", "LogonUI.exe", "loginwindow", "swaylock", "kscreenlocker_greet",
             "gnome-screensaver", "i3lock", "org.kde.kscreenlocker_greet" }) {
        EXPECT_EQ(Views().Make({ id, "", "x", "", false }).kind, Seen::Kind::Locked) << id;
    }
}

TEST(ShippedProgramsTest, Make_DesktopsAndShells_AreNothing)
{
    for (const auto* id : { "gnome-shell", "plasmashell", "org.kde.plasmashell", "SearchApp.exe", "Windows Search",
             "xfdesktop", "StartMenuExperienceHost.exe" }) {
        EXPECT_EQ(Views().Make({ id, "", "x", "", false }).kind, Seen::Kind::Nothing) << id;
    }
    EXPECT_EQ(Views().Make({ "explorer.exe", "", "Program Manager", "", false }).kind, Seen::Kind::Nothing);
}

}
