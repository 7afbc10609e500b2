#include "scenarios/ProfileState.h"

#include "base/Text.h"
#include "session/ProductFacts.h"
#include "support/Program.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tempodial {

std::string ContentOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return { std::istreambuf_iterator<char>(stream), {} };
}

ProfileState StateOf(const std::filesystem::path& profile, const std::string& now)
{
    ProfileState state;
    const auto list = RunTempodial({ "--profile", profile.string(), "--now", now, "--json", "list", "--from",
        "1990-01-01", "--to", "2100-01-01" });
    if (list.status != 0) {
        throw std::runtime_error("list failed: " + list.error);
    }
    for (auto item : nlohmann::json::parse(list.out)) {
        item.erase("id");
        item.erase("entryId");
        item["body"] = Replace(item["body"].get<std::string>(), "Your activities include: \r\n", "");
        state.items.push_back(item.dump());
    }
    std::sort(state.items.begin(), state.items.end());
    const auto data = profile / DataFolderName;
    state.history = ContentOf(data / HistoryFileName);
    for (const auto& entry : std::filesystem::directory_iterator(data)) {
        const auto name = entry.path().filename().string();
        if (name == TraceFileName || name == OlderTraceFileName || name == HistoryFileName) {
            continue;
        }
        state.trackerFiles[name] = ContentOf(entry.path());
    }
    return state;
}

}
