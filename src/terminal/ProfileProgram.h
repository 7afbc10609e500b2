#pragma once

#include "session/ProfileOptions.h"
#include "terminal/ArgumentList.h"
#include "terminal/ArgumentParser.h"
#include "terminal/ExitStatus.h"

#include <ostream>
#include <string>
#include <vector>

namespace tempodial {

/// A program without commands that works on one profile: it takes the arguments that name the profile, and perhaps some
/// of its own.
class ProfileProgram
{
public:
    virtual ~ProfileProgram() = default;
    ProfileProgram(const ProfileProgram&) = delete;
    ProfileProgram& operator=(const ProfileProgram&) = delete;

    /// Runs with the arguments, the program's name left out. Fails never.
    ExitStatus Run(const std::vector<std::string>& arguments) noexcept;

protected:
    /// What the help says, to which the exit statuses are added; help and what is done go to the first stream, what
    /// went wrong to the second.
    ProfileProgram(ArgumentParser::Help help, std::ostream& out, std::ostream& error);

    /// Adds arguments of its own.
    virtual void Declare(ArgumentList&) { }
    /// Does the program's work; what it fails with becomes a complaint and the exit status for it.
    virtual ExitStatus Work(const ProfileOptions& options) = 0;

    std::ostream& Out() const { return mOut; }
    std::ostream& Complaints() const { return mError; }
    /// Says what went wrong on the second stream.
    void Complain(const std::string& message) const;

private:
    ExitStatus Execute(const std::vector<std::string>& arguments);

    ArgumentParser::Help mHelp;
    std::ostream& mOut;
    std::ostream& mError;
};

}
