#pragma once

namespace tempodial {

/// Lets the toolkit know what our own widgets paint, for assistive programs. May be called again.
void InstallAccess();

}
