#pragma once

#include "Bytes.h"
#include "ClassId.h"

#include <memory>
#include <string>

struct _GsfOutfile;

namespace tempodial {

/// A folder of a compound file that is being written; it must be closed before the one that holds it.
class CompoundFolder
{
public:
    explicit CompoundFolder(_GsfOutfile* folder);

    /// Writes a stream.
    void Write(const std::string& name, const Bytes& bytes);
    /// Begins a folder in this one.
    CompoundFolder Begin(const std::string& name);
    /// Ends the folder; without it nothing is sure to be in the file.
    void Close();

protected:
    struct Release
    {
        void operator()(void* object) const;
    };

    std::unique_ptr<_GsfOutfile, Release> mFolder;
};

/// A compound file that is being written: its root folder.
class CompoundFile final : public CompoundFolder
{
public:
    /// Makes the file, replacing an earlier one; throws when that fails.
    CompoundFile(const std::string& path, const ClassId& rootClass);
};

}
