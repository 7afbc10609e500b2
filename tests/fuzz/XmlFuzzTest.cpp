#include "fuzz/FuzzTarget.h"
#include "host/system/ExpatXml.h"

namespace tempodial {

namespace {

/// A view's definition is read, given another row height as the work log does it, written and read again.
void ChangeTree(std::string_view input)
{
    static ExpatXmlFactory factory;
    const auto document = factory.NewDocument();
    const std::string source(input);
    if (!document->LoadXML(source)) {
        Hold(document->IsEmpty() && document->Xml().empty() && document->Text().empty(), "what isn't read is empty");
        return;
    }
    Hold(!document->IsEmpty(), "what is read has a root");
    Hold(source.ends_with(document->Xml()), "what isn't changed stays as it is");
    const auto before = document->Text();
    const auto again = factory.NewDocument();

    for (const auto* path : { "view/displaytimeunits", "view", "slot/EndTime" }) {
        const auto node = document->SelectSingleNode(path);
        if (!node) {
            continue;
        }
        const auto text = node->Text();
        node->SetText(text);
        Hold(document->Text() == before, "a text set to itself is the same");
        const auto written = document->Xml();
        Hold(again->LoadXML(written), "what was written can be read");
        Hold(again->Text() == before, "what was written has the same text");
        node->SetText("5 < 6 & \"7\"");
        Hold(again->LoadXML(document->Xml()), "a text with marks is escaped");
        Hold(again->SelectSingleNode(path)->Text() == "5 < 6 & \"7\"", "the new text is found again");
        node->SetText(text);
        Hold(document->Xml() == written, "a text can be taken back");
    }
}

}

TEMPODIAL_FUZZ_TARGET(Xml, ChangeTree)

}
