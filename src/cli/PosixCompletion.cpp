#include "base/Text.h"
#include "cli/CompletionScripts.h"
#include "cli/CompletionTable.h"

#include <string_view>

namespace tempodial {

namespace {

using Word = CompletionTable::Word;

std::string InSingleQuotes(const std::string& text)
{
    return "'" + Replace(text, "'", R"('\'')") + "'";
}

/// How a shell's arrays hold words.
using WordForm = std::string (*)(const Word& word);

std::string Bare(const Word& word)
{
    return InSingleQuotes(word.text);
}

/// As `_describe` of zsh has it.
std::string Described(const Word& word)
{
    return InSingleQuotes(Replace(word.text, ":", R"(\:)") + ":" + word.help);
}

std::string Assignment(const std::string& name, const std::vector<Word>& words, WordForm form)
{
    std::string text = name + "=(";
    for (const auto& word : words) {
        text += (text.back() == '(' ? "" : " ") + form(word);
    }
    return text + ")";
}

/// The function that knows what may stand behind a command.
std::string CommandsFunction(const CompletionTable& table, WordForm form)
{
    std::string text = "# _tempodial_has COMMAND: sets the commands below it and the options; false for no command.\n"
                       "_tempodial_has()\n"
                       "{\n"
                       "    case $1 in\n";
    for (const auto& entry : table.entries) {
        text += "    " + InSingleQuotes(entry.command) + ")\n        " + Assignment("commands", entry.commands, form)
            + "\n        " + Assignment("options", entry.options, form) + "\n        ;;\n";
    }
    return text + "    *) return 1 ;;\n    esac\n    "
        + Replace(Assignment("options", table.options, form), "=(", "+=(") + "\n}\n\n";
}

/// The pattern with all but its wildcards in quotes.
std::string ShellQuoted(const std::string& pattern)
{
    std::string text = pattern;
    std::string head;
    std::string tail;
    if (text.starts_with("*")) {
        head = "*";
        text.erase(0, 1);
    }
    if (constexpr std::string_view AnyNumber = "[0-9]*"; text.ends_with(AnyNumber)) {
        tail = AnyNumber;
        text.erase(text.size() - AnyNumber.size());
    }
    return head + InSingleQuotes(text) + tail;
}

/// The function that knows what arguments take.
std::string ValuesFunction(const CompletionTable& table)
{
    std::string text = "# _tempodial_takes COMMAND OPTION|PLACE: sets what is expected there; false for nothing.\n"
                       "_tempodial_takes()\n"
                       "{\n"
                       "    case $1:$2 in\n";
    for (const auto& taking : table.takings) {
        text += "    " + ShellQuoted(taking.pattern) + ") kind=" + CompletionValues::NameOf(taking.values.kind);
        std::string values;
        for (const auto& word : taking.values.words) {
            values += (values.empty() ? "" : " ") + word;
        }
        if (!values.empty()) {
            text += " values=" + InSingleQuotes(values);
        }
        text += " ;;\n";
    }
    return text + "    *) return 1 ;;\n    esac\n}\n\n";
}

constexpr auto Reading
    = R"sh(# _tempodial_read WORD...: sets the command, the option that waits for its value, and how many arguments are there.
_tempodial_read()
{
    local word
    for word in "$@"; do
        if [[ -n $option ]]; then
            [[ $option == --profile ]] && profile=$word
            option=
        elif [[ -z $ended && $word == -- ]]; then
            ended=1
        elif [[ -z $ended && $word == --profile=* ]]; then
            profile=${word#*=}
        elif [[ -z $ended && ( $word == --* || $word == -h ) ]]; then
            if [[ $word != *=* ]] && _tempodial_takes "$command" "$word"; then
                option=$word
            fi
        elif [[ $place == 0 ]] && _tempodial_has "${command:+$command }$word"; then
            command=${command:+$command }$word
        else
            place=$((place + 1))
        fi
    done
    kind= values=
    _tempodial_has "$command"
    if [[ -n $option ]]; then
        _tempodial_takes "$command" "$option"
    elif [[ -z $ended && $current == --*=* ]]; then
        _tempodial_takes "$command" "${current%%=*}"
    elif [[ -n $ended || $current != --* ]]; then
        _tempodial_takes "$command" "$((place + 1))"
    fi
}

# _tempodial_ask PROGRAM: the names of what is expected, a line each.
_tempodial_ask()
{
    if [[ $kind == projects ]]; then
        "$1" ${profile:+--profile "$profile"} completion projects
    else
        "$1" ${profile:+--profile "$profile"} --quiet list --ids -7d | sed -n 's/^\(@[0-9]*\).*/\1/p'
    fi 2>/dev/null
}

)sh";

constexpr auto BashHead = "# Completion of tempodial for bash; printed by \"tempodial completion bash\".\n\n";

constexpr auto BashFunctions
    = R"sh(# Bash parts words at "@", "=" and ":": joins those again that nothing stands between.
_tempodial_words()
{
    local line=$COMP_LINE i word
    for ((i = 0; i <= COMP_CWORD; ++i)); do
        word=${COMP_WORDS[i]}
        if [[ $i == 0 || -z $COMP_LINE || $line == [[:blank:]]* ]]; then
            words+=("$word")
        else
            words[${#words[@]} - 1]+=$word
        fi
        line=${line#"${line%%[![:blank:]]*}"}
        line=${line#"$word"}
    done
}

_tempodial()
{
    local words=() commands=() options=() offers=() current= command= option= place=0 ended= profile= kind= values=
    local i offer typed begun= program home='~/' breaks=${COMP_WORDBREAKS//[^@=:]/}
    _tempodial_words
    current=${words[${#words[@]} - 1]}
    words=("${words[@]:0:${#words[@]} - 1}")
    for i in "${!words[@]}"; do
        [[ ${words[i]} == "$home"* ]] && words[i]=$HOME/${words[i]:2}
        words[i]=${words[i]//[\"\'\\]/}
    done
    program=${words[0]}
    _tempodial_read "${words[@]:1}"

    typed=$current
    [[ -z $option && $current == --*=* ]] && typed=${current#*=}
    # What stands before the last of the letters at which bash parts words isn't replaced.
    if [[ $typed == [\"\']* ]]; then
        begun=quoted
        typed=${typed:1}
    elif [[ -n $breaks && $current == *["$breaks"]* ]]; then
        begun=${current%"${current##*["$breaks"]}"}
        begun=${begun#"${current%"$typed"}"}
    fi
    typed=${typed//\\/}
    COMPREPLY=()
    case $kind in
    file | folder)
        compopt -o filenames
        local action=-f
        [[ $kind == folder ]] && action=-d
        mapfile -t COMPREPLY < <(compgen "$action" -- "$typed")
        return
        ;;
    projects | activities)
        mapfile -t offers < <(_tempodial_ask "$program")
        ;;
    *)
        IFS=' ' read -r -a offers <<<"$values"
        ;;
    esac
    if [[ -z $option && -z $ended && $current != --*=* ]]; then
        [[ $place == 0 ]] && offers+=("${commands[@]}")
        [[ $current == -* || ${#offers[@]} == 0 && -z $kind ]] && offers+=("${options[@]}")
    fi
    for offer in "${offers[@]}"; do
        if [[ -n $offer && $offer == "$typed"* ]]; then
            if [[ $begun == quoted ]]; then
                COMPREPLY+=("$offer")
            else
                printf -v offer %q "$offer"
                COMPREPLY+=("${offer#"$begun"}")
            fi
        fi
    done
}

complete -F _tempodial tempodial
)sh";

constexpr auto ZshHead = "#compdef tempodial\n"
                         "# Completion of tempodial for zsh; printed by \"tempodial completion zsh\".\n\n";

constexpr auto ZshFunctions = R"sh(_tempodial()
{
    local current command= option= place=0 ended= profile= kind= values= program
    local -a before commands options offers
    current=$words[CURRENT]
    before=("${(@Q)words[1,CURRENT-1]}")
    before=("${(@)before/#\~\//$HOME/}")
    program=$before[1]
    shift before
    _tempodial_read "${before[@]}"

    [[ -z $option && $current == --*=* ]] && compset -P '*='
    case $kind in
    file) _files ;;
    folder) _files -/ ;;
    projects | activities)
        offers=("${(@f)$(_tempodial_ask "$program")}")
        offers=("${(@)offers:#}")
        [[ ${#offers} == 0 ]] || compadd -a offers
        ;;
    words) compadd -- ${=values} ;;
    esac
    if [[ -z $option && -z $ended && $current != --*=* ]]; then
        [[ $place == 0 && ${#commands} != 0 ]] && _describe -t commands command commands
        [[ $current == -* || -z $kind && ${#commands} == 0 ]] && _describe -o -t options option options
    fi
}

if [[ ${funcstack[1]} == _tempodial ]]; then
    _tempodial "$@"
else
    compdef _tempodial tempodial
fi
)sh";

}

std::string BashCompletion(const std::vector<CommandOutline>& commands)
{
    const CompletionTable table(commands);
    return BashHead + CommandsFunction(table, Bare) + ValuesFunction(table) + Reading + BashFunctions;
}

std::string ZshCompletion(const std::vector<CommandOutline>& commands)
{
    const CompletionTable table(commands);
    return ZshHead + CommandsFunction(table, Described) + ValuesFunction(table) + Reading + ZshFunctions;
}

}
