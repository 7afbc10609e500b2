#pragma once

#include "base/Failure.h"
#include "base/Ref.h"
#include "engine/foundation/TempodialDebugLog.h"
#include "platform/Platform.h"

#include <concepts>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace tempodial {

/// How a failure line goes on behind the routine's words. "Step" is the object's step word, "text" the description.
enum class LineShape {
    TextColonStep,
    TextBlankStep,
    /// As `TextBlankStep`; behind the line of a read past the end of a file stands a second one.
    TextBlankStepFinished,
    TextAmpersandStep,
    TextStep,
    TextOnly,
    ColonText,
    StepNumberText,
    Silent,
};

class TracedObject;

/// Runs the statements of one routine one by one: a failed statement costs one trace line and nothing more.
class Attempt
{
public:
    Attempt(const TracedObject& object, std::string_view words, LineShape shape)
        : mObject(object)
        , mWords(words)
        , mShape(shape)
    {
    }

    /// Runs a statement; false when it failed.
    template <class Statement> bool operator()(Statement&& statement) const
    {
        try {
            std::forward<Statement>(statement)();
            return true;
        } catch (...) {
            TraceFailure(Failure::FromCurrentException());
            return false;
        }
    }
    /// Runs a statement with a handler of its own, which takes the failure in the place of the trace line.
    template <class Statement, class OnFailure> bool operator()(Statement&& statement, OnFailure&& onFailure) const
    {
        try {
            std::forward<Statement>(statement)();
            return true;
        } catch (...) {
            std::forward<OnFailure>(onFailure)(Failure::FromCurrentException());
            return false;
        }
    }
    /// Runs a statement as ever; what it failed with, nothing when it didn't.
    template <class Statement> std::optional<Failure> FailureOf(Statement&& statement) const
    {
        std::optional<Failure> caught;
        if (!(*this)(std::forward<Statement>(statement), [&](const Failure& failure) { caught = failure; })) {
            TraceFailure(*caught);
        }
        return caught;
    }
    /// The value of an expression, the empty value of its type when it failed.
    template <class Expression> auto Get(Expression&& expression) const
    {
        using Value = std::decay_t<std::invoke_result_t<Expression>>;
        try {
            return Value(std::forward<Expression>(expression)());
        } catch (...) {
            TraceFailure(Failure::FromCurrentException());
            return Value();
        }
    }
    /// Runs the statement that only traces a text in hand.
    void Say(std::string_view text) const;
    /// The same for a text whose making is part of the statement, since it asks another object or may be of any size.
    template <std::invocable Expression> void Say(Expression&& text) const
    {
        (*this)([&] { Trace(std::forward<Expression>(text)()); });
    }

private:
    void Trace(std::string_view text) const;
    void TraceFailure(const Failure& failure) const;

    const TracedObject& mObject;
    std::string_view mWords;
    LineShape mShape;
};

/// An object of the engine: it has a context word, a step word and the trace, and runs its routines by attempts.
class TracedObject
{
public:
    virtual ~TracedObject() = default;

    /// The context word of this object's trace lines.
    std::string mTraceInfo;

protected:
    explicit TracedObject(Ref<const Platform> platform)
        : mPlatform(std::move(platform))
    {
    }

    /// The runner of one routine's statements, with the routine's words, which outlive it, and the shape of its lines.
    Attempt Failing(std::string_view words, LineShape shape) const { return { *this, words, shape }; }
    /// Writes a trace line; without a log fails (91). Bare it belongs to the statement or the routine around it, which
    /// ends with that failure; `Attempt::Say` is a statement of its own, behind which the routine goes on.
    void Trace(std::string_view text) const { mLog->Out(mTraceInfo, text); }

    Ref<const Platform> mPlatform;
    Ref<TempodialDebugLog> mLog;
    std::string mStage;

private:
    friend class Attempt;
};

}
