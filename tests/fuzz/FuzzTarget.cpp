#include "fuzz/FuzzTarget.h"

#include <gtest/gtest.h>

#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace tempodial {

void RunCorpus(const std::string& name, void (*target)(std::string_view input))
{
    EXPECT_NO_THROW(target(""));
    int inputs = 0;
    for (const auto& entry : std::filesystem::directory_iterator(TEMPODIAL_SOURCE_DIR "/tests/fuzz/data/" + name)) {
        std::ifstream stream(entry.path(), std::ios::binary);
        const std::string input { std::istreambuf_iterator<char>(stream), {} };
        try {
            target(input);
        } catch (const std::exception& problem) {
            ADD_FAILURE() << entry.path() << ": " << problem.what();
        }
        ++inputs;
    }
    EXPECT_GT(inputs, 0);
}

}
