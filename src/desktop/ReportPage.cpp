#include "desktop/ReportPage.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>

namespace tempodial {

namespace {

constexpr std::string_view BarBegin = "<table class=\"bar\"";
constexpr std::string_view BarEnd = "</table>";
constexpr std::string_view WidthBegin = "width=\"";
constexpr std::string_view StyleBegin = "<style";
constexpr std::string_view StyleEnd = "</style>";
constexpr std::string_view MediaBegin = "@media";
constexpr std::string_view DetailsBegin = "<h2>";
constexpr std::string_view RootUnit = "rem";
/// A length of one at the root, in pixels.
constexpr double RootPixels = 16;
constexpr double All = 100;

/// The page up to the list of activities.
std::string SummaryOf(const std::string& page)
{
    const auto details = page.find(DetailsBegin);
    return details == std::string::npos ? std::string() : page.substr(0, details) + "</body>\n</html>\n";
}

/// The image for a bar, which stands behind its text; the bar itself when it tells no share.
std::string ImageFor(const std::string& bar)
{
    const auto width = bar.find(WidthBegin);
    if (width == std::string::npos) {
        return bar;
    }
    const auto percent = std::atoi(bar.c_str() + width + WidthBegin.size());
    return "<br><img src=\"" + std::string(ReportPage::BarImage) + "\" width=\""
        + std::to_string(ReportPage::BarWidth(percent)) + "\" height=\"" + std::to_string(ReportPage::BarHeight)
        + "\">";
}

std::string WithImages(const std::string& page)
{
    std::string result;
    std::size_t at = 0;
    while (true) {
        const auto begin = page.find(BarBegin, at);
        const auto end = begin == std::string::npos ? begin : page.find(BarEnd, begin);
        if (end == std::string::npos) {
            return result.append(page, at);
        }
        result.append(page, at, begin - at);
        result += ImageFor(page.substr(begin, end + BarEnd.size() - begin));
        at = end + BarEnd.size();
    }
}

/// Styles without those for other media, which such a viewer would take for its own.
std::string WithoutMedia(std::string styles)
{
    for (auto begin = styles.find(MediaBegin); begin != std::string::npos; begin = styles.find(MediaBegin, begin)) {
        auto end = styles.find('{', begin);
        int depth = 0;
        while (end < styles.size()) {
            depth += styles[end] == '{' ? 1 : styles[end] == '}' ? -1 : 0;
            ++end;
            if (depth == 0) {
                break;
            }
        }
        styles.erase(begin, std::min(end, styles.size()) - begin);
    }
    return styles;
}

bool IsOfNumber(char character)
{
    return std::isdigit(static_cast<unsigned char>(character)) != 0 || character == '.';
}

std::string InPixels(std::string styles)
{
    for (auto unit = styles.find(RootUnit); unit != std::string::npos; unit = styles.find(RootUnit, unit + 1)) {
        auto begin = unit;
        while (begin > 0 && IsOfNumber(styles[begin - 1])) {
            --begin;
        }
        // A name may end so as well.
        if (begin < unit && styles[unit - 1] != '.') {
            const auto pixels = std::lround(std::strtod(styles.c_str() + begin, nullptr) * RootPixels);
            styles.replace(begin, unit + RootUnit.size() - begin, std::to_string(pixels) + "px");
            unit = begin;
        }
    }
    return styles;
}

}

int ReportPage::BarWidth(int percent)
{
    return std::max(LeastBar, static_cast<int>(std::lround(FullBar * std::clamp<double>(percent, 0, All) / All)));
}

std::string ReportPage::ForViewer(const std::string& page)
{
    auto shown = WithImages(IsTooLong(page) ? SummaryOf(page) : page);
    const auto begin = shown.find(StyleBegin);
    const auto end = begin == std::string::npos ? begin : shown.find(StyleEnd, begin);
    if (end != std::string::npos) {
        const auto styles = shown.substr(begin, end - begin);
        shown.replace(begin, end - begin, InPixels(WithoutMedia(styles)));
    }
    return shown;
}

}
