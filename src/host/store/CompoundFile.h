#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// The streams of a compound file, by the names of the folders around each and its own.
using CompoundStreams = std::map<std::vector<std::string>, std::string>;

/// Reads the streams of the compound file of those bytes; false when they are no compound file, or a damaged one.
using CompoundStreamsReader = bool (*)(const std::string& bytes, CompoundStreams& streams);

/// The module that reads compound files, and the name of its one function, a `CompoundStreamsReader`.
inline constexpr auto CompoundFileModule = "tempodial-form";
inline constexpr auto CompoundStreamsReaderName = "TempodialReadCompoundStreams";

/// A compound file: streams in folders. They are read by a library in a module of its own, which is loaded for the
/// first one.
class CompoundFile
{
public:
    /// Reads the file of those bytes; fails (440) when they are no whole compound file, (429) when the module can't be
    /// loaded.
    explicit CompoundFile(const std::string& bytes);

    /// The bytes of a stream under the names of the folders around it and its own; nothing when it is absent.
    std::optional<std::string> Stream(const std::vector<std::string>& names) const;

private:
    CompoundStreams mStreams;
};

}
