#include "fuzz/FuzzTarget.h"
#include "host/system/ExpatXml.h"

#include <string>

namespace tempodial {

namespace {

/// What a text holds as XML, read by a parser; nothing when it isn't read.
std::string XmlOf(std::string_view text)
{
    static ExpatParser parser;
    XmlTree tree;
    return parser.Parse(text, tree) ? tree.Xml(XmlTree::Document) : std::string();
}

/// A view's definition is read, given another row height as the work log does it, written and read again.
void ChangeTree(std::string_view input)
{
    static ExpatXmlFactory factory;
    const auto document = factory.NewDocument();
    const std::string source(input);
    Hold(XmlOf(source) == XmlOf(source + "<!-- -->"), "a comment changes nothing, though what has one is never plain");
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
