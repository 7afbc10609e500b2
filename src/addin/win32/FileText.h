#pragma once

#include "portable/TextEncoding.h"

#include <string>

namespace tempodial {

/// A text in one of the system's code pages. A character that the page lacks becomes "?", never one that looks like it.
std::string InCodePage(const std::string& text, unsigned page);

/// How texts are written to files, and how lines are read that aren't UTF-8.
struct FileText
{
    /// What a text becomes in a file.
    std::string (*encode)(const std::string& text);
    TextDecoder decode;

    /// As all the user's programs have it: in the system's code page. A character that it lacks becomes "?".
    static FileText OfSystem();
    /// As the portable host has it: in UTF-8.
    static FileText OfHost();
};

}
