#include "sources/JsonEvents.h"

#include "sources/CutText.h"
#include "sources/JsonRepair.h"
#include "sources/SourceProblem.h"

#include <nlohmann/json.hpp>

#include <utility>

namespace tempodial {

namespace {

constexpr std::size_t MostLevels = 16;

/// Hears the parser's words, and keeps the path.
class PathKeeper final : public nlohmann::json_sax<nlohmann::json>
{
public:
    PathKeeper(JsonListener& listener, Skipped& skipped)
        : mListener(listener)
        , mSkipped(skipped)
    {
    }

    bool null() override { return Told(nullptr); }
    bool boolean(bool value) override { return Told(value); }
    bool number_integer(std::int64_t value) override { return Told(static_cast<double>(value)); }
    bool number_unsigned(std::uint64_t value) override { return Told(static_cast<double>(value)); }
    bool number_float(double value, const std::string&) override { return Told(value); }
    bool string(std::string& value) override
    {
        if (value.size() > MostFieldBytes && mTooDeep == 0) {
            mSkipped.Add(Skipped::TooBig);
            value.resize(MostFieldBytes);
            DropCutLetter(value);
        }
        return Told(std::move(value));
    }
    bool binary(nlohmann::json::binary_t&) override { return true; }
    bool start_object(std::size_t) override { return Opened(false); }
    bool start_array(std::size_t) override { return Opened(true); }
    bool end_object() override { return Closed(false); }
    bool end_array() override { return Closed(true); }
    bool key(std::string& name) override
    {
        if (mTooDeep == 0) {
            mPath.back() = name.substr(0, MostFieldBytes);
            DropCutLetter(mPath.back());
        }
        return true;
    }
    bool parse_error(std::size_t position, const std::string&, const nlohmann::detail::exception&) override
    {
        mErrorAt = position;
        return false;
    }

    std::size_t ErrorAt() const { return mErrorAt; }
    bool HasBegun() const { return mHasBegun; }

private:
    bool Told(const JsonScalar& value)
    {
        if (mTooDeep == 0) {
            mListener.Value(mPath, value);
        }
        return true;
    }

    bool Opened(bool isArray)
    {
        mHasBegun = true;
        if (mTooDeep > 0 || mPath.size() >= MostLevels) {
            mSkipped.Add(Skipped::TooDeep, mTooDeep == 0 ? 1 : 0);
            ++mTooDeep;
            return true;
        }
        mListener.Begin(mPath, isArray);
        mPath.emplace_back();
        return true;
    }

    bool Closed(bool isArray)
    {
        if (mTooDeep > 0) {
            --mTooDeep;
            return true;
        }
        mPath.pop_back();
        mListener.End(mPath, isArray);
        return true;
    }

    JsonListener& mListener;
    Skipped& mSkipped;
    std::vector<std::string> mPath;
    /// Levels below the deepest that is read.
    std::size_t mTooDeep = 0;
    std::size_t mErrorAt = 0;
    bool mHasBegun = false;
};

}

void ReadJson(std::istream& stream, JsonListener& listener, Skipped& skipped)
{
    PathKeeper keeper(listener, skipped);
    JsonRepair repair(*stream.rdbuf());
    std::istream repaired(&repair);
    if (!nlohmann::json::sax_parse(repaired, &keeper) && keeper.HasBegun()) {
        throw BrokenSource(
            "the file is cut off or damaged, at byte " + std::to_string(keeper.ErrorAt()) + ": export it again");
    }
}

}
