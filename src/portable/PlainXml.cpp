#include "portable/PlainXml.h"

#include "portable/XmlText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tempodial {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 5> Entities { { { "&amp;", "&" }, { "&lt;", "<" },
    { "&gt;", ">" }, { "&quot;", "\"" }, { "&apos;", "'" } } };

constexpr auto CanBeginName = [](char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') || character == '_';
};

constexpr auto CanBeInName = [](char character) {
    return CanBeginName(character) || (character >= '0' && character <= '9') || character == '-' || character == '.';
};

/// True when a piece of a text between tags and entities stands for itself.
bool IsPlainText(std::string_view text)
{
    return IsXmlText(text) && text.find('\r') == std::string_view::npos && text.find("]]>") == std::string_view::npos;
}

}

bool PlainXml::Read(std::size_t deepest)
{
    TakeBlanks();
    do {
        const bool isRead = !mRest.starts_with('<') ? ReadText()
            : mRest.starts_with("</")               ? ReadEndTag()
                                                    : ReadStartTag(deepest);
        if (!isRead) {
            return false;
        }
    } while (mDepth > 0);
    TakeBlanks();
    return mRest.empty();
}

void PlainXml::TakeBlanks()
{
    mRest.remove_prefix(std::min(mRest.find_first_not_of(" \t\r\n"), mRest.size()));
}

bool PlainXml::Take(char character)
{
    const bool isThere = mRest.starts_with(character);
    mRest.remove_prefix(isThere ? 1 : 0);
    return isThere;
}

std::string_view PlainXml::TakeName()
{
    if (mRest.empty() || !CanBeginName(mRest.front())) {
        return {};
    }
    const auto* const end = std::find_if_not(mRest.begin(), mRest.end(), CanBeInName);
    const auto name = mRest.substr(0, static_cast<std::size_t>(end - mRest.begin()));
    mRest.remove_prefix(name.size());
    return name;
}

bool PlainXml::ReadStartTag(std::size_t deepest)
{
    mRest.remove_prefix(1);
    const auto name = TakeName();
    if (name.empty() || mDepth == deepest) {
        return false;
    }
    const auto element = mTree.AddElement(mPlace, name);
    if (!Take('/')) {
        mPlace = element;
        ++mDepth;
    }
    return Take('>');
}

bool PlainXml::ReadEndTag()
{
    mRest.remove_prefix(2);
    const auto name = mTree.Name(mPlace);
    if (mDepth == 0 || !mRest.starts_with(name)) {
        return false;
    }
    mRest.remove_prefix(name.size());
    mPlace = mTree.Parent(mPlace);
    --mDepth;
    return Take('>');
}

bool PlainXml::ReadText()
{
    const auto end = mRest.find('<');
    if (mDepth == 0 || end == std::string_view::npos) {
        return false;
    }
    auto text = mRest.substr(0, end);
    mRest.remove_prefix(end);
    while (!text.empty()) {
        const auto plain = text.substr(0, text.find('&'));
        if (plain.empty()) {
            if (!ReadEntity(text)) {
                return false;
            }
        } else if (IsPlainText(plain)) {
            mTree.AddText(mPlace, plain);
            text.remove_prefix(plain.size());
        } else {
            return false;
        }
    }
    return true;
}

bool PlainXml::ReadEntity(std::string_view& text)
{
    for (const auto& [entity, character] : Entities) {
        if (text.starts_with(entity)) {
            mTree.AddText(mPlace, character);
            text.remove_prefix(entity.size());
            return true;
        }
    }
    return false;
}

}
