#pragma once

#include <optional>
#include <string>
#include <vector>

namespace CLI { // NOLINT(readability-identifier-naming): the parser's own name
class App;
}

namespace tempodial {

/// The arguments of a program or of one of its commands, declared on the variables that get what is parsed; these must
/// live as long as the parser. The form of an argument is the one that its help shows: "NAME" for one that is told by
/// its place, "--days N" for an option. One that is left out leaves its variable alone.
class ArgumentList
{
public:
    explicit ArgumentList(CLI::App& app)
        : mApp(app)
    {
    }

    /// An argument that must be given.
    void Required(const std::string& form, std::string& value, const std::string& help);
    void Required(const std::string& form, std::optional<std::string>& value, const std::string& help);
    /// An argument that may be left out, and is given at most once.
    void Optional(const std::string& form, std::string& value, const std::string& help);
    void Optional(const std::string& form, std::optional<std::string>& value, const std::string& help);
    /// An option that may be given several times, each time with one value, which is taken as it is.
    void Repeated(const std::string& form, std::vector<std::string>& values, const std::string& help);
    /// Arguments that are told by their place, as many as are given behind those declared before; at least one.
    void RequiredRest(const std::string& form, std::vector<std::string>& values, const std::string& help);
    /// The same, or none.
    void Rest(const std::string& form, std::vector<std::string>& values, const std::string& help);
    /// An option without a value.
    void Flag(const std::string& name, bool& value, const std::string& help);

private:
    CLI::App& mApp;
};

}
