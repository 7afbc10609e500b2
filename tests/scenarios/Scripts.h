#pragma once

#include "scenarios/DrivenPerson.h"

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace tempodial {

/// What a person does from the start of the host on, whatever comes of it. Each ends with all windows closed.
struct Script
{
    std::string name;
    std::function<void(DrivenPerson& person)> run;

    friend std::ostream& operator<<(std::ostream& stream, const Script& script) { return stream << script.name; }
};

/// A morning's work: arrive at the log, import, look, change a project on the page, make a keyword a rule, apply it to
/// the past, ask for a report, close.
void Morning(DrivenPerson& person);
/// Each way of closing an activity's window.
void Closings(DrivenPerson& person);
/// Two windows, late command bars, calendars side by side, a window that dies.
void Windows(DrivenPerson& person);
/// Every dialog, with its questions.
void Dialogs(DrivenPerson& person);
/// Every job, cancelled halfway.
void CancelledJobs(DrivenPerson& person);
/// A sync during which the last window is closed.
void LastWindowInASync(DrivenPerson& person);

/// All of them.
std::vector<Script> AllScripts();

}
