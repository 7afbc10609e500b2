#pragma once

#include "driver/Driver.h"
#include "scenarios/KeptCase.h"
#include "support/TempFolder.h"

#include <nlohmann/json.hpp>

#include <memory>
#include <string>
#include <vector>

namespace tempodial {

/// The button by which an activity's window saves and closes.
inline constexpr auto SaveAndClose = "&Save and Close";
/// The dialog that keeps the projects.
inline constexpr auto SettingsForm = "ProjectSettingsForm";

/// A person at work in the host, through the driver: a profile of its own, in en_US, from 9 o'clock on Tuesday,
/// 10 October 2006. What goes wrong is noted and stops nothing.
class DrivenPerson
{
public:
    using Path = std::vector<std::string>;

    static constexpr auto Log = "Calendar/Tempodial";

    DrivenPerson();
    ~DrivenPerson();
    DrivenPerson(const DrivenPerson&) = delete;
    DrivenPerson& operator=(const DrivenPerson&) = delete;

    /// Does a command and answers its answer.
    Json Do(const Json& command);
    /// Has commands done at a moment at which a job lets messages be processed, counted from now.
    void AtPump(int moment, const std::vector<Json>& commands);
    /// Ends the input, as a normal exit does; only looking at files makes sense afterwards.
    void Leave();

    /// Writes a tracker file for yesterday and one for today: budget, letter and minutes, in slots of five minutes.
    void WriteTracker() const;
    /// Writes a day's tracker file of slots.
    void WriteDay(const std::string& dayKey, const std::vector<std::string>& slots) const;
    /// Writes a tracker file for today with a few slots: budget with a continuation and a detail, and letter.
    void WriteSlots() const;
    /// Starts the host, and lets the time pass in which nothing is imported unless asked for.
    void Start(int explorers = 1);
    void Answers(const std::vector<std::string>& answers);
    void GoTo(int explorer, const std::string& folder);
    /// Clicks an entry of the add-in's menu.
    Json Menu(int explorer, const Path& path);
    /// Clicks the add-in's button.
    Json Refresh(int explorer);
    /// Clicks a command of the add-in's bar in an item's window.
    Json Toolbar(int inspector, const std::string& caption);
    /// The activities of the work log.
    Json Items();
    /// Those of a description.
    Json ItemsOf(const std::string& description);
    /// Opens the first activity of a description and answers the number of its window, 0 when it didn't open.
    int OpenFirst(const std::string& description);
    void Set(int inspector, const std::string& control, const Json& value);
    Json CloseInspector(int inspector);
    Json Click(const std::string& form, const std::string& control);
    Json Type(const std::string& form, const std::string& control, const std::string& text);
    Json Choose(const std::string& form, const std::string& control, const std::string& text);
    Json Check(const std::string& form, const std::string& control, bool checked = true);
    Json CloseForm(const std::string& form);
    /// The newest form of a class, null without one.
    Json Form(const std::string& name);
    /// A control of an explorer's menu or of a bar below it, null without one.
    Json MenuEntry(int explorer, const std::string& caption);
    /// A bar of a window, an empty object without one.
    Json Bar(const std::string& kind, int number, const std::string& name);
    std::vector<std::string> Trace();

    /// The commands that were refused, each with its answer.
    const std::vector<std::string>& Refusals() const { return mRefusals; }
    /// The message boxes shown.
    const std::vector<Json>& Messages() const { return mMessages; }
    /// The answers of what was done while a job let messages be processed.
    const std::vector<Json>& Pumped() const { return mPumped; }
    FaultPlan& Faults() { return mDriver->Host().Faults(); }
    /// The host's windows.
    HostApplication& Application() { return mDriver->Host().Windows(); }
    const TempFolder& Profile() const { return mFolder; }

private:
    TempFolder mFolder { TempFolder::InMemory() };
    mutable KeptCase mCase;
    std::unique_ptr<Driver> mDriver;
    std::vector<std::string> mRefusals;
    std::vector<Json> mMessages;
    std::vector<Json> mPumped;
};

}
