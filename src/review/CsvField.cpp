#include "review/CsvField.h"

#include "base/Text.h"

#include <string_view>

namespace tempodial {

std::string CsvField(const std::string& text)
{
    constexpr std::string_view FormulaBegins = "=+-@\t\r\n";
    const bool mayBeFormula = !text.empty() && FormulaBegins.find(text.front()) != std::string_view::npos;
    auto harmless = mayBeFormula ? "'" + text : text;
    if (harmless.find_first_of(",\"\r\n") == std::string::npos) {
        return harmless;
    }
    return "\"" + Replace(harmless, "\"", "\"\"") + "\"";
}

}
