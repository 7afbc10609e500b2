#include "engine/foundation/ActivitySubject.h"

#include "base/Concatenated.h"
#include "base/Text.h"

#include <cstdint>

namespace tempodial {

namespace {

/// Longest entry that is offered, in characters.
constexpr std::int32_t KeywordLength = 60;

}

std::string ActivitySubject(const std::string& application, const std::string& description)
{
    if (description.empty() || description == UnknownText) {
        return application;
    }
    return application.empty() ? description : Concatenated({ application, ", ", description });
}

std::string WithoutPeople(const std::string& description, const std::string& people)
{
    // The people end in a ";", which the description may lack.
    for (const auto& tail : { " - " + people, " - " + Left(people, Length(people) - 1) }) {
        if (InStr(description, tail) > 0) {
            return Replace(description, tail, "");
        }
    }
    return description;
}

std::string DescriptionKeyword(const std::string& description)
{
    return Left(description, KeywordLength);
}

std::string ApplicationKeyword(const std::string& application)
{
    return '"' + Left(application, KeywordLength) + '"';
}

std::vector<std::string> PeopleKeywords(const std::string& people)
{
    auto keywords = Split(people, ";");
    std::erase(keywords, "");
    return keywords;
}

}
