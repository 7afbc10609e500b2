#include "cli/PrecedenceWord.h"

#include "cli/WordArgument.h"

namespace tempodial {

std::string PrecedenceWord(const std::string& precedence)
{
    if (precedence == "1") {
        return "high";
    }
    return precedence == "3" ? "low" : "medium";
}

std::string PrecedenceOf(const std::string& name, const std::string& word)
{
    return std::to_string(PlaceOfWord(name, word, { "high", "medium", "low" }) + 1);
}

}
