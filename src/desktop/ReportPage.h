#pragma once

#include <cstddef>
#include <string>

namespace tempodial {

/// The page of a report for a viewer that knows no share of a width and no units of the root: bars are images of the
/// right width, and lengths are in pixels. What is saved, sent and copied stays the product's own.
class ReportPage
{
public:
    /// The width of a bar that stands for all of the time, in pixels.
    static constexpr int FullBar = 480;
    /// A bar with the gap between its text and it.
    static constexpr int BarHeight = 9;
    static constexpr int BarGap = 4;
    /// Shorter ones couldn't be seen.
    static constexpr int LeastBar = 2;
    /// The address of the image of which bars are made.
    static constexpr auto BarImage = "bar:";
    /// Longer pages are shown as their summary.
    static constexpr std::size_t MostBytes = std::size_t { 4 } << 20;

    /// The page for such a viewer; one that is too long without its list of activities.
    static std::string ForViewer(const std::string& page);
    static bool IsTooLong(const std::string& page) { return page.size() > MostBytes; }
    /// The width of the bar of a share.
    static int BarWidth(int percent);
};

}
