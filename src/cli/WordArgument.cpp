#include "cli/WordArgument.h"

#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <algorithm>

namespace tempodial {

std::size_t PlaceOfWord(const std::string& name, const std::string& text, const std::vector<std::string>& words)
{
    const auto found = std::find(words.begin(), words.end(), text);
    if (found == words.end()) {
        std::string advice;
        for (const auto& word : words) {
            advice += (advice.empty() ? "" : &word == &words.back() ? " or " : ", ") + word;
        }
        throw UsageError(name + " can't be " + InQuotes(text) + ": give " + advice);
    }
    return static_cast<std::size_t>(found - words.begin());
}

}
