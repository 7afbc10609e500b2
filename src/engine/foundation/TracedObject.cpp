#include "engine/foundation/TracedObject.h"

namespace tempodial {

void Attempt::Say(std::string_view text) const
{
    (*this)([&] { Trace(text); });
}

void Attempt::Trace(std::string_view text) const
{
    mObject.Trace(text);
}

void Attempt::TraceFailure(const Failure& failure) const
{
    const auto& text = failure.Description();
    const auto& step = mObject.mStage;
    std::string line(mWords);
    switch (mShape) {
    case LineShape::TextColonStep:
        line += text + ":" + step;
        break;
    case LineShape::TextBlankStep:
    case LineShape::TextBlankStepFinished:
        line += text + " " + step;
        break;
    case LineShape::TextAmpersandStep:
        line += text + " & " + step;
        break;
    case LineShape::TextStep:
        line += text + step;
        break;
    case LineShape::TextOnly:
        line += text;
        break;
    case LineShape::ColonText:
        line += ":" + text;
        break;
    case LineShape::StepNumberText:
        line += step + " " + std::to_string(failure.Number()) + " " + text;
        break;
    case LineShape::Silent:
        return;
    }
    mObject.Trace(line);
    if (mShape == LineShape::TextBlankStepFinished && text.find("Input past end") != std::string::npos) {
        mObject.Trace("Finished file");
    }
}

}
