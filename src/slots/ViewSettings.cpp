#include "slots/ViewSettings.h"

#include "slots/PlainText.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

namespace tempodial {

namespace {

template <class Value> struct Word
{
    std::string_view word;
    Value value;
};

constexpr Word<ProgramSort> SortWords[] { { "other", ProgramSort::Other }, { "browser", ProgramSort::Browser },
    { "office", ProgramSort::Office }, { "mail", ProgramSort::Mail }, { "reader", ProgramSort::Reader },
    { "editor", ProgramSort::Editor }, { "terminal", ProgramSort::Terminal }, { "files", ProgramSort::Files },
    { "chat", ProgramSort::Chat }, { "meeting", ProgramSort::Meeting }, { "player", ProgramSort::Player },
    { "lock", ProgramSort::Lock }, { "shell", ProgramSort::Shell } };

constexpr Word<PlaceForm> PlaceWords[] { { "document", PlaceForm::Document }, { "page", PlaceForm::Page },
    { "file", PlaceForm::FileInProject }, { "project", PlaceForm::ProjectWithFile },
    { "directory", PlaceForm::Directory }, { "room", PlaceForm::Room }, { "person", PlaceForm::Person },
    { "mail", PlaceForm::Mail } };

constexpr Word<PrivacyRule::Action> ActionWords[] { { "drop", PrivacyRule::Action::Drop },
    { "program", PrivacyRule::Action::ProgramOnly }, { "replace", PrivacyRule::Action::Replace },
    { "project", PrivacyRule::Action::Project } };

/// One record as it is read: what it holds is taken out by name, each of its kind.
class RecordReader
{
public:
    RecordReader(const SettingsFile& file, const SettingsRecord& record)
        : mFile(file)
        , mRecord(record)
    {
    }

    [[noreturn]] void Refuse(std::size_t line, const std::string& reason) const
    {
        throw SettingsFileError(mFile.path, line, reason);
    }

    void RequireKind(const std::string& kind) const
    {
        if (mRecord.kind != kind) {
            Refuse(mRecord.line, "[[" + mRecord.kind + "]] isn't known here, only [[" + kind + "]]");
        }
    }

    template <class Value> void Take(const std::string& name, Value& value, const std::string& kindOfValue)
    {
        if (const auto* setting = Find(name)) {
            const auto* held = std::get_if<Value>(&setting->value);
            if (held == nullptr) {
                Refuse(setting->line, name + " must be " + kindOfValue);
            }
            value = *held;
        }
    }

    template <class Value, std::size_t Size>
    void TakeWord(const std::string& name, Value& value, const Word<Value> (&words)[Size])
    {
        std::string text;
        Take(name, text, "a text");
        if (text.empty() && Find(name) == nullptr) {
            return;
        }
        const auto found
            = std::find_if(std::begin(words), std::end(words), [&text](const auto& word) { return word.word == text; });
        if (found == std::end(words)) {
            std::string known;
            for (const auto& word : words) {
                known += (known.empty() ? "\"" : ", \"") + std::string(word.word) + "\"";
            }
            Refuse(Find(name)->line, name + " can't be \"" + text + "\", but one of " + known);
        }
        value = found->value;
    }

    void TakePattern(const std::string& name, std::optional<TextPattern>& pattern)
    {
        std::string text;
        Take(name, text, "a text");
        if (const auto* setting = Find(name)) {
            try {
                pattern.emplace(text);
            } catch (const std::invalid_argument& error) {
                Refuse(setting->line, error.what());
            }
        }
    }

    /// The line of a value, or of the record when it isn't there.
    std::size_t LineOf(const std::string& name)
    {
        const auto* setting = Find(name);
        return setting == nullptr ? mRecord.line : setting->line;
    }

    /// Fails when the record holds what wasn't asked for.
    void RequireNothingElse() const
    {
        for (const auto& setting : mRecord.settings) {
            if (std::find(mAsked.begin(), mAsked.end(), setting.name) == mAsked.end()) {
                Refuse(setting.line, "\"" + setting.name + "\" isn't known in [[" + mRecord.kind + "]]");
            }
        }
    }

private:
    const Setting* Find(const std::string& name)
    {
        mAsked.push_back(name);
        const auto found = std::find_if(mRecord.settings.begin(), mRecord.settings.end(),
            [&name](const auto& setting) { return setting.name == name; });
        return found == mRecord.settings.end() ? nullptr : &*found;
    }

    const SettingsFile& mFile;
    const SettingsRecord& mRecord;
    std::vector<std::string> mAsked;
};

constexpr auto Texts = "a list of texts, such as [\"a\", \"b\"]";
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

Program ProgramOf(RecordReader& record)
{
    Program program;
    record.RequireKind("program");
    record.Take("ids", program.ids, Texts);
    record.Take("name", program.name, "a text");
    program.name = NodeText(program.name, LongestName);
    if (program.ids.empty() || program.name.empty()) {
        record.Refuse(record.LineOf("ids"), "a program needs \"ids\" and a \"name\"");
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

PrivacyRule RuleOf(RecordReader& record)
{
    PrivacyRule rule;
    record.RequireKind("rule");
    record.TakePattern("program", rule.program);
    record.TakePattern("title", rule.title);
    std::string word;
    record.Take("do", word, "a text");
    if (word.empty()) {
        record.Refuse(record.LineOf("do"), "a rule needs \"do\"");
    }
    record.TakeWord("do", rule.action, ActionWords);
    record.Take("text", rule.text, "a text");
    const bool needsText = rule.action == PrivacyRule::Action::Replace || rule.action == PrivacyRule::Action::Project;
    if (needsText && PlainText(rule.text).empty()) {
        record.Refuse(record.LineOf("text"), "a rule that does \"" + word + "\" needs a \"text\"");
    }
    record.RequireNothingElse();
    return rule;
}

template <class Reader> auto AllOf(const SettingsFile& file, Reader&& reader)
{
    std::vector<decltype(reader(std::declval<RecordReader&>()))> all;
    for (const auto& record : file.records) {
        RecordReader recordReader(file, record);
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
