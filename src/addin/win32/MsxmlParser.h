#pragma once

#include "portable/XmlParser.h"

#include <memory>
#include <string_view>

namespace tempodial {

/// Reads texts into trees by the system's parser, one document of which serves them all. It is made for the first text.
class MsxmlParser final : public XmlParser
{
public:
    MsxmlParser();
    ~MsxmlParser() override;
    MsxmlParser(const MsxmlParser&) = delete;
    MsxmlParser& operator=(const MsxmlParser&) = delete;

private:
    struct Document;

    /// Fails (429) when the system has no parser.
    bool Read(std::string_view text, XmlTree& tree) override;

    std::unique_ptr<Document> mDocument;
};

}
