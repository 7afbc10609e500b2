#pragma once

#include "base/Date.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tempodial {

/// A step: what one command, or one gesture in a window, changed.
struct Step
{
    /// From 1 and never given again.
    std::int64_t number = 0;
    /// When it was done, by the clock of its run.
    Date moment;
    /// The command as it was typed, or the gesture's caption.
    std::string command;
    /// How many items it changed.
    std::int64_t items = 0;
    /// The step that it took back; nothing for a step that is no undo.
    std::optional<std::int64_t> undoes;
    /// It was taken back, and that wasn't taken back in turn.
    bool isTakenBack = false;
    /// The projects with their rules as they were before it and as it left them; nothing when it left them as they
    /// were.
    std::optional<std::string> rulesBefore;
    std::optional<std::string> rulesAfter;
};

/// What becomes of a step's items when it is taken back.
struct StepItems
{
    /// Items that are as they were before the step.
    std::int64_t restored = 0;
    /// Those of them that there weren't then, so that they are gone.
    std::int64_t removed = 0;
    /// Items that were changed since the step, and stay.
    std::int64_t kept = 0;
};

}
