#pragma once

#include "base/TrackerFile.h" // IWYU pragma: export

#include <cstdint>

namespace tempodial {

/// The product's words and numbers that a program needs without starting the add-in, too.

/// What the product is called, and so are its data folder and the work log in the calendar.
inline constexpr auto ProductName = "Tempodial";
/// The version of the product.
inline constexpr auto ProductVersion = "1.2.0";
/// The name under which a host loads the add-in.
inline constexpr auto ConnectProgId = "Tempodial.Connect";
/// Days before today whose tracker files a sync loads.
inline constexpr std::int32_t SavedDataDays = 21;
/// Default number of days over which a project is applied.
inline constexpr std::int32_t ApplyBackDays = 7;

/// What an activity without a project has in its place.
inline constexpr auto NoProject = "No Project";
/// The message class of an activity.
inline constexpr auto ActivityClass = "IPM.Appointment.TDActivity1";

/// The key of the registry that an empty one stands for.
inline constexpr auto ProductKey = R"(Software\Lindenfold\Tempodial)";
/// The value that holds the folder of templates.
inline constexpr auto InstallFolderValue = "Install Directory";
/// The value that holds the projects.
inline constexpr auto ProjectsValue = "ProjectXML";
/// The value that holds the identity of the work log folder.
inline constexpr auto WorkLogIdValue = "Outlook Folder Unique ID";

/// The file of the data folder that keeps the point reached in each day.
inline constexpr auto HistoryFileName = "TempodialHistory.out";
/// The file with the newer lines of the trace.
inline constexpr auto TraceFileName = "WorkLogTrace1.out";
/// The file with the older lines of the trace, absent until the other was full once.
inline constexpr auto OlderTraceFileName = "WorkLogTrace2.out";

}
