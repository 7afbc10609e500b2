#pragma once

#include "base/SettingsFile.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tempodial {

/// A word that stands for a value in a file of settings.
template <class Value> struct SettingWord
{
    std::string_view word;
    Value value;
};

/// One record of a file of settings as it is read: what it holds is taken out by name, each of its kind. What can't be
/// used fails with a `SettingsFileError`.
class SettingsReader
{
public:
    /// The file and the record must live as long as this.
    SettingsReader(const SettingsFile& file, const SettingsRecord& record)
        : mFile(file)
        , mRecord(record)
    {
    }

    /// Fails for a reason.
    [[noreturn]] void Refuse(std::size_t line, const std::string& reason) const;
    /// Fails unless the record stands below that heading.
    void RequireKind(std::string_view kind) const;
    /// True when there is a value of that name.
    bool Has(std::string_view name) const { return Find(name) != nullptr; }
    /// The line of a value, or of the record when it isn't there.
    std::size_t LineOf(std::string_view name) const;
    /// Fails when the record holds what wasn't asked for.
    void RequireNothingElse() const;

    /// Takes a value, when it is there; the kind is named as people are told that it must be.
    template <class Value> void Take(std::string_view name, Value& value, const std::string& kindOfValue)
    {
        mAsked.emplace_back(name);
        if (const auto* setting = Find(name)) {
            const auto* held = std::get_if<Value>(&setting->value);
            if (held == nullptr) {
                Refuse(setting->line, setting->name + " must be " + kindOfValue);
            }
            value = *held;
        }
    }

    /// Takes one of some words, when it is there.
    template <class Value, class Words> void TakeWord(std::string_view name, Value& value, const Words& words)
    {
        std::string text;
        Take(name, text, "a text");
        if (!Has(name)) {
            return;
        }
        const auto found
            = std::find_if(std::begin(words), std::end(words), [&text](const auto& word) { return word.word == text; });
        if (found == std::end(words)) {
            std::string known;
            for (const auto& word : words) {
                known += (known.empty() ? "\"" : ", \"") + std::string(word.word) + "\"";
            }
            Refuse(LineOf(name), std::string(name) + " can't be \"" + text + "\", but one of " + known);
        }
        value = found->value;
    }

private:
    const Setting* Find(std::string_view name) const;

    const SettingsFile& mFile;
    const SettingsRecord& mRecord;
    std::vector<std::string> mAsked;
};

}
