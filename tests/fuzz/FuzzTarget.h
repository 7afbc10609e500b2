#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace tempodial {

/// Throws when something isn't true of what was made of an input; whatever leaves a target is a finding.
inline void Hold(bool isTrue, const std::string& what)
{
    if (!isTrue) {
        throw std::logic_error("it doesn't hold that " + what);
    }
}

/// Runs a target with each input that its corpus in tests/fuzz/data has, and with an empty one.
void RunCorpus(const std::string& name, void (*target)(std::string_view input));

}

#ifdef TEMPODIAL_FUZZING
/// The target of a program of libFuzzer.
#define TEMPODIAL_FUZZ_TARGET(Name, target)                                                                            \
    extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)                                 \
    {                                                                                                                  \
        target({ reinterpret_cast<const char*>(data), size });                                                         \
        return 0;                                                                                                      \
    }
#else
#include <gtest/gtest.h>

/// A test that a target holds for all that its corpus has: the seeds, and what was found.
#define TEMPODIAL_FUZZ_TARGET(Name, target)                                                                            \
    TEST(Name##FuzzTest, Corpus_EachInput_Holds)                                                                       \
    {                                                                                                                  \
        RunCorpus(#Name, target);                                                                                      \
    }
#endif
