#include "workload/Projects.h"

#include <array>
#include <string_view>

namespace tempodial {

namespace {

constexpr std::array<std::string_view, 10> Heads { "Bram", "Cald", "Dorn", "Elst", "Farn", "Gris", "Hals", "Inver",
    "Jarl", "Kest" };
constexpr std::array<std::string_view, 10> Tails { "ford", "wick", "mere", "holt", "stead", "combe", "thorpe", "gate",
    "ridge", "haven" };
constexpr std::array<std::string_view, 5> Middles { "", "ing", "er", "den", "ley" };

}

std::string Projects::Name(std::size_t number)
{
    const auto middle = number / (Heads.size() * Tails.size()) % Middles.size();
    std::string name(Heads[number % Heads.size()]);
    name.append(Middles[middle]).append(Tails[number / Heads.size() % Tails.size()]);
    return name;
}

std::string Projects::Rule(std::size_t number)
{
    auto rule = Name(number);
    rule.front() = static_cast<char>(rule.front() - 'A' + 'a');
    return rule;
}

}
