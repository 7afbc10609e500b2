#include "host/store/FilterParser.h"

#include "base/Failure.h"
#include "base/Text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tempodial {

namespace {

constexpr int MostComparisons = 200;
constexpr int MostLevels = 50;

/// Reads a filter from left to right.
class Reader
{
public:
    explicit Reader(std::string_view filter)
        : mFilter(filter)
        , mRest(filter)
    {
    }

    FilterNode Filter()
    {
        auto node = Alternatives();
        ExpectEnd();
        return node;
    }
    std::string Property()
    {
        if (!Take("[")) {
            Fail();
        }
        const auto end = mRest.find(']');
        if (end == std::string_view::npos) {
            Fail();
        }
        auto name = Trim(mRest.substr(0, end));
        mRest.remove_prefix(end + 1);
        if (name.empty()) {
            Fail();
        }
        return name;
    }
    void ExpectEnd()
    {
        SkipBlanks();
        if (!mRest.empty()) {
            Fail();
        }
    }

private:
    [[noreturn]] void Fail() const
    {
        throw Failure(Error::InvalidCall, "The filter can't be read: " + Left(mFilter, 200));
    }

    FilterNode Alternatives()
    {
        if (++mLevel > MostLevels) {
            Fail();
        }
        auto node = Joined(FilterNode::Kind::Or, "or",
            [this] { return Joined(FilterNode::Kind::And, "and", [this] { return Negatable(); }); });
        --mLevel;
        return node;
    }
    template <class Part> FilterNode Joined(FilterNode::Kind kind, std::string_view word, Part&& part)
    {
        auto first = part();
        if (!TakeWord(word)) {
            return first;
        }
        FilterNode node;
        node.kind = kind;
        node.parts.push_back(std::move(first));
        do {
            node.parts.push_back(part());
        } while (TakeWord(word));
        return node;
    }
    FilterNode Negatable()
    {
        if (!TakeWord("not")) {
            return Operand();
        }
        if (++mLevel > MostLevels) {
            Fail();
        }
        FilterNode node;
        node.kind = FilterNode::Kind::Not;
        node.parts.push_back(Negatable());
        --mLevel;
        return node;
    }
    FilterNode Operand()
    {
        if (!Take("(")) {
            return Comparison();
        }
        auto node = Alternatives();
        if (!Take(")")) {
            Fail();
        }
        return node;
    }
    FilterNode Comparison()
    {
        if (++mComparisons > MostComparisons) {
            Fail();
        }
        FilterNode node;
        node.property = Property();
        node.comparison = Operator();
        node.value = Value();
        return node;
    }
    FilterOperator Operator()
    {
        static constexpr std::array<std::pair<std::string_view, FilterOperator>, 6> operators { {
            { "<>", FilterOperator::NotEqual },
            { "<=", FilterOperator::LessOrEqual },
            { ">=", FilterOperator::GreaterOrEqual },
            { "=", FilterOperator::Equal },
            { "<", FilterOperator::Less },
            { ">", FilterOperator::Greater },
        } };
        for (const auto& [sign, comparison] : operators) {
            if (Take(sign)) {
                return comparison;
            }
        }
        Fail();
    }
    std::string Value()
    {
        SkipBlanks();
        if (mRest.starts_with('"') || mRest.starts_with('\'')) {
            return Quoted(mRest.front());
        }
        const auto length = std::min(mRest.find_first_of(" \t\r\n()[]<>=\"'"), mRest.size());
        if (length == 0) {
            Fail();
        }
        std::string word(mRest.substr(0, length));
        mRest.remove_prefix(length);
        const bool number = word.find_first_not_of("+-.0123456789") == std::string::npos;
        if (!number && !EqualIgnoringCase(word, "True") && !EqualIgnoringCase(word, "False")) {
            Fail();
        }
        return word;
    }
    std::string Quoted(char quote)
    {
        std::string text;
        do {
            mRest.remove_prefix(1);
            const auto end = mRest.find(quote);
            if (end == std::string_view::npos) {
                Fail();
            }
            text += mRest.substr(0, end);
            mRest.remove_prefix(end + 1);
            if (mRest.starts_with(quote)) {
                text += quote;
            }
        } while (mRest.starts_with(quote));
        return text;
    }

    void SkipBlanks() { mRest.remove_prefix(std::min(mRest.find_first_not_of(" \t\r\n"), mRest.size())); }
    bool Take(std::string_view sign)
    {
        SkipBlanks();
        if (!mRest.starts_with(sign)) {
            return false;
        }
        mRest.remove_prefix(sign.size());
        return true;
    }
    bool TakeWord(std::string_view word)
    {
        SkipBlanks();
        const auto next = mRest.substr(0, std::min(mRest.find_first_of(" \t\r\n()[\"'"), mRest.size()));
        if (!EqualIgnoringCase(next, word)) {
            return false;
        }
        mRest.remove_prefix(word.size());
        return true;
    }

    std::string_view mFilter;
    std::string_view mRest;
    int mComparisons = 0;
    int mLevel = 0;
};

}

FilterNode FilterParser::Parse(std::string_view filter)
{
    return Reader(filter).Filter();
}

std::string FilterParser::PropertyName(std::string_view text)
{
    Reader reader(text);
    auto name = reader.Property();
    reader.ExpectEnd();
    return name;
}

}
