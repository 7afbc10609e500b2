#pragma once

#include "engine/core/ProductWords.h"

namespace tempodial {

/// What a program knows of the product without starting the add-in: the product's own words, and the names in a
/// profile.

/// The folder of the tracker's files and the trace, below the profile.
inline constexpr auto DataFolderName = TrackerFolderName;
/// The folder of tracker files that are too old and weren't imported as a whole, below that one.
inline constexpr auto KeptFolderName = "kept";
/// The form of activities, in the folder of templates.
inline constexpr auto FormFileName = "WorkLogForm.oft";
/// The folder of templates that belongs to the program, in the tree that it lies in.
inline constexpr auto TemplatesFolderName = "share/tempodial";
/// The desktop program.
inline constexpr auto DesktopProgramName = "tempodial-desktop";
/// The mailbox, in the profile.
inline constexpr auto MailboxFileName = "mailbox.db";
/// The line on how the last sync has ended, in the profile.
inline constexpr auto LastSyncFileName = "last-sync.txt";
/// The registry store, in the profile.
inline constexpr auto RegistryFileName = "registry.toml";

}
