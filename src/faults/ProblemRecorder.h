#pragma once

#include "base/Ref.h"
#include "faults/Interposer.h"
#include "faults/Problems.h"

namespace tempodial {

/// Notes which files couldn't be read, written, copied, moved or deleted, which values of the registry couldn't be
/// written, and that what was imported couldn't be made durable. That a file is absent, or at its end, is no problem.
class ProblemRecorder final : public Interposer
{
public:
    explicit ProblemRecorder(Ref<Problems> problems);

    void Failed(const InterposedCall& call, const Failure& failure) override;

private:
    Ref<Problems> mProblems;
};

}
