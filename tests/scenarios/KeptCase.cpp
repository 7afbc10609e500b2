#include "scenarios/KeptCase.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <regex>

namespace tempodial {

namespace {

/// How many cases were begun.
int NextCase()
{
    static int count = 0;
    return ++count;
}

}

KeptCase::KeptCase()
{
    const auto* folder = std::getenv("TEMPODIAL_KEPT_CASES");
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    if (folder != nullptr && test != nullptr) {
        auto name = std::string(test->test_suite_name()) + "." + test->name() + "-" + std::to_string(NextCase());
        std::replace(name.begin(), name.end(), '/', '.');
        mPath = std::string(folder) + "/" + name + ".jsonl";
    }
}

KeptCase::~KeptCase()
{
    if (mPath.empty() || mCommands.empty()) {
        return;
    }
    std::ofstream kept(mPath, std::ios::binary);
    for (const auto& [name, text] : mFiles) {
        kept << "#file " << name << "\n" << std::regex_replace(text, std::regex("\r"), "") << "#commands\n";
    }
    // Identities begin with what each mailbox has of its own.
    kept << std::regex_replace(mCommands, std::regex("(\"entryId\":\")[0-9a-f]{32}"), "$1STORE");
}

void KeptCase::Did(const Json& command)
{
    mCommands += command.dump() + "\n";
}

}
