#include "terminal/ArgumentList.h"

#include <CLI/CLI.hpp>

namespace tempodial {

namespace {

/// Declares an argument; `declare` makes it of its name.
template <class Declaration> CLI::Option& Declared(const std::string& form, Declaration&& declare)
{
    const auto blank = form.find(' ');
    CLI::Option& option = *declare(form.substr(0, blank));
    if (blank != std::string::npos) {
        option.option_text(form.substr(blank + 1));
    }
    return option;
}

template <class Value>
CLI::Option& Single(CLI::App& app, const std::string& form, Value& value, const std::string& help)
{
    return Declared(form, [&](const std::string& name) { return app.add_option(name, value, help); });
}

}

void ArgumentList::Required(const std::string& form, std::string& value, const std::string& help)
{
    Single(mApp, form, value, help).required();
}

void ArgumentList::Required(const std::string& form, std::optional<std::string>& value, const std::string& help)
{
    Single(mApp, form, value, help).required();
}

void ArgumentList::Optional(const std::string& form, std::string& value, const std::string& help)
{
    Single(mApp, form, value, help);
}

void ArgumentList::Optional(const std::string& form, std::optional<std::string>& value, const std::string& help)
{
    Single(mApp, form, value, help);
}

void ArgumentList::Repeated(const std::string& form, std::vector<std::string>& values, const std::string& help)
{
    // Declared on the vector itself it would take all that follows, and "[a,b]" for two values.
    const auto take = [&values](const std::vector<std::string>& given) {
        values = given;
        return true;
    };
    Declared(form, [&](const std::string& name) { return mApp.add_option(name, take, help); }).take_all();
}

void ArgumentList::RequiredRest(const std::string& form, std::vector<std::string>& values, const std::string& help)
{
    Single(mApp, form, values, help).required();
}

void ArgumentList::Rest(const std::string& form, std::vector<std::string>& values, const std::string& help)
{
    Single(mApp, form, values, help);
}

void ArgumentList::Flag(const std::string& name, bool& value, const std::string& help)
{
    mApp.add_flag(name, value, help);
}

}
