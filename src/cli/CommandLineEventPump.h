#pragma once

#include "base/Ref.h"
#include "cli/ProgressLine.h"
#include "forms/FormModelFactory.h"
#include "platform/controls/EventPump.h"

#include <memory>

namespace tempodial {

/// The moments at which a job lets messages be processed, in a run without windows: the visible progress form is drawn
/// as a line, and a request to stop presses its Cancel button.
class CommandLineEventPump final : public EventPump
{
public:
    /// Without a line nothing is drawn.
    CommandLineEventPump(Ref<EventPump> inner, Ref<FormModelFactory> forms, std::unique_ptr<ProgressLine> line);

    void ProcessPending() override;

private:
    Ref<EventPump> mInner;
    Ref<FormModelFactory> mForms;
    std::unique_ptr<ProgressLine> mLine;
};

}
