#include "host/store/CompoundFile.h"

#include "base/Failure.h"
#include "host/files/ProgramModule.h"

namespace tempodial {

CompoundFile::CompoundFile(const std::string& bytes)
{
    const ProgramModule module(ProgramModule::PathOf(CompoundFileModule));
    const auto read = module.Get<CompoundStreamsReader>(CompoundStreamsReaderName);
    if (!read(bytes, mStreams)) {
        throw Failure(Error::Automation, "The file is no compound file, or a damaged one");
    }
}

std::optional<std::string> CompoundFile::Stream(const std::vector<std::string>& names) const
{
    const auto found = mStreams.find(names);
    return found == mStreams.end() ? std::nullopt : std::optional(found->second);
}

}
