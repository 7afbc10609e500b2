#include "session/ProjectRecords.h"

#include "base/Text.h"
#include "engine/core/ProjectFacts.h"
#include "session/ProductFacts.h"

#include <algorithm>
#include <utility>

namespace tempodial {

namespace {

constexpr auto RecordEnd = "|";
/// What the add-in reads where a record lacks something.
constexpr auto AbsentText = "None";
/// The name at which the add-in reads no further.
constexpr auto EndName = "Unknown";

ProjectRecords::Record ReadProjectRecord(const Ref<XmlDocument>& document, const std::string& text)
{
    const auto textAt = [&document](const char* path) {
        const auto node = document->SelectSingleNode(path);
        return node ? node->Text() : std::string(AbsentText);
    };
    return { .name = textAt("project/name"),
        .precedence = textAt("project/precedence"),
        .subjectRule = textAt("project/subjrules"),
        .notSubjectRule = textAt("project/notsubjrules"),
        .peopleRule = textAt("project/peoplerules"),
        .text = text };
}

}

ProjectRecords::ProjectRecords(const std::string& text, const Ref<XmlFactory>& xml)
{
    for (const auto& record : Split(text, RecordEnd)) {
        const auto document = xml->NewDocument();
        if (document->LoadXML(record)) {
            mRecords.push_back(ReadProjectRecord(document, record));
        }
    }
}

std::vector<ProjectRecords::Record> ProjectRecords::ReadByAddIn(const std::string& text, const Ref<XmlFactory>& xml)
{
    std::vector<Record> read;
    auto records = Split(text, RecordEnd);
    if (!records.empty()) {
        records.pop_back(); // What no sign ends is no record.
    }
    for (const auto& record : records) {
        const auto document = xml->NewDocument();
        document->LoadXML(record);
        auto project = ReadProjectRecord(document, record);
        if (record.empty() || project.name == EndName || (!read.empty() && project.name == read.back().name)) {
            break;
        }
        read.push_back(std::move(project));
    }
    return read;
}

std::string ProjectRecords::Text() const
{
    std::string text;
    for (const auto& record : mRecords) {
        text += record.text + RecordEnd;
    }
    return text;
}

std::string ProjectRecords::Names() const
{
    std::string names;
    for (const auto& record : mRecords) {
        names += (names.empty() ? "" : RecordEnd) + record.name;
    }
    return names;
}

void ProjectRecords::TakeBack(const ProjectRecords& before, const ProjectRecords& after)
{
    const auto isSame = [](const Record* one, const Record* other) {
        return one == nullptr || other == nullptr ? one == other : one->text == other->text;
    };
    for (const auto* records : { &before.mRecords, &after.mRecords }) {
        for (const auto& record : *records) {
            const auto* was = before.Find(record.name);
            const auto* became = after.Find(record.name);
            if (!isSame(was, became) && isSame(Find(record.name), became)) {
                Set(record.name, was);
            }
        }
    }
    std::stable_sort(mRecords.begin(), mRecords.end(), [](const Record& one, const Record& other) {
        return one.precedence == other.precedence ? CompareIgnoringCase(one.name, other.name) < 0
                                                  : one.precedence < other.precedence;
    });
}

void ProjectRecords::WriteTo(TomlRegistry& registry) const
{
    registry.Write(Hive::CurrentUser, ProductKey, ProjectListValue(), Names());
    registry.Write(Hive::CurrentUser, ProductKey, ProjectsValue, Text());
}

const ProjectRecords::Record* ProjectRecords::Find(const std::string& name) const
{
    const auto found = std::find_if(mRecords.begin(), mRecords.end(),
        [&name](const Record& record) { return EqualIgnoringCase(record.name, name); });
    return found == mRecords.end() ? nullptr : &*found;
}

void ProjectRecords::Set(const std::string& name, const Record* record)
{
    std::erase_if(mRecords, [&name](const Record& known) { return EqualIgnoringCase(known.name, name); });
    if (record != nullptr) {
        mRecords.push_back(*record);
    }
}

}
