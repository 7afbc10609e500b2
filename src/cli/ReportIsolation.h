#pragma once

#include <string>

namespace tempodial {

/// Isolates the texts from captions in a plain report that would else turn what stands beside them in their line.
std::string IsolatedReportText(std::string text);
/// The same in the page of a report.
std::string IsolatedReportPage(std::string page);

}
