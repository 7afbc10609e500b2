#pragma once

#include <cstdint>

namespace tempodial {

/// What the program knows of the add-in without starting it; the tests hold these to the add-in's own words.

/// The version of the product.
inline constexpr auto ProductVersion = "1.2.0";
/// Days before today whose tracker files a sync loads.
inline constexpr std::int32_t SavedDataDays = 21;
/// Default number of days over which a project is applied.
inline constexpr auto ApplyBackDays = "7";
/// What an activity without a project has in its place.
inline constexpr auto NoProject = "No Project";
/// The key that an empty one stands for.
inline constexpr auto ProductKey = R"(Software\Lindenfold\Tempodial)";
/// The value that holds the identity of the work log folder.
inline constexpr auto WorkLogIdValue = "Outlook Folder Unique ID";
/// The folder of the tracker's files and the trace, below the profile.
inline constexpr auto DataFolderName = "Tempodial";

}
