#include "slots/ViewSettings.h"

#include "base/SettingsReader.h"
#include "slots/PlainText.h"

#include <iterator>
#include <optional>
#include <utility>

namespace tempodial {

namespace {

constexpr SettingWord<ProgramSort> SortWords[] { { "other", ProgramSort::Other }, { "browser", ProgramSort::Browser },
    { "office", ProgramSort::Office }, { "mail", ProgramSort::Mail }, { "reader", ProgramSort::Reader },
    { "editor", ProgramSort::Editor }, { "terminal", ProgramSort::Terminal }, { "files", ProgramSort::Files },
    { "chat", ProgramSort::Chat }, { "meeting", ProgramSort::Meeting }, { "player", ProgramSort::Player },
    { "lock", ProgramSort::Lock }, { "shell", ProgramSort::Shell } };

constexpr SettingWord<PlaceForm> PlaceWords[] { { "document", PlaceForm::Document }, { "page", PlaceForm::Page },
    { "file", PlaceForm::FileInProject }, { "project", PlaceForm::ProjectWithFile },
    { "directory", PlaceForm::Directory }, { "room", PlaceForm::Room }, { "person", PlaceForm::Person },
    { "mail", PlaceForm::Mail } };

constexpr SettingWord<PrivacyRule::Action> ActionWords[] { { "drop", PrivacyRule::Action::Drop },
    { "program", PrivacyRule::Action::ProgramOnly }, { "replace", PrivacyRule::Action::Replace },
    { "project", PrivacyRule::Action::Project } };

void TakePattern(SettingsReader& record, const std::string& name, std::optional<TextPattern>& pattern)
{
    if (!record.Has(name)) {
        return;
    }
    std::string text;
    record.Take(name, text, "a text");
    try {
        pattern.emplace(text);
    } catch (const std::invalid_argument& error) {
        record.Refuse(record.LineOf(name), error.what());
    }
}

constexpr auto Texts = R"(a list of texts, such as ["a", "b"])";
constexpr auto YesOrNo = "true or false";

/// How the titles of programs of a sort are made, unless their record says something else.
PlaceForm UsualPlace(ProgramSort sort)
{
    switch (sort) {
    case ProgramSort::Browser:
        return PlaceForm::Page;
    case ProgramSort::Editor:
        return PlaceForm::FileInProject;
    case ProgramSort::Terminal:
        return PlaceForm::Directory;
    case ProgramSort::Chat:
        return PlaceForm::Room;
    case ProgramSort::Mail:
        return PlaceForm::Mail;
    default:
        return PlaceForm::Document;
    }
}

Program ProgramOf(SettingsReader& record)
{
    Program program;
    record.RequireKind("program");
    record.Take("ids", program.ids, Texts);
    record.Take("name", program.name, "a text");
    program.name = NodeText(program.name, LongestName);
    if (program.ids.empty() || program.name.empty()) {
        record.Refuse(record.LineOf("ids"), R"(a program needs "ids" and a "name")");
    }
    record.TakeWord("sort", program.sort, SortWords);
    program.place = UsualPlace(program.sort);
    record.TakeWord("place", program.place, PlaceWords);
    std::int64_t kind = 0;
    constexpr std::int64_t LastKind = 9;
    record.Take("kind", kind, "a number");
    if (kind < 0 || kind > LastKind || kind == 1 || kind == 6) {
        record.Refuse(record.LineOf("kind"), "kind can be 0, 2, 3, 4, 5, 7, 8 or 9");
    }
    program.kind = static_cast<int>(kind);
    record.Take("suffixes", program.suffixes, Texts);
    record.Take("named-by-suffix", program.isNamedBySuffix, YesOrNo);
    record.Take("empty-titles", program.emptyTitles, Texts);
    record.Take("people", program.namesPeople, YesOrNo);
    record.RequireNothingElse();
    return program;
}

PrivacyRule RuleOf(SettingsReader& record)
{
    PrivacyRule rule;
    record.RequireKind("rule");
    TakePattern(record, "program", rule.program);
    TakePattern(record, "title", rule.title);
    std::string word;
    record.Take("do", word, "a text");
    if (word.empty()) {
        record.Refuse(record.LineOf("do"), "a rule needs \"do\"");
    }
    record.TakeWord("do", rule.action, ActionWords);
    record.Take("text", rule.text, "a text");
    const bool needsText = rule.action == PrivacyRule::Action::Replace || rule.action == PrivacyRule::Action::Project;
    if (needsText && PlainText(rule.text).empty()) {
        record.Refuse(record.LineOf("text"), "a rule that does \"" + word + R"(" needs a "text")");
    }
    record.RequireNothingElse();
    return rule;
}

template <class Reader> auto AllOf(const SettingsFile& file, Reader&& reader)
{
    std::vector<decltype(reader(std::declval<SettingsReader&>()))> all;
    for (const auto& record : file.records) {
        SettingsReader recordReader(file, record);
        all.push_back(reader(recordReader));
    }
    return all;
}

}

std::vector<Program> ProgramsOf(const SettingsFile& file)
{
    return AllOf(file, ProgramOf);
}

std::vector<PrivacyRule> RulesOf(const SettingsFile& file)
{
    return AllOf(file, RuleOf);
}

ViewMaker ViewsBy(const SettingsFile& ownPrograms, const SettingsFile& programs, const SettingsFile& rules)
{
    auto all = ProgramsOf(ownPrograms);
    auto usual = ProgramsOf(programs);
    all.insert(all.end(), std::make_move_iterator(usual.begin()), std::make_move_iterator(usual.end()));
    return { ProgramTable(std::move(all)), PrivacyRules(RulesOf(rules)) };
}

}
