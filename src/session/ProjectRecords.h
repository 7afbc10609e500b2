#pragma once

#include "base/Ref.h"
#include "host/system/TomlRegistry.h"
#include "platform/system/XmlDocument.h"

#include <string>
#include <vector>

namespace tempodial {

/// The projects with their rules as the registry holds them: a record of XML each, in the order in which they are
/// tried.
class ProjectRecords
{
public:
    struct Record
    {
        std::string name;
        /// As it stands there; the add-in takes anything but "1" and "3" for "2".
        std::string precedence;
        std::string subjectRule;
        std::string notSubjectRule;
        std::string peopleRule;
        std::string text;
    };

    /// Reads the registry's text; what can't be read of it is left out.
    ProjectRecords(const std::string& text, const Ref<XmlFactory>& xml);

    /// The registry's text.
    std::string Text() const;
    /// The names of the projects in their order, as the registry lists them.
    std::string Names() const;
    /// Takes a change back; a project that was changed again since stays as it is.
    void TakeBack(const ProjectRecords& before, const ProjectRecords& after);
    /// True when there is a project of that name, whatever the case of its letters.
    bool Has(const std::string& name) const { return Find(name) != nullptr; }
    /// Takes a project away, if it is there.
    void Remove(const std::string& name) { Set(name, nullptr); }
    /// Writes all into the registry. Fails as that does.
    void WriteTo(TomlRegistry& registry) const;

    /// The records of such a text that the add-in reads, in their order: it stops at an empty one, at one called
    /// Unknown, and at one of the same name as that before it.
    static std::vector<Record> ReadByAddIn(const std::string& text, const Ref<XmlFactory>& xml);

private:
    const Record* Find(const std::string& name) const;
    void Set(const std::string& name, const Record* record);

    std::vector<Record> mRecords;
};

}
