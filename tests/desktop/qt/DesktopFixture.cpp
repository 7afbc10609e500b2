#include "DesktopFixture.h"

#include "desktop/qt/OffscreenApplication.h"
#include "session/ProductFacts.h"

#include <QPalette>
#include <QPixmap>
#include <QWidget>
#include <array>
#include <cstdlib>

namespace tempodial {

namespace {

struct Document
{
    const char* project;
    const char* description;
    const char* application;
};

constexpr std::array<Document, 14> Documents { {
    { "Riverside", "Proposal Riverside.odt", "Writer" },
    { "Riverside", "Site plan v3.dwg", "LibreCAD" },
    { "Riverside", "Riverside costs.ods", "Calc" },
    { "Annual review", "Annual review 2006.odp", "Impress" },
    { "Annual review", "Goals.md", "Kate" },
    { "Support", "Ticket 4121 - import stalls", "Firefox" },
    { "Support", "Re: Printer at desk 12", "Thunderbird" },
    { "Admin", "Timesheets October", "Calc" },
    { "Admin", "Travel expenses", "Firefox" },
    { "Hiring", "Interview notes", "Writer" },
    { "", "Inbox", "Thunderbird" },
    { "", "developer.mozilla.org", "Firefox" },
    { "", "Terminal", "Konsole" },
    { "Personal", "Train times", "Firefox" },
} };

}

DesktopFixture::DesktopFixture()
{
    OffscreenApplication();
    const ProfileOptions options {
        .profile = mFolder.Path("profile"), .locale = "en_GB", .now = Date::FromParts({ 2006, 11, 17, 16, 12, 0 })
    };
    mDesk = std::make_unique<Desk>(options, mSettingsPath, mLook);
    mDesk->Start(mMessages);
}

DesktopFixture::~DesktopFixture()
{
    mWindows.reset();
    Settle();
    mDesk->Exit();
    // The next one begins with the colours of a desktop, and not with those that this one chose.
    QApplication::setPalette({});
}

void DesktopFixture::Add(
    const std::string& project, const std::string& description, const std::string& application, Date start, Date end)
{
    mDesk->Session().AddIn().CreateCalendarItem(project.empty() ? NoProject : project, description, application, "",
        MinutesBetween(start, end), start, end, "", false);
}

void DesktopFixture::AddWeek()
{
    constexpr std::array<std::array<std::size_t, 9>, 5> plans { { { 0, 3, 0, 5, 10, 1, 0, 7, 6 },
        { 3, 4, 11, 0, 2, 8, 3, 6, 10 }, { 5, 6, 0, 1, 12, 9, 2, 0, 13 }, { 0, 2, 10, 3, 4, 5, 7, 11, 1 },
        { 1, 0, 6, 3, 11, 9, 3, 0, 2 } } };
    constexpr int Monday = 13;
    constexpr int Noon = 12 * 60;
    unsigned seed = 11;
    const auto random = [&seed](unsigned below) {
        seed = seed * 1664525U + 1013904223U;
        return static_cast<int>((seed >> 8U) % below);
    };
    for (std::size_t day = 0; day < plans.size(); ++day) {
        const auto date = Monday + static_cast<int>(day);
        const auto add = [&](std::size_t document, int from, int to) {
            const auto& it = Documents[document];
            Add(it.project, it.description, it.application, On(date, 0).AddMinutes(from), On(date, 0).AddMinutes(to));
        };
        auto time = 8 * 60 + 10 + random(6) * 5;
        const auto end = day == 4 ? 16 * 60 + 10 : 17 * 60 + 20 + random(5) * 5;
        for (std::size_t turn = 0; time < end; ++turn) {
            auto until = std::min(time + 25 + random(12) * 5, end);
            if (time < Noon + 10 && until > Noon + 20) {
                until = std::max(time + 20, Noon + 15);
            }
            add(plans[day][turn % plans[day].size()], time, until);
            time = until;
            if (time >= Noon + 5 && time < Noon + 60) {
                time = Noon + 50 + random(4) * 5;
            } else if (random(3) == 0) {
                for (auto left = 2 + random(5); left > 0 && time + 5 < end; --left, time += 5) {
                    add(static_cast<std::size_t>(random(Documents.size())), time, time + 5);
                }
            } else if (random(6) == 0) {
                time += 20;
            }
        }
    }
    Add("Personal", "Train times", "Firefox", On(18, 10, 20), On(18, 11, 0));
    Add("Hiring", "Interview, room 2", "Calendar", On(14, 14, 0), On(14, 15, 0));
}

MainWindow& DesktopFixture::Open()
{
    mWindows = std::make_unique<HostWindows>(*mDesk);
    Settle();
    return *mWindows->WindowOf(mDesk->Windows().OpenExplorers().front());
}

void DesktopFixture::Settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void DesktopFixture::Picture(QWidget& widget, const std::string& name)
{
    if (const auto* folder = std::getenv("TEMPODIAL_PICTURES"); folder != nullptr) {
        Settle();
        EXPECT_TRUE(widget.grab().save(QString::fromStdString(std::string(folder) + "/" + name + ".png"))) << name;
    }
}

}
