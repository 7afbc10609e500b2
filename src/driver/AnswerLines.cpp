#include "driver/AnswerLines.h"

#include "driver/Driver.h"
#include "driver/LineReader.h"
#include "terminal/ProgramRun.h"

#include <cstddef>

namespace tempodial {

namespace {

constexpr std::size_t LongestLine = std::size_t { 64 } * 1024 * 1024;

}

ExitStatus AnswerLines(Driver& driver, int input, std::ostream& out, std::ostream& error, const char* program)
{
    LineReader lines(input, LongestLine);
    for (auto line = lines.Next(); line && out; line = lines.Next()) {
        out << (line->isTooLong ? driver.Refuse("the line is too long") : driver.Answer(line->text)) << '\n';
        out.flush();
    }
    driver.Exit();
    if (!out) {
        Complain(error, program, "the answer couldn't be written: see to the program that reads it");
        return ExitStatus::NotDone;
    }
    return ExitStatus::Done;
}

}
