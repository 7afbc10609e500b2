#include "base/Number.h"
#include "desktop/qt/FlatButton.h"
#include "desktop/qt/JobStrip.h"
#include "session/ProductFacts.h"
#include "terminal/ProgramRun.h"
#include "windows/Frames.h"
#include "windows/ShownDesk.h"
#include "windows/Spent.h"

#include <QApplication>
#include <QTimer>
#include <cstddef>
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

using namespace tempodial;

namespace {

constexpr auto Usage
    = "usage: bench-desktop frames|start|import|cancel PROFILE YYYY-MM-DD\n"
      "Works the desktop program's windows on that day at noon, and prints a line for each thing measured:\n"
      "its name, seconds of the processor, seconds by the clock.\n";
constexpr int Noon = 12 * 60;

void Print(const std::string& name, const Spent& spent)
{
    std::cout << name << ' ' << spent.processor << ' ' << spent.wall << '\n';
}

void PrintAll(const std::string& name, const std::vector<Spent>& frames)
{
    for (const auto& frame : frames) {
        Print(name, frame);
    }
}

/// In the week in which the day lies; but for the zoom itself so large that activities of five minutes have a line of
/// text.
void MeasureFrames(ShownDesk& desk)
{
    constexpr std::int64_t Zoom = 400;
    constexpr std::size_t Busy = 1000;
    desk.Settle();
    Frames frames(desk);
    PrintAll("zoom", frames.Zoom());
    desk.Desk().Change([](DesktopSettings& settings) { settings.zoom = Zoom; });
    if (desk.Window().Log().Activities().size() < Busy) {
        throw std::runtime_error("the week has too few activities");
    }
    PrintAll("scroll", frames.Scroll());
    PrintAll("drag", frames.Drag());
    PrintAll("search", frames.Search());
    PrintAll("walk", frames.Walk());
}

void MeasureStart(ShownDesk& desk, const Spent& begin)
{
    constexpr int Pages = 20;
    if (!desk.Settle()) {
        throw std::runtime_error("nothing was painted");
    }
    const auto painted = Spent::Now();
    // The processor's time counts from the start of the process on, the clock's from that of this program.
    Print("start", { painted.wall - begin.wall, painted.processor });
    for (int page = 0; page < Pages; ++page) {
        const auto before = Spent::Now();
        desk.Window().Page(-1);
        if (!desk.Settle()) {
            throw std::runtime_error("a page was not painted");
        }
        Print("page", Spent::Now().Since(before));
    }
}

void Import(ShownDesk& desk)
{
    desk.Desk().Do([&desk] { desk.Desk().Session().AddIn().SyncData(SavedDataDays, true); });
}

void MeasureImport(ShownDesk& desk)
{
    desk.Settle();
    const auto begin = Spent::Now();
    Import(desk);
    desk.Settle();
    Print("import", Spent::Now().Since(begin));
}

/// From the click on Cancel to the end of the job.
void MeasureCancel(ShownDesk& desk)
{
    constexpr int Often = 20;
    std::optional<Spent> clicked;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        auto& strip = desk.Window().Job();
        if (!clicked && strip.isVisible()) {
            clicked = Spent::Now();
            strip.Cancel().click();
        }
    });
    timer.start(Often);
    desk.Settle();
    Import(desk);
    if (!clicked) {
        throw std::runtime_error("the import was over before it could be cancelled");
    }
    Print("cancel", Spent::Now().Since(*clicked));
}

void Run(const std::string& what, const std::string& profile, const std::string& day)
{
    const auto begin = Spent::Now();
    std::string name = "bench-desktop";
    int count = 1;
    char* values[] { name.data(), nullptr };
    const QApplication application(count, values);
    QApplication::setQuitOnLastWindowClosed(false);
    const auto midnight = Date::FromTexts(day.substr(0, 4), ToInt32(day.substr(5, 2)), day.substr(8));
    ShownDesk desk(profile, midnight.AddMinutes(Noon));
    if (what == "frames") {
        MeasureFrames(desk);
    } else if (what == "start") {
        MeasureStart(desk, begin);
    } else if (what == "import") {
        MeasureImport(desk);
    } else if (what == "cancel") {
        MeasureCancel(desk);
    } else {
        throw std::runtime_error("unknown: " + what);
    }
}

}

int main(int count, char** arguments)
{
    return RunMain("bench-desktop", count, arguments, [](const std::vector<std::string>& words) {
        constexpr std::size_t Wanted = 3;
        if (words.size() != Wanted) {
            std::cerr << Usage;
            return ExitStatus::Usage;
        }
        try {
            Run(words[0], words[1], words[2]);
            return ExitStatus::Done;
        } catch (const std::exception& problem) {
            std::cerr << "bench-desktop: " << problem.what() << '\n';
            return ExitStatus::NotDone;
        }
    });
}
