#include "base/Text.h"
#include "cli/CompletionScripts.h"
#include "cli/CompletionTable.h"

#include <string_view>

namespace tempodial {

namespace {

std::string FishQuoted(const std::string& text)
{
    return "'" + Replace(Replace(text, R"(\)", R"(\\)"), "'", R"(\')") + "'";
}

std::string Lines(const std::vector<CompletionTable::Word>& words)
{
    std::string text;
    for (const auto& word : words) {
        text += " " + FishQuoted(word.text + "\t" + word.help);
    }
    return text;
}

std::string FishTables(const CompletionTable& table)
{
    std::string below = "function __tempodial_commands\n    switch \"$argv[1]\"\n";
    std::string options = "function __tempodial_options\n    switch \"$argv[1]\"\n";
    std::string known = "function __tempodial_has\n    contains -- \"$argv[1]\"";
    for (const auto& entry : table.entries) {
        const auto name = FishQuoted(entry.command);
        if (!entry.commands.empty()) {
            below += "        case " + name + "\n            printf '%s\\n'" + Lines(entry.commands) + "\n";
        }
        if (!entry.options.empty()) {
            options += "        case " + name + "\n            printf '%s\\n'" + Lines(entry.options) + "\n";
        }
        known += " " + name;
    }
    return known + "\nend\n\n" + below + "    end\nend\n\n" + options + "    end\n    printf '%s\\n'"
        + Lines(table.options) + "\nend\n\n";
}

/// The pattern, or those that stand for it: fish has no ranges in its wildcards.
std::string FishPatterns(const std::string& pattern)
{
    constexpr std::string_view AnyNumber = "[0-9]*";
    if (!pattern.ends_with(AnyNumber)) {
        return " " + FishQuoted(pattern);
    }
    std::string text;
    for (char digit = '1'; digit <= '9'; ++digit) {
        text += " " + FishQuoted(pattern.substr(0, pattern.size() - AnyNumber.size()) + digit);
    }
    return text;
}

std::string FishValues(const CompletionTable& table)
{
    std::string text
        = "# What is expected at COMMAND:OPTION or COMMAND:PLACE: its kind, then the words; false for nothing.\n"
          "function __tempodial_takes\n"
          "    switch \"$argv[1]\"\n";
    for (const auto& taking : table.takings) {
        text += "        case" + FishPatterns(taking.pattern) + "\n            printf '%s\\n' "
            + CompletionValues::NameOf(taking.values.kind);
        for (const auto& word : taking.values.words) {
            text += " " + FishQuoted(word);
        }
        text += "\n";
    }
    return text + "        case '*'\n            return 1\n    end\nend\n\n";
}

constexpr auto FishHead = "# Completion of tempodial for fish; printed by \"tempodial completion fish\".\n\n";

constexpr auto FishFunctions = R"sh(function __tempodial_complete
    set -l before (commandline --tokenize --cut-at-cursor --current-process)
    set -l current (commandline --current-token --cut-at-cursor)
    set -l program $before[1]
    set -e before[1]
    set -l command ''
    set -l option ''
    set -l place 0
    set -l ended 0
    set -l profile
    for word in $before
        if test -n "$option"
            test "$option" = --profile; and set profile --profile $word
            set option ''
        else if test $ended = 0 -a "$word" = --
            set ended 1
        else if test $ended = 0; and string match -q -- '--profile=*' $word
            set profile $word
        else if test $ended = 0; and string match -q -r -- '^(--|-h$)' $word
            if not string match -q -- '*=*' $word; and __tempodial_takes "$command:$word" >/dev/null
                set option $word
            end
        else if test $place = 0; and __tempodial_has (string trim -- "$command $word")
            set command (string trim -- "$command $word")
        else
            set place (math $place + 1)
        end
    end

    set -l begun ''
    set -l expected
    if test -n "$option"
        set expected (__tempodial_takes "$command:$option")
    else if test $ended = 0; and string match -q -- '--*=*' $current
        set begun (string replace -r -- '=.*' '=' $current)
        set expected (__tempodial_takes "$command:"(string replace -r -- '=.*' '' $current))
    else
        set expected (__tempodial_takes "$command:"(math $place + 1))
    end
    set -l typed (string replace -- "$begun" '' $current)
    switch "$expected[1]"
        case file
            __fish_complete_path $typed | string replace -r '^' -- "$begun"
        case folder
            __fish_complete_directories $typed | string replace -r '^' -- "$begun"
        case projects
            $program $profile completion projects 2>/dev/null | string replace -r '^' -- "$begun"
        case activities
            $program $profile --quiet list --ids -7d 2>/dev/null | string match -r '^@\d+ .*' | string replace ' ' \t
        case words
            printf "$begun%s\n" $expected[2..-1]
    end
    if test -z "$option" -a $ended = 0 -a -z "$begun"
        set -l below
        test $place = 0; and set below (__tempodial_commands $command)
        set -q below[1]; and printf '%s\n' $below
        if string match -q -- '-*' $current; or test -z "$expected" -a -z "$below"
            __tempodial_options $command
        end
    end
end

complete -c tempodial -f -a '(__tempodial_complete)'
)sh";

}

std::string FishCompletion(const std::vector<CommandOutline>& commands)
{
    const CompletionTable table(commands);
    return FishHead + FishTables(table) + FishValues(table) + FishFunctions;
}

}
