#include "fuzz/FuzzTarget.h"
#include "host/system/TomlRecords.h"

namespace tempodial {

namespace {

std::vector<TomlRecord> RecordsOf(std::string_view input)
{
    try {
        return TomlRecord::ReadAll("project", std::string(input));
    } catch (const TomlRecordsError& error) {
        Hold(std::string(error.what()).starts_with("line "), "what can't be read is told with its line");
        return {};
    }
}

/// A file of projects is read, and the texts that were read are written and read again.
void ReadProjectsFile(std::string_view input)
{
    for (const auto& record : RecordsOf(input)) {
        Hold(record.line > 0, "a record has its line");
        for (const auto& [name, text] : record.texts) {
            const auto again = TomlRecord::ReadAll("project", TomlRecord::Text("project", { { "subject", text } }));
            Hold(again.size() == 1 && again.front().texts.at("subject") == text, "a text comes back as it was");
        }
    }
}

}

TEMPODIAL_FUZZ_TARGET(ProjectsFile, ReadProjectsFile)

}
