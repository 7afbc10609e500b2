#pragma once

namespace tempodial {

/// Lets the toolkit know what our own widgets are for assistive programs: what they paint, windows, and groups of
/// controls. May be called again.
void InstallAccess();

}
