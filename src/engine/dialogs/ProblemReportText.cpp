#include "engine/dialogs/ProblemReportText.h"

#include "base/Text.h"

namespace tempodial {

std::string ProblemReportText::Body(
    const std::string& day, const std::string& expected, const std::string& actual, const std::string& version)
{
    const std::string lineEnd(CrLf);
    return "Day: " + day + lineEnd + "Expected: " + expected + lineEnd + "Actual: " + actual + lineEnd
        + "Version: " + version + lineEnd + lineEnd
        + "To help diagnose your problem, we have attached the information about your activities that Tempodial uses "
          "to "
          "build the activity calendar. "
          "This information may include email subjects and addresses. We will use the information we have collected "
          "solely "
          "to diagnose your problem, we will treat the information with complete confidentiality and never pass it to "
          "anyone else, and we will destroy it "
          "once we have resolved your problem. If this is OK, hit 'Send'.";
}

}
