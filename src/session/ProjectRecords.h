#pragma once

#include "base/Ref.h"
#include "platform/system/XmlDocument.h"

#include <string>
#include <vector>

namespace tempodial {

/// The projects with their rules as the registry holds them: a record of XML each, in the order in which they are
/// tried.
class ProjectRecords
{
public:
    /// Reads the registry's text; what can't be read of it is left out.
    ProjectRecords(const std::string& text, const Ref<XmlFactory>& xml);

    /// The registry's text.
    std::string Text() const;
    /// The names of the projects in their order, as the registry lists them.
    std::string Names() const;
    /// Takes a change back; a project that was changed again since stays as it is.
    void TakeBack(const ProjectRecords& before, const ProjectRecords& after);

private:
    struct Record
    {
        std::string name;
        std::string precedence;
        std::string text;
    };

    const Record* Find(const std::string& name) const;
    void Set(const std::string& name, const Record* record);

    std::vector<Record> mRecords;
};

}
