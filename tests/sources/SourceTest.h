#pragma once

#include "host/system/IcuTimeZone.h"
#include "sources/SourceProblem.h"
#include "sources/Sources.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tempodial {

/// A source read from a text, in Zurich, on 21 November 2026.
class SourceTest : public testing::Test
{
protected:
    /// Reads a text as that source.
    SourceData Read(const std::string& source, const std::string& text, bool asSightings = false);
    /// What is said of a text that can't be that source's; empty when it can.
    std::string Refusal(const std::string& source, const std::string& text);
    /// Why nothing is taken of a text; empty when something is.
    std::string Breakage(const std::string& source, const std::string& text);
    /// The entries as "start-end program|title|project".
    static std::vector<std::string> Told(const SourceData& data);
    /// A moment as a text.
    static std::string Moment(std::int64_t seconds);

    IcuTimeZone mZone { "Europe/Zurich" };
    Date mNow = Date::FromParts({ 2026, 11, 21, 17, 0, 0 });
    DateOrder mDates = DateOrder::FromTheFile;
};

}
